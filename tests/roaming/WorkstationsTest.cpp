#include "doubles/Stage.h"
#include "roaming/ResetDateDialog.h"
#include "roaming/WorkstationDialog.h"
#include "roaming/WorkstationsList.h"

namespace tsln::test {
namespace {

using roaming::ResetDateDialog;
using roaming::WorkstationDialog;
using roaming::WorkstationsList;

constexpr auto frmList = "frmRoamingWorkstations";
constexpr auto frmDialog = "frmRoamingWorkstations_Edit";
constexpr auto frmDate = "frmRoamingWorkstations_ResetDate";
constexpr auto notEnabled =
    "You have not enabled synchronization for this company. Are you sure you want to continue?";
constexpr auto noComputer =
    "You have not indicated what computer will be responsible for syncing this company. Are you sure you want to continue?";
constexpr auto settings = "Software\\Kestrane\\Tessaline\\5.0|";

std::string row(int ID, int state) {
    return "<Record><ID>" + std::to_string(ID) + "</ID><Name>W" + std::to_string(ID) +
           "</Name><EmployeeName>Ann O'Dell</EmployeeName><SyncState>" + std::to_string(state) +
           "</SyncState><LastSentTo>2011-03-04T10:20:30</LastSentTo></Record>";
}

/// A host with three workstations, two of them in one state, and the answer Yes to its questions.
void furnish(Stage& stage) {
    RecordingHost& host = *stage.host;
    host.rows("SELECT * FROM vwScreen_RoamingWorkstations ORDER BY Name",
              "<Records>" + row(1, 4) + row(2, 0) + row(3, 4) + "</Records>");
    host.rows("SELECT * FROM vwScreen_RoamingWorkstations WHERE ID = 2",
              "<Records>" + row(2, 1) + "</Records>");
    host.rows(
        "SELECT * FROM RoamingWorkstations WHERE ID = 2",
        "<Records><Record><ID>2</ID><Name>W2</Name><Description>d</Description><AssignedTo>7</AssignedTo>"
        "<ReferenceCode>12</ReferenceCode></Record></Records>");
    host.on("Common.GetFriendlySyncState",
            [](Arguments a) { return Variant("State " + std::to_string(a[0].toLong())); });
    host.on("Common.GetEmployeeName", Variant("Gone, Guy"));
    host.on("Common.LoadSalesReps", fills({{"Ann O'Dell", 5}}));
    host.on("ShowMessageStyle1", Variant(6));
    host.on("Database.ExecuteScaler", [](Arguments a) {
        const std::string sql = a[0].toText();
        return sql.starts_with("SELECT UniqueID") ? Variant("CODE-" + sql.substr(sql.rfind(' ') + 1))
                                                  : Variant(0);
    });
}

struct RoamingStage : Stage {
    RoamingStage() { furnish(*this); }
    void list(const std::function<void(WorkstationsList&)>& act) {
        desktop.user<WorkstationsList>(frmList, act);
        library->ShowRoamingWorkstations();
    }
    std::int32_t edit(std::int32_t ID, const std::function<void(WorkstationDialog&)>& act) {
        desktop.user<WorkstationDialog>(frmDialog, act);
        return library->ShowEditRoamingWorkstation(ID);
    }
};

TEST(RoamingWorkstations, AreListedWithStatusAndDates) {
    RoamingStage stage;
    stage.list([&](WorkstationsList& list) {
        EXPECT_EQ(list.rptItems.columns[5].caption, "Last Known Version");
        const auto shown = [&](std::size_t r, std::size_t c) {
            return std::string(list.rptItems.rowText(r, c));
        };
        EXPECT_EQ(shown(0, 1) + ", " + shown(0, 2) + ", " + shown(0, 3) + ", " + shown(0, 4),
                  "Ann O'Dell, State 4, 3/4/2011 10:20:30 AM, ");
        EXPECT_EQ(shown(1, 2), "State 0");
        EXPECT_THAT(stage.host->callsOf("Common.GetFriendlySyncState"), SizeIs(2)) << "each state once";
        stage.desktop.user<WorkstationDialog>(frmDialog,
                                              [](WorkstationDialog& dialog) { dialog.cmdOK.userPress(); });
        list.rptItems.userSelect({{1}}, 1);
        list.cmdEdit.userPress();
        EXPECT_EQ(shown(1, 2), "State 1") << "the changed row is read again";
        list.cmdHelp.userPress();
    });
    EXPECT_EQ(stage.desktop.help.at(0).file, "UI Reference.chm");
}

TEST(RoamingWorkstations, AreDeletedAfterAQuestionUntilOneCannotBe) {
    RoamingStage stage;
    stage.host->on("Database.ExecuteNonQuery",
                   [](Arguments a) { return Variant(a[0].toText().ends_with("= 1")); });
    stage.list([&](WorkstationsList& list) {
        list.rptItems.userSelectAll();
        list.cmdDelete.userPress();
        EXPECT_EQ(list.rptItems.rowCount(), 2U);
        stage.host->on("ShowMessageStyle1", Variant(7));
        list.cmdDelete.userPress();
        EXPECT_EQ(list.rptItems.rowCount(), 2U) << "the answer was No";
    });
    EXPECT_THAT(stage.executed(), ElementsAre("DELETE FROM RoamingWorkstations WHERE ID = 1",
                                              "DELETE FROM RoamingWorkstations WHERE ID = 2"));
    EXPECT_THAT(stage.host->callsOf("RecordEvent"), ElementsAre(HasSubstr("'W1' [CODE-1]")));
    EXPECT_THAT(stage.failures(),
                ElementsAre(HasSubstr("deleting one or more roaming workstations., {standard explanation}")));
}

TEST(RoamingWorkstations, OptionsAreAskedAboutAndStoredOnClosing) {
    const struct {
        bool enable, responsible;
        std::deque<MessageAnswer> answers;
        std::vector<std::string> asked;
        bool closed;
    } cases[] = {
        {true, true, {}, {}, true},
        {false, true, {MessageAnswer::Yes}, {notEnabled}, true},
        {true, false, {MessageAnswer::Yes}, {noComputer}, true},
        {false, false, {MessageAnswer::Yes, MessageAnswer::Yes}, {notEnabled, noComputer}, true},
        {false, true, {MessageAnswer::No}, {notEnabled}, false},
        {true, false, {MessageAnswer::No}, {noComputer}, false},
    };
    for (const auto& c : cases) {
        RoamingStage stage;
        stage.desktop.answers = c.answers;
        stage.list([&](WorkstationsList& list) {
            list.chkEnableSync.userCheck(c.enable);
            list.chkStartAgent.userCheck(true);
            if (c.responsible) list.cmdThisComputer.userPress();
            list.cmdClose.userPress();
            EXPECT_EQ(list.shown(), !c.closed);
            EXPECT_EQ(stage.texts(), c.asked);
            const auto stored = stage.host->callsOf("Options.SetCompanyOption");
            EXPECT_EQ(stored.empty(), !c.closed);
            if (!c.closed) return;
            EXPECT_THAT(stored, ElementsAre("EnableSync, Roaming Workstations, " + std::to_string(c.enable),
                                            "StartAgent, Roaming Workstations, 1",
                                            "DebugSyncAgent, Roaming Workstations, 0",
                                            "SyncComputerName, Roaming Workstations, " +
                                                std::string(c.responsible ? "FRONT-DESK" : "")));
            const std::string setting = std::string(settings) + "StartAgent";
            EXPECT_EQ(stage.desktop.settings.at(setting), c.responsible ? "1" : "0")
                << "the agent starts on the responsible computer only";
        });
        EXPECT_THAT(stage.host->callsOf("ShowMessageStyle1"), SizeIs(c.responsible ? 1 : 0));
    }
}

TEST(RoamingWorkstations, StoredOptionsAreShownAndKeptWithoutTheRightToChangeThem) {
    for (const bool mayEdit : {true, false}) {
        RoamingStage stage;
        stage.host->on("Security.CanDo", [&](Arguments a) {
            return Variant(a[0].toLong() == 502 && (mayEdit || a[1].toLong() != 16));
        });
        stage.host->on("Options.GetCompanyOption", [](Arguments a) {
            EXPECT_EQ(a[1].toText(), "Roaming Workstations");
            return a[0].toText() == "SyncComputerName" ? Variant("BACK-OFFICE")
                                                       : Variant(a[0].toText() == "StartAgent" ? "0" : "1");
        });
        stage.list([&](WorkstationsList& list) {
            EXPECT_TRUE(list.chkEnableSync.checked() && list.chkDebugSyncAgent.checked());
            EXPECT_FALSE(list.chkStartAgent.checked());
            EXPECT_THAT(list.lblSyncComputer.caption(), HasSubstr("BACK-OFFICE"));
            EXPECT_EQ(list.chkEnableSync.enabled(), mayEdit);
            list.rptItems.userSelect({{0}}, 0);
            EXPECT_EQ(list.cmdResetDate.enabled(), mayEdit);
            stage.host->on("ShowMessageStyle1", Variant(7));
            list.cmdThisComputer.userPress();
            EXPECT_THAT(list.lblSyncComputer.caption(), HasSubstr("BACK-OFFICE")) << "the answer was No";
            list.userClose();
        });
        EXPECT_THAT(stage.host->callsOf("ShowMessageStyle1"), SizeIs(mayEdit ? 1 : 0));
        EXPECT_THAT(stage.host->callsOf("Options.SetCompanyOption"), SizeIs(mayEdit ? 4 : 0));
        EXPECT_THAT(stage.desktop.boxes, IsEmpty());
    }
}

TEST(RoamingWorkstations, TheDateOfTheLastSendIsSetBackToAPastDay) {
    RoamingStage stage;
    stage.list([&](WorkstationsList& list) {
        list.rptItems.userSelect({{1}}, 1);
        for (const char* date : {"None", "no date", "1/1/2999", "3/4/2011"}) {
            stage.desktop.user<ResetDateDialog>(frmDate, [&](ResetDateDialog& dialog) {
                dialog.dtResetDate.userType(date);
                dialog.cmdOK.userPress();
                EXPECT_EQ(dialog.shown(), std::string(date) != "3/4/2011");
                if (dialog.shown()) dialog.cmdCancel.userPress();
            });
            list.cmdResetDate.userPress();
        }
        EXPECT_EQ(list.rptItems.rowText(1, 2), "State 1") << "the row is read again";
    });
    EXPECT_THAT(stage.executed(),
                ElementsAre("UPDATE RoamingWorkstations SET LastSentTo = '3/4/2011' WHERE ID = 2"));
}

TEST(RoamingWorkstation, IsValidatedInOrder) {
    constexpr auto wrongCode = "You must enter a reference code between 10 and 99.";
    const struct {
        const char *name, *code, *taken, *told;
    } cases[] = {
        {"  ", "5", "", "You must enter a valid name."},
        {"W", "5", "Name", "A roaming workstation with this name already exists."},
        {"W", "", "", wrongCode},
        {"W", "9", "", wrongCode},
        {"W", "09", "", wrongCode},
        {"W", "100", "", wrongCode},
        {"W", "-5", "", wrongCode},
        {"W", "1e", "", wrongCode},
        {"W", "10", "ReferenceCode", "A roaming workstation with this reference code already exists."},
        {"W", "99", "", nullptr},
    };
    for (const auto& c : cases) {
        RoamingStage stage;
        stage.host->on("Common.RecordExists", [&](Arguments a) {
            EXPECT_EQ(a[0].toText(), "RoamingWorkstations");
            return Variant(a[1].toText() == c.taken);
        });
        stage.edit(0, [&](WorkstationDialog& dialog) {
            EXPECT_EQ(dialog.textBox("txtReferenceCode").maxLength, 2U);
            dialog.textBox("txtName").userType(c.name);
            dialog.textBox("txtReferenceCode").userType(c.code);
            dialog.cmdOK.userPress();
            EXPECT_EQ(dialog.shown(), c.told != nullptr) << c.code;
        });
        EXPECT_EQ(stage.texts(), c.told ? std::vector<std::string>{c.told} : std::vector<std::string>());
    }
}

TEST(RoamingWorkstation, IsSavedAndHandsOutItsIdentityCodeUntilItIsSetUp) {
    RoamingStage stage;
    stage.host->on("Database.ExecuteNonQueryWithID", Variant(9));
    const auto fill = [](WorkstationDialog& dialog) {
        dialog.textBox("txtName").userType(" Ann's <d> ");
        dialog.textBox("txtDescription").userType("a 'b' <id>");
        dialog.comboBox("cboAssignedTo").userChoose(0);
        dialog.textBox("txtReferenceCode").userType("42");
        dialog.cmdOK.userPress();
    };
    EXPECT_EQ(stage.edit(0, fill), 9);
    EXPECT_THAT(stage.inserted(),
                ElementsAre("INSERT INTO RoamingWorkstations (Name,Description,AssignedTo,ReferenceCode) "
                            "VALUES('Ann''s a ''b'' <id>', 'a ''b'' <id>', 5, 42)"));
    EXPECT_EQ(stage.desktop.clipboard, "CODE-9");
    EXPECT_THAT(stage.host->callsOf("ShowMessageStyle1"),
                ElementsAre(HasSubstr("This identity code has been copied to the clipboard.")));

    stage.host->on("Database.ExecuteScaler", Variant(1));
    stage.desktop.clipboard = "kept";
    EXPECT_EQ(stage.edit(2,
                         [](WorkstationDialog& dialog) {
                             EXPECT_EQ(dialog.caption(), "Edit Roaming Workstation");
                             EXPECT_EQ(dialog.comboBox("cboAssignedTo").text(), "Gone, Guy")
                                 << "no sales representative any more, but not forgotten";
                             dialog.cmdOK.userPress();
                         }),
              2);
    EXPECT_THAT(stage.executed(),
                ElementsAre("UPDATE RoamingWorkstations SET Name = 'W2', Description = 'd', AssignedTo =  7, "
                            "ReferenceCode = 12 WHERE ID = 2"));
    EXPECT_EQ(stage.desktop.clipboard, "kept") << "the workstation is set up";

    stage.host->on("Database.ExecuteNonQuery", Variant(false));
    stage.edit(2, [](WorkstationDialog& dialog) {
        dialog.cmdOK.userPress();
        EXPECT_TRUE(dialog.shown());
    });
    EXPECT_THAT(stage.failures(), SizeIs(1));
}

}  // namespace
}  // namespace tsln::test
