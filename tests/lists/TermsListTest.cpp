#include "doubles/Stage.h"
#include "doubles/TempFolder.h"
#include "maintenance/ListScreen.h"
#include "maintenance/RecordDialog.h"

namespace tsln::test {
namespace {

constexpr auto loadStatement = "SELECT * FROM Terms ORDER BY Terms";

std::string termsRow(int ID, const std::string& name, const std::string& dueDays = "30") {
    return "<Record><ID>" + std::to_string(ID) + "</ID><Terms>" + name + "</Terms><DueDays>" + dueDays +
           "</DueDays><Discount>0.02</Discount><DiscountDays>10</DiscountDays></Record>";
}

std::string records(std::initializer_list<std::string> rows) {
    std::string text = "<Records>";
    for (const std::string& row : rows)
        text += row;
    return text + "</Records>";
}

/// A stage whose company has three terms.
struct TermsStage : Stage {
    TermsStage() {
        host->rows(loadStatement,
                   records({termsRow(1, "COD", "0"), termsRow(2, "Net 15", "15"), termsRow(3, "Net 30")}));
    }
};

std::vector<std::string> names(const ListScreen& list) {
    std::vector<std::string> shown;
    for (std::size_t row = 0; row < list.rptItems.rowCount(); ++row)
        shown.emplace_back(list.rptItems.rowText(row, 0));
    return shown;
}

void select(ListScreen& list, std::vector<std::size_t> rows) {
    list.rptItems.userSelect(rows, rows.empty() ? std::nullopt : std::optional(rows.back()));
}

void grant(Stage& stage, std::vector<int> rights) {
    stage.host->on("Security.CanDo", [rights](Arguments a) {
        EXPECT_EQ(a[0].toLong(), 106);
        return Variant(std::ranges::find(rights, a[1].toLong()) != rights.end());
    });
}

TEST(TermsList, OffersTheDefaultsOnceWhileTheListIsEmpty) {
    const TempFolder temp;
    const std::string folder = temp.path() + "/";
    temp.write("tsln5pkg.exe", "#");
    struct Case {
        std::vector<int> rights;
        MessageAnswer answer;
        bool asked, installed;
    };
    for (const Case& c :
         {Case{{8, 16}, MessageAnswer::Yes, true, true}, Case{{8, 16}, MessageAnswer::No, true, false},
          Case{{8}, MessageAnswer::Yes, false, false}, Case{{16}, MessageAnswer::Yes, false, false}}) {
        Stage stage;
        grant(stage, c.rights);
        stage.desktop.folder = folder;
        stage.desktop.answers = {c.answer};
        stage.desktop.whileProcessRuns = [&] {
            stage.host->rows(loadStatement, records({termsRow(1, "Net 10")}));
        };
        stage.desktop.user<ListScreen>("frmTerms", [&](ListScreen& list) {
            list.activate();  // activation after a dialog neither loads nor asks again
            EXPECT_EQ(list.rptItems.rowCount(), c.installed ? 1U : 0U);
        });
        stage.library->ShowTerms();
        EXPECT_EQ(stage.desktop.boxes.size(), c.asked ? 1U : 0U);
        if (c.asked) {
            EXPECT_EQ(stage.desktop.boxes[0], question("Would you like to install the default terms?"));
        }
        EXPECT_EQ(stage.read().size(), c.installed ? 2U : 1U);
        if (c.installed) {
            EXPECT_THAT(
                stage.desktop.commandLines,
                ElementsAre("\"" + folder + "tsln5pkg.exe\" /Keys:TSLN50_Terms /PSD:\"/psd/company.psd\""));
        } else {
            EXPECT_THAT(stage.desktop.commandLines, IsEmpty());
        }
    }
}

TEST(TermsList, ButtonsFollowSelectionAndRights) {
    struct Case {
        std::vector<int> rights;
        bool canNew, canEdit, canDelete;
    };
    for (const Case& c : {Case{{8, 16, 32}, true, true, true}, Case{{}, false, false, false},
                          Case{{16}, false, true, false}, Case{{8, 32}, true, false, true}}) {
        TermsStage stage;
        grant(stage, c.rights);
        stage.desktop.user<ListScreen>("frmTerms", [&](ListScreen& list) {
            EXPECT_EQ(list.cmdNew.enabled(), c.canNew);
            EXPECT_FALSE(list.cmdEdit.enabled() || list.cmdDelete.enabled()) << "nothing is selected";
            select(list, {1});
            EXPECT_EQ(list.cmdEdit.enabled(), c.canEdit);
            EXPECT_EQ(list.cmdDelete.enabled(), c.canDelete);
            // With several rows selected, Edit opens the focused one.
            select(list, {0, 2});
            EXPECT_EQ(list.cmdEdit.enabled(), c.canEdit);
            // A selection without a focused row can be deleted, but not edited.
            list.rptItems.userSelect(std::vector<std::size_t>{0}, std::nullopt);
            EXPECT_FALSE(list.cmdEdit.enabled());
            EXPECT_EQ(list.cmdDelete.enabled(), c.canDelete);
            select(list, {});
            EXPECT_FALSE(list.cmdEdit.enabled());
            EXPECT_FALSE(list.cmdDelete.enabled());
            // Keys and double clicks do not bypass a disabled button.
            list.rptItems.userDoubleClick(0);
            list.rptItems.userDeleteKey();
            if (!c.canNew) list.rptItems.userInsertKey();
        });
        EXPECT_FALSE(stage.library->ShowTerms()) << "closed by the close box";
        EXPECT_THAT(stage.desktop.shown, ElementsAre("frmTerms"));
        EXPECT_THAT(stage.executed(), IsEmpty());
    }
}

TEST(TermsList, GroupRowsCannotBeEditedOrDeleted) {
    TermsStage stage;
    stage.desktop.user<ListScreen>("frmTerms", [](ListScreen& list) {
        list.rptItems.groupBy(1);
        ASSERT_EQ(list.rptItems.rowCount(), 6U);
        ASSERT_TRUE(list.rptItems.row(0).isGroup());
        select(list, {0});
        EXPECT_FALSE(list.cmdEdit.enabled());
        EXPECT_FALSE(list.cmdDelete.enabled());
        select(list, {0, 1, 2, 3});
        list.cmdDelete.userPress();
    });
    stage.library->ShowTerms();
    EXPECT_THAT(stage.executed(),
                ElementsAre("DELETE FROM Terms WHERE ID = 1", "DELETE FROM Terms WHERE ID = 2"));
}

TEST(ListScreen, ReferencedRowsAreRefusedWithTheirCountAndTheOthersDeleted) {
    const DeletionCheck checks[] = {
        {"SELECT COUNT(*) AS MyCount FROM Customers WHERE TermsID = {0}",
         "<Bold>{0}</Bold> has {1} customers.", "Remove it there."},
        {"SELECT COUNT(*) AS MyCount FROM Orders WHERE TermsID = {0}", "<Bold>{0}</Bold> has {1} orders.",
         "There."},
    };
    ListDescription guarded = lists::termsList;
    guarded.deletionChecks.assign(std::begin(checks), std::end(checks));
    TermsStage stage;
    stage.host->on("Database.ExecuteScaler", [](Arguments a) {
        return Variant(a[0].toText().ends_with("Customers WHERE TermsID = 2") ? 7 : 0);
    });
    stage.desktop.user<ListScreen>("frmTerms", [](ListScreen& list) {
        select(list, {0, 1, 2});
        list.cmdDelete.userPress();
        EXPECT_THAT(names(list), ElementsAre("Net 15"));
    });
    showList(*stage.library, guarded);
    EXPECT_THAT(stage.host->callsOf("ShowMessageStyle1"),
                ElementsAre("<Bold>Net 15</Bold> has 7 customers., Remove it there."));
    EXPECT_THAT(stage.host->callsOf("Database.ExecuteScaler"),
                ElementsAre("SELECT COUNT(*) AS MyCount FROM Customers WHERE TermsID = 1, , 0",
                            "SELECT COUNT(*) AS MyCount FROM Orders WHERE TermsID = 1, , 0",
                            "SELECT COUNT(*) AS MyCount FROM Customers WHERE TermsID = 2, , 0",
                            "SELECT COUNT(*) AS MyCount FROM Customers WHERE TermsID = 3, , 0",
                            "SELECT COUNT(*) AS MyCount FROM Orders WHERE TermsID = 3, , 0"));

    // An answer that is no count is not taken for none.
    for (const Variant& answer : {Variant(), Variant(false), Variant("many")}) {
        TermsStage failing;
        failing.host->on("Database.ExecuteScaler", answer);
        failing.desktop.user<ListScreen>("frmTerms", [](ListScreen& list) {
            select(list, {0});
            list.cmdDelete.userPress();
        });
        showList(*failing.library, guarded);
        EXPECT_THAT(failing.executed(), IsEmpty());
        EXPECT_TRUE(failing.told());
    }
}

TEST(ListScreen, LooksBusyWhileLoadingAndRunsNoCommandWithoutItsRight) {
    TermsStage stage;
    grant(stage, {16});
    std::vector<std::string> captions;
    stage.desktop.onYield = [&] {
        if (auto* list = dynamic_cast<ListScreen*>(&*stage.library->screens().instance("frmTerms", [&] {
                return std::make_shared<ListScreen>(*stage.library, lists::termsList);
            }))) {
            captions.push_back(list->caption() + (list->pointerBusy() ? "*" : "") +
                               (list->cmdClose.enabled() ? "" : "!"));
        }
    };
    stage.host->on("Database.ExecuteRead", raises("gone"));
    stage.desktop.user<ListScreen>("frmTerms", [](ListScreen& list) {
        EXPECT_EQ(list.caption(), "Terms");
        EXPECT_TRUE(list.cmdClose.enabled());
        list.userClose();
        EXPECT_FALSE(list.shown()) << "the close box works again";
    });
    stage.library->ShowTerms();
    EXPECT_THAT(captions, ElementsAre("Terms", "Terms (Busy...)*!"));
    EXPECT_THAT(stage.failures(), ElementsAre("The last action could not be completed., , gone"));
}

TEST(TermsList, MoreCommandsAreBuiltUpdatedAndExecuted) {
    TermsStage stage;
    grant(stage, {8, 16});
    stage.desktop.popupChoices = {0, 28201, 28250, 28251};
    stage.desktop.user<ListScreen>("frmTerms", [](ListScreen& list) {
        select(list, {1});
        for (int i = 0; i < 4; ++i)
            list.cmdMore.userPress();
        list.userHelp();
        list.cmdHelp.userPress();
    });
    stage.library->ShowTerms();

    std::vector<std::string> commands;
    for (const Command& c : stage.desktop.popups.at(0).commands) {
        commands.push_back(std::to_string(c.id) + " " + c.caption + (c.enabled ? "" : " (off)"));
    }
    EXPECT_EQ(stage.desktop.popups.at(0).id, 28200);
    EXPECT_THAT(commands, ElementsAre("28001 &Import...", "28003 &Export...", "28201 &Print...",
                                      "28202 &Save...", "28250 &Move References", "28251 I&nstall Defaults"));
    EXPECT_THAT(stage.desktop.printed, ElementsAre("Terms"));
    EXPECT_EQ(stage.desktop.boxes.at(0).text, "The TSLN 5 Package Processor cannot be found.");
    EXPECT_THAT(stage.desktop.shown, ElementsAre("frmTerms", "frmMoveListReferences"));
    ASSERT_EQ(stage.desktop.help.size(), 2U);
    EXPECT_EQ(stage.desktop.help[0].file, "UI Reference.chm");
    EXPECT_EQ(stage.desktop.help[1].context, 40);
}

TEST(TermsList, ADamagedResultLeavesTheShownRows) {
    TermsStage stage;
    grant(stage, {8, 16});
    stage.desktop.popupChoices = {28251};
    stage.desktop.user<ListScreen>("frmTerms", [&](ListScreen& list) {
        select(list, {1});
        std::string damaged = "<Records>";
        for (int ID = 1; ID <= 200; ++ID)
            damaged += termsRow(ID, "Net");
        stage.host->rows(loadStatement, damaged + "<Record><ID>201</Record></Records>");
        list.cmdMore.userPress();
        EXPECT_THAT(names(list), ElementsAre("COD", "Net 15", "Net 30"));
        EXPECT_THAT(list.rptItems.selectedRows(), ElementsAre(1));
    });
    stage.library->ShowTerms();
    EXPECT_EQ(stage.failures().size(), 1U);
}

TEST(TermsList, ADisabledCommandIsNotExecuted) {
    TermsStage stage;
    grant(stage, {8});
    stage.desktop.popupChoices = {28001, 28251, 28250};
    stage.desktop.user<ListScreen>("frmTerms", [](ListScreen& list) {
        for (int i = 0; i < 3; ++i)
            list.cmdMore.userPress();
    });
    stage.library->ShowTerms();
    for (const int id : {28001, 28250, 28251}) {
        const auto& commands = stage.desktop.popups.at(0).commands;
        EXPECT_FALSE(std::ranges::find(commands, id, &Command::id)->enabled) << id;
    }
    EXPECT_THAT(stage.desktop.fileDialogs, IsEmpty());
    EXPECT_THAT(stage.desktop.boxes, IsEmpty());
    EXPECT_EQ(stage.read().size(), 1U);
}

TEST(TermsList, TheWindowPositionIsKept) {
    const std::string key = "Software\\Kestrane\\Tessaline\\5.0\\Window Positions\\frmTerms|";
    TermsStage stage;
    stage.desktop.settings = {
        {key + "Left", "40"}, {key + "Width", "no number"}, {key + "Height", "99999999999999"}};
    stage.desktop.user<ListScreen>("frmTerms", [](ListScreen& list) {
        EXPECT_EQ(list.placement.left, 40);
        EXPECT_EQ(list.placement.width, std::nullopt);
        EXPECT_EQ(list.placement.height, std::nullopt);
        list.placement.width = 640;
    });
    stage.library->ShowTerms();
    EXPECT_EQ(stage.desktop.settings[key + "Left"], "40");
    EXPECT_EQ(stage.desktop.settings[key + "Width"], "640");
}

TEST(TermsList, TheRowsAreSavedAsTextAsTheyAreShown) {
    const TempFolder temp;
    TermsStage stage;
    stage.host->rows(loadStatement,
                     records({termsRow(1, "Net &quot;A&quot;&amp;#13;&amp;#10;B"), termsRow(2, "COD")}));
    stage.desktop.popupChoices = {28202, 28202, 28202};
    stage.desktop.files = {temp.file("terms saved.txt"), temp.file("no such folder/terms.txt")};
    stage.desktop.user<ListScreen>("frmTerms", [](ListScreen& list) {
        list.rptItems.userClickHeader(0);
        for (int i = 0; i < 3; ++i)
            list.cmdMore.userPress();
    });
    stage.library->ShowTerms();
    EXPECT_EQ(
        temp.textOf("terms saved.txt"),
        "Terms\tDueDays\tDiscount\tDiscountDays\r\nCOD\t30\t0.02\t10\r\nNet \"A\"  B\t30\t0.02\t10\r\n");
    EXPECT_THAT(stage.desktop.boxes,
                ElementsAre(ScriptedDesktop::Box{"Unable to write the file. (1472)", MessageButtons::Ok,
                                                 MessageIcon::Critical}));
    EXPECT_EQ(stage.desktop.fileDialogs.at(0).title, "Save As");
    EXPECT_THAT(stage.desktop.fileDialogs.at(0).filters,
                ElementsAre("Text Files|*.txt", "All Files (*.*)|*.*"));
}

TEST(TermsList, EveryHostFaultIsReportedAndLeavesTheListUsable) {
    for (const bool empty : {true, false}) {
        sweepFaults(
            [&](Stage& stage) {
                if (!empty)
                    stage.host->rows(loadStatement, records({termsRow(1, "COD"), termsRow(2, "Net 15")}));
                stage.desktop.answers = {MessageAnswer::Yes};
                stage.desktop.popupChoices = {28001, 28003, 28250, 28251};
                stage.desktop.files = {"in.xml", "out.xml"};
                for (int i = 0; i < 2; ++i) {
                    stage.desktop.user<RecordDialog>("frmTerms_Edit", [](RecordDialog& dialog) {
                        if (dialog.ID > 0) return dialog.cmdCancel.userPress();
                        dialog.textBox("txtTerms").userType("Net 60");
                        dialog.cmdOK.userPress();
                    });
                }
                stage.desktop.user<ListScreen>("frmTerms", [](ListScreen& list) {
                    list.cmdNew.userPress();
                    for (int i = 0; i < 4; ++i)
                        list.cmdMore.userPress();
                    if (list.rptItems.rowCount() > 0) select(list, {0});
                    list.cmdEdit.userPress();
                    list.cmdDelete.userPress();
                    EXPECT_FALSE(list.pointerBusy());
                    EXPECT_EQ(list.caption(), "Terms");
                    EXPECT_TRUE(list.cmdClose.enabled());
                    list.cmdClose.userPress();
                });
                EXPECT_TRUE(stage.library->ShowTerms());
            },
            [](Stage& stage) { EXPECT_TRUE(stage.told()); });
    }
}

}  // namespace
}  // namespace tsln::test
