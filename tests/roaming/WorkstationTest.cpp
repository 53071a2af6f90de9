// The screens of the workstation itself: its identity, its initial synchronization and its management.

#include <algorithm>

#include "doubles/Stage.h"
#include "doubles/TempFolder.h"
#include "roaming/IdentityDialog.h"
#include "roaming/InitialSync.h"
#include "roaming/Manager.h"

namespace tsln::test {
namespace {

using roaming::IdentityDialog;
using roaming::InitialSync;
using roaming::Manager;
using testing::Field;

constexpr auto frmIdentity = "frmRoamingWorkstationIdentity";
constexpr auto frmInitial = "frmRoamingWorkstationInitial";
constexpr auto frmManager = "frmRoamingWorkstationManager";
constexpr auto guid = "0f8FAD5B-d9cb-469f-a165-70867728950e";
constexpr auto poll = "SELECT SyncState FROM Company";
constexpr auto request =
    "UPDATE Company SET SyncState = 1, NextSequenceToMain = 0, NextSequenceFromMain = 0, LastAuditID = 0, MainUniqueID = NULL";
/// The state of a company as the agent changes it, and an agent's program in a folder.
struct WorkstationStage : Stage {
    TempFolder folder;
    Variant state = 0;

    WorkstationStage() {
        folder.write("agent", "a program");
        furnish(*this, folder, state);
    }
    static void furnish(Stage& stage, const TempFolder& folder, Variant& state) {
        RecordingHost& host = *stage.host;
        host.on("ShowMessageStyle1", [](Arguments a) {  // Yes, and OK
            return Variant(a.count() > 2 && a[2].toLong() == 4 ? 6 : 1);
        });
        host.on("Options.ExternalProgram", Variant(folder.file("agent")));
        host.on("Options.UserFileLocation", Variant("/the companies"));
        host.on("Profiles.Profile", Variant(""));
        host.on("OperatingMode", Variant(2));
        host.on("Database.ExecuteScaler",
                [&state](Arguments a) { return a[0].toText() == poll ? state : Variant(1); });
        host.on("Common.GetFriendlySyncState",
                [](Arguments a) { return Variant("State " + std::to_string(a[0].toLong())); });
        // The request is written to the company.
        host.on("Database.ExecuteNonQuery", [&state](Arguments a) {
            if (a[0].toText() == request) state = 1;
            return Variant(true);
        });
    }
    bool initial(const std::function<void(InitialSync&)>& act) {
        desktop.user<InitialSync>(frmInitial, act);
        return library->ShowRoamingWorkstationInitial();
    }
    std::size_t statements() const {
        return static_cast<std::size_t>(std::ranges::count_if(
            host->calls, [](const std::string& call) { return call.starts_with("Database."); }));
    }
};

TEST(Identity, TakesAGuidOfThirtySixCharacters) {
    const std::string padded = "  " + std::string(guid) + " ";
    for (const std::string& typed : std::initializer_list<std::string>{
             "", "   ", padded, "0f8fad5b-d9cb-469f-a165-70867728950",
             "0f8fad5b-d9cb-469f-a165-70867728950ee", "{0f8fad5b-d9cb-469f-a165-70867728950e}",
             "{f8fad5b-d9cb-469f-a165-70867728950}", "0f8fad5bd9cb469fa16570867728950e",
             "0f8fad5b-d9cb-469f-a165-70867728950g", "0f8fad5b-d9cb-469f-a1657-0867728950e",
             "0f8fad5b-d9cb-469f-a165 70867728950e", "0f8fad5b-d9cb-469f-a165-7086772895\xC3\xA9",
             "------------------------------------", "'; DELETE FROM Company; --0123456789"}) {
        WorkstationStage stage;
        const bool valid = typed == padded;
        stage.desktop.user<IdentityDialog>(frmIdentity, [&](IdentityDialog& dialog) {
            dialog.txtUniqueID.userType(typed);
            dialog.cmdOK.userPress();
            EXPECT_EQ(dialog.shown(), !valid) << typed;
        });
        EXPECT_EQ(stage.library->ShowRoamingWorkstationIdentity(), valid ? 1 : 0) << typed;
        EXPECT_EQ(stage.executed(),
                  valid ? std::vector{"UPDATE Company SET UniqueID = '" + std::string(guid) + "'"}
                        : std::vector<std::string>());
        if (valid) continue;
        EXPECT_THAT(
            stage.desktop.boxes,
            ElementsAre(exclamation(
                typed.find_first_not_of(' ') == typed.npos
                    ? "You must enter the unique identity code that was generated from the main company."
                    : "The unique ID you have entered is not valid.")));
    }
}

TEST(Identity, CreatesTheCompanyThatIsMissingAndReportsAFailure) {
    WorkstationStage stage;
    stage.host->on("Database.ExecuteScaler", Variant("0"));
    stage.host->on("Database.ExecuteNonQuery", Variant(false));
    stage.desktop.user<IdentityDialog>(frmIdentity, [&](IdentityDialog& dialog) {
        dialog.txtUniqueID.userType(guid);
        dialog.cmdOK.userPress();
        EXPECT_TRUE(dialog.shown());
    });
    EXPECT_EQ(stage.library->ShowRoamingWorkstationIdentity(), 0);
    EXPECT_THAT(stage.executed(),
                ElementsAre("INSERT INTO Company (Name,UniqueID,CompanyType) VALUES('Roaming', '" +
                            std::string(guid) + "', 2)"));
    EXPECT_THAT(stage.failures(), SizeIs(1));
}

TEST(InitialSync, ClosesByItselfOnceTheAgentHasCompletedItWithOneStatementATick) {
    WorkstationStage stage;
    EXPECT_FALSE(stage.initial([&](InitialSync& screen) {
        EXPECT_EQ(stage.desktop.timersRunning(), 0U) << "nothing is requested";
        screen.cmdRequest.userPress();
        EXPECT_THAT(stage.executed(), ElementsAre(request));
        EXPECT_EQ(screen.lblElapsed.caption(), "Time since request was started: 0:00");
        EXPECT_EQ(screen.lblStatus.caption(), "Status: State 1");
        for (const int state : {1, 1, 2, 3, 3}) {
            stage.state = state;
            const std::size_t before = stage.statements();
            stage.desktop.tick();
            EXPECT_EQ(stage.statements(), before + 1);
            EXPECT_TRUE(screen.shown());
        }
        EXPECT_THAT(stage.host->callsOf("Common.GetFriendlySyncState"), SizeIs(4)) << "once a change";
        stage.state = 4;
        stage.desktop.tick();
        EXPECT_FALSE(screen.shown());
    }));
    EXPECT_EQ(stage.desktop.timersRunning(), 0U);
    EXPECT_THAT(stage.desktop.boxes, IsEmpty());
    EXPECT_THAT(stage.desktop.opened, ElementsAre(stage.folder.file("agent") +
                                                  "|/Profile:\"(default)\" /Companies:\"/the companies\""));
    EXPECT_THAT(stage.host->callsOf("RecordEvent"), ElementsAre(HasSubstr("/Companies:\"/the companies\"")));
    EXPECT_THAT(stage.host->callsOf("Options.SetCompanyOption"),
                ElementsAre("StopSync, Roaming Workstations, 0"));
}

TEST(InitialSync, SaysWhyItCannotBeRequested) {
    constexpr auto notFound =
        "The Roaming Workstation Sync Agent was not started because it could not be found.";
    const struct {
        const char* path;
        Variant answer;
        bool opens;
        const char* told;
    } cases[] = {
        {"ShowMessageStyle1", Variant(7), true, nullptr},
        {"Database.ExecuteNonQuery", Variant(false), true, nullptr},
        {"Options.ExternalProgram", Variant(""), true, notFound},
        {"Options.ExternalProgram", Variant("/no/such/agent"), true, notFound},
        {"Profiles.Profile", Variant("p"), false, "The Roaming Workstation Sync Agent could not be started."},
    };
    for (const auto& c : cases) {
        WorkstationStage stage;
        stage.host->on(c.path, c.answer);
        stage.desktop.opens = c.opens;
        EXPECT_TRUE(stage.initial([&](InitialSync& screen) {
            screen.cmdRequest.userPress();
            EXPECT_EQ(stage.desktop.timersRunning(), 0U);
            screen.cmdClose.userPress();
            EXPECT_FALSE(screen.shown()) << "nothing is waited for";
        }));
        EXPECT_EQ(stage.desktop.boxes, c.told ? std::vector{exclamation(c.told)} : std::vector<Box>());
        EXPECT_THAT(stage.failures(), SizeIs(c.answer == Variant(false) ? 1 : 0));
    }
}

TEST(InitialSync, PathsArePassedAsOneWord) {
    for (const auto& [path, argument] :
         {std::pair{R"(C:\)", R"("C:\.")"}, {R"(D:\My "data")", R"("D:\My \"data\"")"}}) {
        WorkstationStage stage;
        stage.host->on("Profiles.Profile", Variant("North side"));
        stage.host->on("Options.UserFileLocation", Variant(path));
        stage.initial([&](InitialSync& screen) { screen.cmdRequest.userPress(); });
        EXPECT_THAT(stage.desktop.opened,
                    ElementsAre(EndsWith(std::string("|/Profile:\"North side\" /Companies:") + argument)));
    }
}

TEST(InitialSync, AsksBeforeItClosesWhileWaitingAndGoesOnAfterNo) {
    WorkstationStage stage;
    stage.state = 2;  // requested earlier; the agent was killed meanwhile
    stage.desktop.answers = {MessageAnswer::No, MessageAnswer::No, MessageAnswer::Yes};
    EXPECT_TRUE(stage.initial([&](InitialSync& screen) {
        EXPECT_EQ(stage.desktop.timersRunning(), 1U) << "it waits for the earlier request";
        stage.desktop.tick();
        EXPECT_EQ(screen.lblElapsed.caption(), "");
        screen.userClose();
        screen.cmdRequest.userPress();
        EXPECT_THAT(stage.desktop.opened, SizeIs(1)) << "the agent is started again";
        screen.cmdClose.userPress();
        EXPECT_TRUE(screen.shown());
        EXPECT_EQ(stage.desktop.timersRunning(), 1U);
        screen.cmdClose.userPress();
        EXPECT_FALSE(screen.shown());
    }));
    EXPECT_THAT(stage.desktop.boxes, SizeIs(3));
    EXPECT_THAT(stage.desktop.boxes[0].text,
                StartsWith("This company is still waiting for the initial sync to be completed."));
}

TEST(InitialSync, EndsTheWaitWhenTheRequestOrTheCompanyIsGone) {
    constexpr auto vanished = "The company's record does not exist any more. Enter the identity code again.";
    for (const auto& [answer, told] :
         {std::pair{Variant(), vanished}, {Variant(0), "An initial sync could not be started."}}) {
        WorkstationStage stage;
        EXPECT_TRUE(stage.initial([&, &answer = answer](InitialSync& screen) {
            screen.cmdRequest.userPress();
            stage.state = answer;
            stage.desktop.tick();
            stage.desktop.tick();
            EXPECT_EQ(stage.desktop.timersRunning(), 0U);
            EXPECT_TRUE(screen.shown());
        }));
        EXPECT_THAT(stage.desktop.boxes, ElementsAre(exclamation(told))) << "told once";
    }
}

TEST(InitialSync, ToleratesAFewFailingPollsOneAfterTheOther) {
    WorkstationStage stage;
    bool fails = false;
    stage.host->on("Database.ExecuteScaler", [&](Arguments) {
        if (fails) throw HostError(code::fail, "Database", "The company is locked.");
        return stage.state;
    });
    stage.initial([&](InitialSync& screen) {
        screen.cmdRequest.userPress();
        for (const int failing : {4, 4, 5}) {
            fails = true;
            for (int i = 0; i < failing; ++i)
                stage.desktop.tick();
            EXPECT_EQ(stage.desktop.timersRunning(), failing < 5 ? 1U : 0U);
            fails = false;
            stage.desktop.tick();
        }
    });
    EXPECT_THAT(stage.failures(), ElementsAre(EndsWith("The company is locked.")));
}

TEST(InitialSync, TheHostShowsAndMovesFilesAndNamesTheFrequency) {
    WorkstationStage stage;
    stage.host->on("Options.GetCompanyOption", Variant("15"));
    stage.initial([&](InitialSync& screen) {
        EXPECT_THAT(screen.lblFrequency.caption(), HasSubstr("15 minutes"));
        screen.cmdFileManager.userPress();
        screen.cmdMoveFiles.userPress();
    });
    for (const char* member : {"ShowFileManager", "ShowMoveFileLocations"})
        EXPECT_THAT(stage.host->callsOf(std::string("tslnfm5.Library.") + member), SizeIs(1)) << member;
    EXPECT_THAT(stage.host->callsOf("tslnfm5.Library.PreTerminate"), SizeIs(2));
    using std::chrono::seconds;
    EXPECT_EQ(roaming::elapsedText(seconds(7)) + " " + roaming::elapsedText(seconds(750)) + " " +
                  roaming::elapsedText(seconds(3723)),
              "0:07 12:30 1:02:03");
}

TEST(Manager, ResetsTheSyncStateAndHasTheCompanyClosed) {
    const struct {
        int sure, proceed;
        bool written;
        std::size_t statements, messages, failures;
    } cases[] = {{7, 0, true, 0, 1, 0}, {6, 2, true, 0, 2, 0}, {6, 1, false, 1, 2, 1}, {6, 1, true, 1, 3, 0}};
    for (const auto& c : cases) {
        WorkstationStage stage;
        const bool done = c.messages == 3;
        stage.host->on("ShowMessageStyle1", [&](Arguments a) {
            return Variant(a.count() < 3 ? 0 : a[2].toLong() == 4 ? c.sure : c.proceed);
        });
        stage.host->on("Database.ExecuteNonQuery", Variant(c.written));
        stage.host->on("FixDateForSQLInsert", Variant("2011-03-04T10:20:30"));
        stage.desktop.user<Manager>(frmManager, [&](Manager& screen) {
            EXPECT_EQ(screen.lblStatus.caption(), "Status: State 0");
            screen.cmdReset.userPress();
            EXPECT_EQ(screen.shown(), !done) << "it closes once the state is reset";
        });
        stage.library->ShowRoamingWorkstationManager();
        const auto written = stage.executed();
        EXPECT_THAT(written, SizeIs(c.statements));
        if (done) {
            EXPECT_EQ(written[0],
                      "UPDATE Company SET SyncState = 5, ResetRequestedOn = '2011-03-04T10:20:30'");
        }
        const auto told = stage.host->callsOf("ShowMessageStyle1");
        ASSERT_THAT(told, SizeIs(c.messages));
        EXPECT_THAT(told[c.messages - 1],
                    HasSubstr(c.messages == 1 ? "Only changes made after this point will be sent., 4"
                              : done          ? "Wait 5 minutes and then open the company."
                                              : "This process may take up to 5 minutes."));
        EXPECT_THAT(stage.failures(), SizeIs(c.failures));
        EXPECT_THAT(stage.host->callsOf("Messages.PostMessage"), ElementsAre(done ? "9001, 1" : "9001, 0"));
    }
}

TEST(Manager, StopsTheAgentAndChangesTheIdentity) {
    WorkstationStage stage;
    stage.desktop.user<IdentityDialog>(frmIdentity, [&](IdentityDialog&) { stage.state = Variant(); });
    stage.desktop.user<Manager>(frmManager, [](Manager& screen) {
        screen.cmdStopSync.userPress();
        screen.cmdIdentity.userPress();
        EXPECT_EQ(screen.lblStatus.caption(), "Status: No company") << "read again";
    });
    stage.library->ShowRoamingWorkstationManager();
    EXPECT_THAT(stage.host->callsOf("Options.SetCompanyOption"),
                ElementsAre("StopSync, Roaming Workstations, 1"));
}

TEST(Workstation, SurvivesEveryFaultOfTheHost) {
    const TempFolder folder;
    folder.write("agent", "a program");
    Variant state;
    sweepFaults([&](Stage& stage) {
        state = 0;
        WorkstationStage::furnish(stage, folder, state);
        stage.desktop.user<InitialSync>(frmInitial, [&](InitialSync& screen) {
            screen.cmdFileManager.userPress();
            screen.cmdRequest.userPress();
            for (const int now : {3, 4}) {
                state = now;
                stage.desktop.tick();
            }
        });
        stage.desktop.user<IdentityDialog>(frmIdentity, [](IdentityDialog& dialog) {
            dialog.txtUniqueID.userType(guid);
            dialog.cmdOK.userPress();
            EXPECT_EQ(dialog.txtUniqueID.text(), guid);
        });
        stage.desktop.user<Manager>(frmManager, [](Manager& screen) {
            screen.cmdStopSync.userPress();
            screen.cmdIdentity.userPress();
            screen.cmdReset.userPress();
        });
        const bool cancelled = stage.library->ShowRoamingWorkstationInitial();
        EXPECT_TRUE(!cancelled || !stage.desktop.opened.empty() || stage.told());
        EXPECT_EQ(stage.desktop.timersRunning(), 0U);
        stage.library->ShowRoamingWorkstationManager();
    });
}

}  // namespace
}  // namespace tsln::test
