#include "doubles/TempFolder.h"
#include "maintenance/ListScreen.h"
#include "maintenance/RecordDialog.h"
#include "tests/lists/Acts.h"
#include "tests/lists/Catalogue.h"

namespace tsln::test {
namespace {

using testing::ElementsAreArray;

std::string dialogName(const Member& m) {
    return m.screen + "_Edit";
}
std::string readStatement(const Member& m) {
    return "SELECT * FROM " + m.view + " WHERE ID = 7";
}
std::string readByDialog(const Member& m) {
    return "SELECT * FROM " + m.of.table + " WHERE ID = 7";
}
std::string deleteStatement(const Member& m) {
    return "DELETE FROM " + m.of.table + " WHERE ID = 7";
}
std::string rowSeven(const Member& m) {
    return "<Records><Record><ID>7</ID>" + m.row + "</Record></Records>";
}

/// A company with the member's row 7, and the recorded arguments of the call that moves references.
struct MemberStage : Stage {
    std::vector<std::string> moved;

    explicit MemberStage(const Member& m) {
        fill(*this, m);
        library->plugIn(Operation::ShowMoveReferences, [this](Library&, Arguments a) {
            moved.push_back(a[0].toText() + ", " + a[1].toText());
            return Variant(false);
        });
        library->plugIn(Operation::ShowSalesTaxGroupCodes, [](Library&, Arguments) { return Variant(true); });
    }
    static void fill(Stage& stage, const Member& m) {
        stage.host->rows(m.load, rowSeven(m));
        stage.host->rows(readStatement(m), rowSeven(m));
        stage.host->rows(readByDialog(m), rowSeven(m));
        // Enough rows of every kind, so that none is the last one.
        stage.host->on("Database.ExecuteScaler", [](Arguments a) {
            return Variant(a[0].toText().find(" WHERE ") == std::string::npos ? 5 : 0);
        });
    }
};

std::vector<std::string> rowTexts(const ListScreen& list, std::size_t row) {
    std::vector<std::string> cells;
    for (std::size_t c = 0; c < list.rptItems.columns.size(); ++c)
        cells.emplace_back(list.rptItems.rowText(row, c));
    return cells;
}

void typeAll(Screen& dialog, const Member& m) {
    for (const Member::Entry& entry : m.typed)
        enter(dialog, entry.control, entry.text);
}

TEST(Catalogue, OpensWithItsColumnsRowsRightsAndCommands) {
    for (const Member& m : catalogue) {
        SCOPED_TRACE(m.screen);
        MemberStage stage(m);
        stage.desktop.popupChoices = {0, 28250};
        stage.desktop.user<ListScreen>(m.screen, [&](ListScreen& list) {
            std::vector<std::string> captions;
            for (const auto& column : list.rptItems.columns)
                captions.push_back(column.caption);
            EXPECT_EQ(captions, m.columns);
            ASSERT_EQ(list.rptItems.rowCount(), 1U);
            EXPECT_EQ(rowTexts(list, 0), m.cells);
            selectAll(list.rptItems);
            EXPECT_TRUE(list.cmdEdit.enabled() && list.cmdDelete.enabled());
            list.cmdMore.userPress();
            list.cmdMore.userPress();
            list.cmdClose.userPress();
        });
        EXPECT_TRUE(open(stage, m.operations.open).toBoolean());
        EXPECT_EQ(stage.read().front(), m.load);

        std::vector<int> commands;
        for (const Command& command : stage.desktop.popups.at(0).commands)
            commands.push_back(command.id);
        std::vector<int> expected{28001, 28003, 28201, 28202};
        if (m.moveCode > 0) expected.push_back(28250);
        if (!m.package.empty()) expected.push_back(28251);
        EXPECT_EQ(commands, expected);

        const auto rights = stage.host->callsOf("Security.CanDo");
        if (m.area == 0) {
            EXPECT_THAT(rights, IsEmpty());
        } else {
            EXPECT_THAT(rights, AllOf(Contains(std::to_string(m.area) + ", 8"),
                                      Each(StartsWith(std::to_string(m.area) + ", "))));
        }
        if (m.moveCode > 0) {
            EXPECT_THAT(stage.moved, ElementsAre(std::to_string(m.moveCode) + ", 7"));
        } else {
            EXPECT_THAT(stage.moved, IsEmpty());
        }
    }
}

TEST(Catalogue, OffersItsDefaultsWhileItIsEmpty) {
    const TempFolder temp("tessaline-defaults-");
    temp.write("tsln5pkg.exe", "#");
    for (const Member& m : catalogue) {
        SCOPED_TRACE(m.screen);
        Stage stage;
        stage.host->on("Database.ExecuteScaler", Variant(5));  // there are tax codes
        stage.desktop.folder = temp.path();
        stage.desktop.answers = {MessageAnswer::Yes};
        stage.desktop.popupChoices = {28251};
        stage.desktop.user<ListScreen>(m.screen, [](ListScreen& list) { list.cmdMore.userPress(); });
        open(stage, m.operations.open);
        if (m.package.empty()) {
            EXPECT_THAT(stage.desktop.boxes, IsEmpty());
            EXPECT_THAT(stage.desktop.commandLines, IsEmpty());
            continue;
        }
        EXPECT_THAT(stage.desktop.boxes, ElementsAre(question(m.question)));
        const std::string commandLine =
            temp.file("tsln5pkg.exe") + " /Keys:" + m.package + " /PSD:\"/psd/company.psd\"";
        EXPECT_THAT(stage.desktop.commandLines, ElementsAre(commandLine, commandLine));
        EXPECT_THAT(stage.read(), ElementsAre(m.load, m.load, m.load));
    }
}

TEST(Catalogue, AddsAndEditsARow) {
    for (const Member& m : catalogue) {
        SCOPED_TRACE(m.screen);
        MemberStage stage(m);
        stage.host->on("Database.ExecuteNonQueryWithID", Variant(7));
        stage.desktop.user<RecordDialog>(dialogName(m), [&](RecordDialog& dialog) {
            EXPECT_EQ(dialog.caption(), m.newCaption);
            typeAll(dialog, m);
            dialog.cmdOK.userPress();
        });
        stage.desktop.user<RecordDialog>(dialogName(m), [&](RecordDialog& dialog) {
            EXPECT_EQ(dialog.caption(), m.editCaption);
            dialog.cmdOK.userPress();
        });
        stage.desktop.user<ListScreen>(m.screen, [&](ListScreen& list) {
            list.cmdNew.userPress();
            EXPECT_EQ(list.rptItems.rowCount(), 2U);
            list.cmdEdit.userPress();
            EXPECT_EQ(list.rptItems.rowCount(), 2U);
            EXPECT_EQ(rowTexts(list, 1), m.cells);
        });
        open(stage, m.operations.open);
        EXPECT_THAT(stage.inserted(), ElementsAre(m.insert));
        EXPECT_THAT(stage.executed(), ElementsAre(m.update));
        EXPECT_THAT(stage.read(), ElementsAre(m.load, readStatement(m), readByDialog(m), readStatement(m)));
        std::vector<Box> told;
        if (!m.toldOfNew.empty()) told.push_back(information(m.toldOfNew));
        EXPECT_EQ(stage.desktop.boxes, told);
    }
}

TEST(Catalogue, RefusesAnEmptyOrDuplicateNameAndReportsAFailedSave) {
    for (const Member& m : catalogue) {
        SCOPED_TRACE(m.screen);
        MemberStage stage(m);
        bool exists = true;
        stage.host->on("Common.RecordExists", [&](Arguments) { return Variant(exists); });
        stage.host->on("Database.ExecuteNonQueryWithID", Variant(0));
        const std::string& nameControl = m.typed.front().control;
        stage.desktop.user<RecordDialog>(dialogName(m), [&](RecordDialog& dialog) {
            typeAll(dialog, m);
            enter(dialog, nameControl, "   ");
            dialog.cmdOK.userPress();
            EXPECT_EQ(dialog.focusedControl(), dialog.control(nameControl));
            enter(dialog, nameControl, " O'Neil ");
            if (!m.duplicate.empty()) dialog.cmdOK.userPress();
            exists = false;
            dialog.cmdOK.userPress();
            EXPECT_TRUE(dialog.shown());
            dialog.cmdCancel.userPress();
        });
        EXPECT_EQ(open(stage, m.operations.edit, 0).toLong(), 0);

        std::vector<Box> told{exclamation(m.required)};
        std::vector<std::string> asked;
        if (!m.duplicate.empty()) {
            told.push_back(exclamation(m.duplicate));
            asked.assign(2, m.of.table + ", " + m.of.name + ", O'Neil, 0");
        }
        EXPECT_EQ(stage.desktop.boxes, told);
        EXPECT_EQ(stage.host->callsOf("Common.RecordExists"), asked);
        EXPECT_THAT(stage.inserted(), ElementsAre(m.insert));
        EXPECT_THAT(stage.failures(), ElementsAre(explained(m.saveFailure)));
    }
}

TEST(Catalogue, RefusesToDeleteAReferencedRow) {
    for (const Member& m : catalogue) {
        for (std::size_t i = 0; i < m.checks.size(); ++i) {
            SCOPED_TRACE(m.screen + " check " + std::to_string(i));
            MemberStage stage(m);
            stage.host->on("Database.ExecuteScaler", [&](Arguments a) {
                return Variant(a[0].toText() == m.checks[i].statement ? 3 : 0);
            });
            stage.desktop.user<ListScreen>(m.screen, [](ListScreen& list) {
                selectAll(list.rptItems);
                list.cmdDelete.userPress();
                EXPECT_EQ(list.rptItems.rowCount(), 1U);
            });
            open(stage, m.operations.open);
            // The counts after the first positive one are not read.
            std::vector<std::string> asked;
            for (std::size_t c = 0; c <= i; ++c)
                asked.push_back(m.checks[c].statement + ", , 0");
            EXPECT_EQ(stage.host->callsOf("Database.ExecuteScaler"), asked);
            EXPECT_THAT(stage.host->callsOf("ShowMessageStyle1"),
                        ElementsAre(m.checks[i].message + ", " + m.checks[i].advice));
            EXPECT_THAT(stage.executed(), IsEmpty());
        }
    }
}

TEST(Catalogue, DeletesARowAndReportsAFailedDelete) {
    for (const Member& m : catalogue) {
        if (m.deleteFailure.empty()) continue;
        SCOPED_TRACE(m.screen);
        MemberStage stage(m);
        int tries = 0;
        stage.host->on("Database.ExecuteNonQuery", [&](Arguments) { return Variant(++tries > 1); });
        stage.desktop.user<ListScreen>(m.screen, [](ListScreen& list) {
            selectAll(list.rptItems);
            list.cmdDelete.userPress();
            EXPECT_EQ(list.rptItems.rowCount(), 1U);
            list.cmdDelete.userPress();
            EXPECT_EQ(list.rptItems.rowCount(), 0U);
        });
        open(stage, m.operations.open);
        EXPECT_THAT(stage.executed(), ElementsAre(deleteStatement(m), deleteStatement(m)));
        EXPECT_THAT(stage.failures(), ElementsAre(explained(m.deleteFailure)));
        EXPECT_THAT(stage.desktop.boxes, IsEmpty());
    }
}

TEST(Catalogue, ExportsAndImports) {
    for (const Member& m : catalogue) {
        SCOPED_TRACE(m.screen);
        MemberStage stage(m);
        stage.desktop.popupChoices = {28003, 28001};
        stage.desktop.files = {"/out.xml", "/in.xml"};
        stage.desktop.user<ListScreen>(m.screen, [](ListScreen& list) {
            list.cmdMore.userPress();
            list.cmdMore.userPress();
        });
        open(stage, m.operations.open);
        if (m.listName.empty()) {
            EXPECT_THAT(stage.desktop.fileDialogs, IsEmpty());
            EXPECT_THAT(stage.desktop.boxes, IsEmpty());
            continue;
        }
        EXPECT_THAT(stage.host->callsOf("tslniee5.Engine.AddToExport"),
                    ElementsAre(m.listName + ", " + m.exportQuery));
        EXPECT_THAT(stage.host->callsOf("tslniee5.Engine.ImportFile"), ElementsAre("/in.xml, " + m.listName));
        EXPECT_THAT(stage.read(), ElementsAre(m.load, m.load));
    }
}

}  // namespace
}  // namespace tsln::test
