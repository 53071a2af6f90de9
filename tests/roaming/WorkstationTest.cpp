// The screens of the workstation itself: its identity, its initial synchronization and its management.

#include <algorithm>
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;
using Box = ScriptedDesktop::Box;

constexpr auto frmIdentity = "frmRoamingWorkstationIdentity";
constexpr auto frmInitial = "frmRoamingWorkstationInitial";
constexpr auto frmManager = "frmRoamingWorkstationManager";
constexpr auto guid = "0f8FAD5B-d9cb-469f-a165-70867728950e";
constexpr auto poll = "SELECT SyncState FROM Company";
constexpr auto request =
    "UPDATE Company SET SyncState = 1, NextSequenceToMain = 0, NextSequenceFromMain = 0, LastAuditID = 0, MainUniqueID = NULL";
constexpr auto cancelQuestion =
    "This company is still waiting for the initial sync to be completed. Are you sure you want to cancel the process?";
constexpr auto vanished = "The company's record does not exist any more. Enter the identity code again.";

Box exclamation(const char* text) {
    return {text, MessageButtons::Ok, MessageIcon::Exclamation};
}

/// The state of a company as the agent changes it, and an agent's program in a folder.
struct WorkstationStage : Stage {
    TempFolder folder;
    Variant state = 0;

    WorkstationStage() {
        std::ofstream(folder.file("agent")) << "a program";
        furnish(*this, folder, state);
    }
    static void furnish(Stage& stage, const TempFolder& folder, const Variant& state) {
        RecordingHost& host = *stage.host;
        host.on("ShowMessageStyle1", Variant(6));
        host.on("Options.ExternalProgram", Variant(folder.file("agent")));
        host.on("Options.UserFileLocation", Variant("/the companies"));
        host.on("Profiles.Profile", Variant(""));
        host.on("OperatingMode", Variant(2));
        host.on("Database.ExecuteScaler",
                [&state](Arguments a) { return a[0].toText() == poll ? state : Variant(1); });
        host.on("Common.GetFriendlySyncState",
                [](Arguments a) { return Variant("State " + std::to_string(a[0].toLong())); });
        // The request is written to the company.
        host.on("Database.ExecuteNonQuery", [&state = const_cast<Variant&>(state)](Arguments a) {
            if (a[0].toText() == request) state = 1;
            return Variant(true);
        });
    }
    bool initial(const std::function<void(InitialSync&)>& act) {
        desktop.user<InitialSync>(frmInitial, act);
        return library->ShowRoamingWorkstationInitial();
    }
    void manage(const std::function<void(Manager&)>& act) {
        desktop.user<Manager>(frmManager, act);
        library->ShowRoamingWorkstationManager();
    }
    std::size_t statements() const {
        return static_cast<std::size_t>(std::ranges::count_if(
            host->calls, [](const std::string& call) { return call.starts_with("Database."); }));
    }
};

TEST(Identity, TakesAGuidOfThirtySixCharacters) {
    const struct {
        std::string typed;
        const char* told;
    } cases[] = {
        {"", "You must enter the unique identity code that was generated from the main company."},
        {"   ", "You must enter the unique identity code that was generated from the main company."},
        {"0f8fad5b-d9cb-469f-a165-70867728950", "The unique ID you have entered is not valid."},
        {"0f8fad5b-d9cb-469f-a165-70867728950ee", "The unique ID you have entered is not valid."},
        {"{0f8fad5b-d9cb-469f-a165-70867728950e}", "The unique ID you have entered is not valid."},
        {"{f8fad5b-d9cb-469f-a165-70867728950}", "The unique ID you have entered is not valid."},
        {"0f8fad5bd9cb469fa16570867728950e", "The unique ID you have entered is not valid."},
        {"0f8fad5b-d9cb-469f-a165-70867728950g", "The unique ID you have entered is not valid."},
        {"0f8fad5b-d9cb-469f-a1657-0867728950e", "The unique ID you have entered is not valid."},
        {"0f8fad5b-d9cb-469f-a165 70867728950e", "The unique ID you have entered is not valid."},
        {"0f8fad5b\xE2\x80\x93"
         "d9cb-469f-a165-708677289",
         "The unique ID you have entered is not valid."},
        {"------------------------------------", "The unique ID you have entered is not valid."},
        {"'; DELETE FROM Company; --0123456789", "The unique ID you have entered is not valid."},
        {std::string("  ") + guid + " ", nullptr},
    };
    for (const auto& c : cases) {
        WorkstationStage stage;
        stage.desktop.user<IdentityDialog>(frmIdentity, [&](IdentityDialog& dialog) {
            dialog.txtUniqueID.userType(c.typed);
            dialog.cmdOK.userPress();
            EXPECT_EQ(dialog.shown(), c.told != nullptr) << c.typed;
            EXPECT_EQ(dialog.focusedControl(), &dialog.txtUniqueID);
        });
        EXPECT_EQ(stage.library->ShowRoamingWorkstationIdentity(), c.told ? 0 : 1) << c.typed;
        if (c.told) {
            EXPECT_THAT(stage.desktop.boxes, ElementsAre(exclamation(c.told)));
        }
        EXPECT_EQ(stage.host->callsOf("Database.ExecuteNonQuery"),
                  c.told ? std::vector<std::string>()
                         : std::vector{"UPDATE Company SET UniqueID = '" + std::string(guid) + "'"});
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
        dialog.cmdCancel.userPress();
    });
    EXPECT_EQ(stage.library->ShowRoamingWorkstationIdentity(), 0);
    EXPECT_THAT(stage.host->callsOf("Database.ExecuteScaler"),
                ElementsAre("SELECT COUNT(*) AS theCount FROM Company, , 0"));
    EXPECT_THAT(stage.host->callsOf("Database.ExecuteNonQuery"),
                ElementsAre("INSERT INTO Company (Name,UniqueID,CompanyType) VALUES('Roaming', '" +
                            std::string(guid) + "', 2)"));
    EXPECT_THAT(stage.host->callsOf("ShowAndLogErrorMessage"), SizeIs(1));
}

TEST(InitialSync, ClosesByItselfOnceTheAgentHasCompletedItWithOneStatementATick) {
    WorkstationStage stage;
    EXPECT_FALSE(stage.initial([&](InitialSync& screen) {
        EXPECT_EQ(stage.desktop.timersRunning(), 0U) << "nothing is requested";
        screen.cmdRequest.userPress();
        EXPECT_THAT(stage.host->callsOf("Database.ExecuteNonQuery"), ElementsAre(request));
        EXPECT_EQ(screen.lblElapsed.caption(), "Time since request was started: 0:00");
        EXPECT_EQ(screen.lblStatus.caption(), "Status: State 1");
        for (const int state : {1, 1, 2, 3, 3}) {
            stage.state = state;
            const std::size_t before = stage.statements();
            for (int between = 0; between < 3; ++between)
                stage.desktop.yield();
            EXPECT_EQ(stage.statements(), before);
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
    EXPECT_THAT(
        stage.host->callsOf("ShowMessageStyle1"),
        ElementsAre(
            "Are you ready to request an initial sync?, Once the initial sync has been completed this dialog will close and you can begin using the software., 4"));
}

TEST(InitialSync, SaysWhyItCannotBeRequested) {
    const struct {
        const char* path;
        Variant answer;
        bool opens;
        const char* told;
    } cases[] = {
        {"ShowMessageStyle1", Variant(7), true, nullptr},
        {"Database.ExecuteNonQuery", Variant(false), true, nullptr},
        {"Options.ExternalProgram", Variant(""), true,
         "The Roaming Workstation Sync Agent was not started because it could not be found."},
        {"Options.ExternalProgram", Variant("/no/such/agent"), true,
         "The Roaming Workstation Sync Agent was not started because it could not be found."},
        {"Profiles.Profile", Variant("p"), false, "The Roaming Workstation Sync Agent could not be started."},
    };
    for (const auto& c : cases) {
        WorkstationStage stage;
        stage.host->on(c.path, c.answer);
        stage.desktop.opens = c.opens;
        EXPECT_TRUE(stage.initial([&](InitialSync& screen) {
            screen.cmdRequest.userPress();
            EXPECT_EQ(stage.desktop.timersRunning(), 0U);
            EXPECT_TRUE(screen.cmdRequest.enabled());
            screen.cmdClose.userPress();
            EXPECT_FALSE(screen.shown()) << "nothing is waited for";
        }));
        EXPECT_EQ(stage.desktop.boxes, c.told ? std::vector{exclamation(c.told)} : std::vector<Box>());
        EXPECT_THAT(stage.host->callsOf("RecordEvent"), IsEmpty());
        if (c.answer == Variant(false)) {
            EXPECT_THAT(stage.host->callsOf("ShowAndLogErrorMessage"),
                        ElementsAre("An initial sync could not be started., {standard explanation}, "
                                    "the database's own words"));
        }
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
    EXPECT_THAT(stage.desktop.boxes,
                testing::AllOf(SizeIs(3), testing::Each(Field(&Box::text, cancelQuestion))));
    EXPECT_EQ(stage.desktop.timersRunning(), 0U);
}

TEST(InitialSync, EndsTheWaitWhenTheRequestOrTheCompanyIsGone) {
    const std::pair<Variant, const char*> cases[] = {{Variant(), vanished},
                                                     {Variant(Null()), vanished},
                                                     {Variant(0), "An initial sync could not be started."}};
    for (const auto& [answer, told] : cases) {
        WorkstationStage stage;
        EXPECT_TRUE(stage.initial([&, &answer = answer](InitialSync& screen) {
            screen.cmdRequest.userPress();
            stage.state = answer;
            stage.desktop.tick();
            stage.desktop.tick();
            EXPECT_EQ(stage.desktop.timersRunning(), 0U);
            EXPECT_EQ(screen.lblElapsed.caption(), "");
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
            EXPECT_FALSE(stage.told() && failing == 0);
            for (int i = 0; i < failing; ++i) {
                fails = true;
                stage.desktop.tick();
            }
            EXPECT_EQ(stage.desktop.timersRunning(), failing < 5 ? 1U : 0U);
            fails = false;
            stage.desktop.tick();
        }
    });
    EXPECT_THAT(stage.host->callsOf("ShowAndLogErrorMessage"),
                ElementsAre(EndsWith("The company is locked.")));
}

TEST(InitialSync, TheHostShowsAndMovesFilesAndNamesTheFrequency) {
    WorkstationStage stage;
    stage.host->on("Options.GetCompanyOption", Variant("15"));
    stage.initial([&](InitialSync& screen) {
        EXPECT_THAT(screen.lblFrequency.caption(), HasSubstr("15 minutes"));
        screen.cmdFileManager.userPress();
        screen.cmdMoveFiles.userPress();
    });
    EXPECT_THAT(stage.host->callsOf("Options.GetCompanyOption"),
                ElementsAre("SyncFrequency, Roaming Workstations, "));
    std::vector<std::string> component;
    std::ranges::copy_if(stage.host->calls, std::back_inserter(component),
                         [](const std::string& call) { return call.starts_with("tslnfm5.Library."); });
    EXPECT_THAT(component,
                ElementsAre("tslnfm5.Library.Initialize(object)", "tslnfm5.Library.ShowFileManager()",
                            "tslnfm5.Library.PreTerminate()", "tslnfm5.Library.Initialize(object)",
                            "tslnfm5.Library.ShowMoveFileLocations()", "tslnfm5.Library.PreTerminate()"));
    using std::chrono::seconds;
    EXPECT_EQ(roaming::elapsedText(seconds(7)) + " " + roaming::elapsedText(seconds(750)) + " " +
                  roaming::elapsedText(seconds(3723)),
              "0:07 12:30 1:02:03");
}

TEST(Manager, ResetsTheSyncStateAndHasTheCompanyClosed) {
    const struct {
        int sure, proceed;
        bool written;
        int notice;
    } cases[] = {{7, 0, true, 0}, {6, 2, true, 0}, {6, 1, false, 0}, {6, 1, true, 1}};
    for (const auto& c : cases) {
        WorkstationStage stage;
        stage.host->on("ShowMessageStyle1", [&](Arguments a) {
            return Variant(a.count() < 3 ? 0 : a[2].toLong() == 4 ? c.sure : c.proceed);
        });
        stage.host->on("Database.ExecuteNonQuery", Variant(c.written));
        stage.host->on("FixDateForSQLInsert", Variant("2011-03-04T10:20:30"));
        stage.manage([&](Manager& screen) {
            EXPECT_EQ(screen.lblStatus.caption(), "Status: State 0");
            screen.cmdReset.userPress();
            EXPECT_EQ(screen.shown(), c.notice == 0) << "it closes once the state is reset";
            screen.cmdClose.userPress();
        });
        const auto told = stage.host->callsOf("ShowMessageStyle1");
        EXPECT_EQ(
            told.at(0),
            "Are you sure you want to reset the sync status for this Roaming Workstation?, Resetting the sync status will cause any un-synced changes made on this Roaming Workstation up to this point in time to not be sent to the main system; Only changes made after this point will be sent., 4");
        if (c.sure == 6) {
            EXPECT_EQ(
                told.at(1),
                "You are about to perform a sync reset, This process may take up to 5 minutes. Click OK to proceed, at which time the company will be closed., 1");
        }
        if (c.notice == 1) {
            EXPECT_EQ(
                told.at(2),
                "The sync state for this Roaming Workstation has been reset., Wait 5 minutes and then open the company.<LineBreak/>No changes up to this point in time will be sent to the main system; Only new changes will be sent.");
        }
        const auto written = stage.host->callsOf("Database.ExecuteNonQuery");
        EXPECT_EQ(written,
                  c.proceed == 1
                      ? std::vector<std::string>{"UPDATE Company SET SyncState = 5, ResetRequestedOn = "
                                                 "'2011-03-04T10:20:30'"}
                      : std::vector<std::string>());
        EXPECT_EQ(stage.host->callsOf("ShowAndLogErrorMessage"),
                  c.written ? std::vector<std::string>()
                            : std::vector<std::string>{
                                  "The sync state for this Roaming Workstation could not be reset., "
                                  "{standard explanation}, the database's own words"});
        EXPECT_THAT(stage.host->callsOf("Messages.PostMessage"),
                    ElementsAre("9001, " + std::to_string(c.notice)));
    }
}

TEST(Manager, StopsTheAgentAndChangesTheIdentity) {
    WorkstationStage stage;
    stage.desktop.user<IdentityDialog>(frmIdentity, [&](IdentityDialog& dialog) {
        dialog.txtUniqueID.userType(guid);
        dialog.cmdOK.userPress();
        stage.state = Variant();
    });
    stage.manage([&](Manager& screen) {
        screen.cmdStopSync.userPress();
        screen.cmdIdentity.userPress();
        EXPECT_EQ(screen.lblStatus.caption(), "Status: No company") << "read again";
        screen.userClose();
    });
    EXPECT_THAT(stage.host->callsOf("Options.SetCompanyOption"),
                ElementsAre("StopSync, Roaming Workstations, 1"));
    EXPECT_THAT(stage.host->callsOf("Database.ExecuteNonQuery"), SizeIs(1));
    EXPECT_THAT(stage.host->callsOf("Messages.PostMessage"), ElementsAre("9001, 0"));
}

TEST(Workstation, SurvivesEveryFaultOfTheHost) {
    const TempFolder folder;
    std::ofstream(folder.file("agent")) << "a program";
    Variant state;
    sweepFaults(
        [&](Stage& stage) {
            state = 0;
            WorkstationStage::furnish(stage, folder, state);
            stage.desktop.user<InitialSync>(frmInitial, [&](InitialSync& screen) {
                screen.cmdFileManager.userPress();
                screen.cmdRequest.userPress();
                state = 3;
                stage.desktop.tick();
                state = 4;
                stage.desktop.tick();
            });
            const bool cancelled = stage.library->ShowRoamingWorkstationInitial();
            const bool polled = !stage.desktop.opened.empty();
            EXPECT_TRUE(!cancelled || polled || stage.told());
            EXPECT_EQ(stage.desktop.timersRunning(), 0U);
        },
        [](Stage&) {});
    sweepFaults(
        [&](Stage& stage) {
            state = 4;
            WorkstationStage::furnish(stage, folder, state);
            stage.host->on("ShowMessageStyle1",
                           [](Arguments a) { return Variant(a.count() > 2 && a[2].toLong() == 4 ? 6 : 1); });
            stage.desktop.user<IdentityDialog>(frmIdentity, [](IdentityDialog& dialog) {
                dialog.txtUniqueID.userType(guid);
                dialog.cmdOK.userPress();
                if (dialog.shown()) {
                    EXPECT_EQ(dialog.txtUniqueID.text(), guid);
                }
            });
            stage.desktop.user<Manager>(frmManager, [](Manager& screen) {
                screen.cmdStopSync.userPress();
                screen.cmdIdentity.userPress();
                screen.cmdReset.userPress();
            });
            stage.library->ShowRoamingWorkstationManager();
        },
        [](Stage&) {});
}

}  // namespace
}  // namespace tsln::test
