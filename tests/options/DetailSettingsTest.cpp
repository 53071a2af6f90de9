#include "options/DetailSettings.h"
#include "options/ScanProducts.h"
#include "tests/options/Products.h"

namespace tsln::test {
namespace {

using options::DetailList;
using options::DetailSettings;

std::string loadOf(int location) {
    return "SELECT * FROM OptionDetailSettings WHERE Location = " + std::to_string(location) +
           " ORDER BY Sequence, OptionName";
}

std::string record(int ID, const char* name, const char* prefix, int sequence, bool show, bool bold = false) {
    return "<Record><ID>" + std::to_string(ID) + "</ID><OptionName>" + name + "</OptionName><Prefix>" +
           prefix + "</Prefix><Sequence>" + std::to_string(sequence) + "</Sequence><Show>" +
           (show ? "true" : "0") + "</Show><isBold>" + (bold ? "1" : "0") + "</isBold></Record>";
}

void furnish(Stage& stage) {
    stage.host->rows(loadOf(0), "<Records>" + record(11, "Room Location", "Room", 1, true, true) +
                                    record(12, "Pattern", "", 2, true) +
                                    record(13, "It&apos;s", "\xC3\x89t\xC3\xA9", 9999, false) +
                                    record(14, "Lift", "Lift", 9999, false) + "</Records>");
    stage.host->rows(loadOf(1), "<Records>" + record(21, "Mount", "Mount", 5, true) + "</Records>");
}

/// Opens the settings, acts, and returns what was written.
std::vector<std::string> written(Stage& stage, const std::function<void(DetailSettings&)>& act) {
    stage.desktop.user<DetailSettings>("frmOptionDetailSettings", act);
    stage.library->ShowOptionDetailSettings();
    return stage.host->callsOf("CurrentCompanyConn.Execute");
}

/// Runs a command of the popup by its caption; false when it is disabled.
bool command(Stage& stage, DetailSettings& screen, const std::string& caption) {
    const Command& popup = screen.cbContext.popups.front();
    for (const Command& offered : popup.commands) {
        std::string plain = offered.caption;
        std::erase(plain, '&');
        if (plain != caption) continue;
        stage.desktop.popupChoices = {offered.id};
        screen.cmdMore.userPress();
        return stage.desktop.popups.back()
            .commands[static_cast<std::size_t>(&offered - popup.commands.data())]
            .enabled;
    }
    ADD_FAILURE() << "no command " << caption;
    return false;
}

void select(DetailSettings& screen, std::initializer_list<std::size_t> rows) {
    screen.current().rptItems.userSelect(std::span(rows.begin(), rows.size()), *(rows.end() - 1));
}

std::string column(DetailSettings& screen, DetailList::Column which) {
    std::string texts;
    const ReportControl& items = screen.current().rptItems;
    for (std::size_t row = 0; row < items.rowCount(); ++row)
        texts += (row > 0 ? "|" : "") + std::string(items.rowText(row, which));
    return texts;
}

std::string update(int ID, const char* name, const char* prefix, int sequence, int show, int bold = 0) {
    return "UPDATE OptionDetailSettings SET Sequence = " + std::to_string(sequence) +
           ", Show = " + std::to_string(show) + ", OptionName = '" + name + "', Prefix = '" + prefix +
           "', isBold = " + std::to_string(bold) + " WHERE ID = " + std::to_string(ID);
}

std::string insertInto(int location, const char* name, int sequence) {
    return "INSERT INTO OptionDetailSettings (Location,Sequence,Show,OptionName,Prefix,isBold) VALUES(" +
           std::to_string(location) + "," + std::to_string(sequence) + ",1,'" + name + "','',0)";
}

TEST(DetailSettings, OnlyOKWritesWhatChangedOfBothTabs) {
    Stage stage;
    furnish(stage);
    const auto act = [&](DetailSettings& screen) {
        ReportControl& items = screen.current().rptItems;
        EXPECT_EQ(screen.lblRecords.caption(), "4 items");
        EXPECT_TRUE(items.style(0).bold);
        EXPECT_FALSE(items.style(1).bold);
        items.userEdit(0, DetailList::Prefix, "Rm '1'");
        items.userCheck(2, DetailList::Show, true);
        items.userEdit(1, DetailList::Sequence, "7");
        items.userEdit(1, DetailList::Sequence, "2");  // back again
        items.userEdit(1, DetailList::Name, "Other");  // stored options keep their names
        select(screen, {3});
        screen.cmdDelete.userPress();
        screen.cmdNew.userPress();
        EXPECT_EQ(screen.focusedControl(), &items) << "the cell that is edited takes the keys";
        EXPECT_EQ(items.takeEditRequest(), (ReportControl::Cell{3, DetailList::Name}));
        items.userEdit(3, DetailList::Name, " pattern ");
        EXPECT_EQ(stage.desktop.boxes.back().text, "This option already exists.");
        items.userEdit(3, DetailList::Name, " Lift 2 ");
        screen.TabControl1.userSelect(1);
        EXPECT_EQ(screen.lblRecords.caption(), "1 items");
        screen.current().rptItems.userEdit(0, DetailList::Sequence, "1");
        EXPECT_THAT(stage.host->callsOf("CurrentCompanyConn.Execute"), IsEmpty());
    };
    EXPECT_THAT(written(stage,
                        [&](DetailSettings& screen) {
                            act(screen);
                            screen.cmdCancel.userPress();
                        }),
                IsEmpty());
    const auto statements = written(stage, [&](DetailSettings& screen) {
        act(screen);
        screen.cmdOK.userPress();
        EXPECT_FALSE(screen.shown());
    });
    ASSERT_EQ(statements.size(), 5U);
    for (std::size_t i : {0, 1, 4})  // the connection reports the number of changed rows
        EXPECT_TRUE(statements[i].starts_with("UPDATE"));
    EXPECT_EQ(statements[0].substr(0, statements[0].rfind(", ")),
              update(11, "Room Location", "Rm ''1''", 1, 1, 1));
    EXPECT_EQ(statements[1].substr(0, statements[1].rfind(", ")),
              update(13, "It''s", "\xC3\x89t\xC3\xA9", 9999, 1));
    EXPECT_EQ(statements[2], insertInto(0, "Lift 2", 9999));
    EXPECT_EQ(statements[3], "DELETE FROM OptionDetailSettings WHERE ID = 14");
    EXPECT_EQ(statements[4].substr(0, statements[4].rfind(", ")), update(21, "Mount", "Mount", 1, 1));
}

TEST(DetailSettings, TheCommandsChangeTheRowsOfTheTab) {
    struct Case {
        const char* caption;
        DetailList::Column column;
        const char* rows;  // of that column, once the command has run with the second and fourth row selected
    };
    const Case cases[] = {
        {"Check All", DetailList::Show, "1|1|1|1"},
        {"Check Selected", DetailList::Show, "1|1|0|1"},
        {"Uncheck All", DetailList::Show, "0|0|0|0"},
        {"Uncheck Selected", DetailList::Show, "1|0|0|0"},
        {"Convert Prefixes to Lowercase", DetailList::Prefix, "room||\xC3\xA9t\xC3\xA9|lift"},
        {"Convert Prefixes to Uppercase", DetailList::Prefix, "ROOM||\xC3\x89T\xC3\x89|LIFT"},
        {"Add to Sequence", DetailList::Sequence, "1|2|9999|3"},
        {"Show only with Prefix", DetailList::Name, "Room Location|It's|Lift"},
        {"Show only without Prefix", DetailList::Name, "Pattern"},
        {"Show only Checked", DetailList::Name, "Room Location|Pattern"},
        {"Show only Unchecked", DetailList::Name, "It's|Lift"},
        {"Show All", DetailList::Name, "Room Location|Pattern|It's|Lift"},
        {"Delete All", DetailList::Name, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.caption);
        Stage stage;
        furnish(stage);
        written(stage, [&](DetailSettings& screen) {
            select(screen, {1, 3});
            EXPECT_TRUE(command(stage, screen, c.caption));
            EXPECT_EQ(column(screen, c.column), c.rows);
            const auto shown = std::to_string(screen.current().rptItems.rowCount());
            EXPECT_EQ(screen.lblRecords.caption(), shown + " items");
            screen.TabControl1.userSelect(1);
            EXPECT_EQ(column(screen, DetailList::Prefix), "Mount") << "the other tab stays";
            screen.cmdCancel.userPress();
        });
    }
    Stage stage;
    furnish(stage);
    written(stage, [&](DetailSettings& screen) {
        std::vector<std::string> captions;
        for (const Command& offered : screen.cbContext.popups.front().commands) {
            captions.push_back(offered.caption);
            std::erase(captions.back(), '&');
        }
        EXPECT_THAT(captions,
                    ElementsAre("Check All", "Check Selected", "Uncheck All", "Uncheck Selected",
                                "Convert Prefixes to Lowercase", "Convert Prefixes to Uppercase",
                                "Add to Sequence", "Show All", "Show only with Prefix",
                                "Show only without Prefix", "Show only Checked", "Show only Unchecked",
                                "Delete All", "Reset Sequencing", "Scan Products for Settings"));
        EXPECT_FALSE(command(stage, screen, "Check Selected")) << "nothing is selected";
    });
}

TEST(DetailSettings, FilterAndCommandsWorkTogether) {
    Stage stage;
    furnish(stage);
    written(stage, [&](DetailSettings& screen) {
        screen.txtFilter.userType("LIFT");
        EXPECT_EQ(column(screen, DetailList::Name), "Lift");
        EXPECT_EQ(screen.lblRecords.caption(), "1 items");
        command(stage, screen, "Check All");  // of the tab, not of the filter
        screen.txtFilter.userType("");
        EXPECT_EQ(column(screen, DetailList::Show), "1|1|1|1");
        screen.txtFilter.userType("oun");
        EXPECT_EQ(column(screen, DetailList::Name), "");
        screen.TabControl1.userSelect(1);
        EXPECT_EQ(column(screen, DetailList::Name), "Mount");
        screen.txtFilter.userType("x");
        screen.cmdNew.userPress();
        EXPECT_EQ(column(screen, DetailList::Name), "Mount|") << "a new row is never hidden";
        EXPECT_EQ(screen.txtFilter.text(), "");
        command(stage, screen, "Show only with Prefix");
        EXPECT_EQ(column(screen, DetailList::Name), "Mount");
        screen.TabControl1.userSelect(0);
        screen.cmdOK.userPress();
        EXPECT_EQ(stage.desktop.boxes.back().text, "You must enter an option name.");
        EXPECT_EQ(column(screen, DetailList::Name), "Mount|") << "the row without a name is shown";
        EXPECT_EQ(screen.TabControl1.selected(), 1);
        for (const char* number : {"1.5", "-1", "10000", "soon", ""}) {
            screen.current().rptItems.userEdit(0, DetailList::Sequence, number);
            EXPECT_EQ(screen.current().rptItems.rowText(0, DetailList::Sequence), "5") << number;
        }
        EXPECT_EQ(stage.desktop.boxes.back().text, "The sequence must be a whole number from 0 to 9999.");
        screen.cmdCancel.userPress();
    });
    EXPECT_EQ(stage.desktop.settings.count(
                  "Software\\Kestrane\\Tessaline\\5.0\\Column Layouts|TSLN5OptionDetails:2"),
              1U);
}

TEST(DetailSettings, ResetPutsTheFirstOptionsInSequenceAndWritesNothingBeforeOK) {
    Stage stage;
    furnish(stage);
    const auto statements = written(stage, [&](DetailSettings& screen) {
        command(stage, screen, "Reset Sequencing");
        EXPECT_EQ(column(screen, DetailList::Sequence), "1|2|9999|9999") << "No stops it";
        EXPECT_EQ(
            stage.desktop.boxes.back().text,
            "You are about to reset all sequencing for all option details - and reset the options on the Sequence "
            "tab. Are you sure you want to continue?");
        stage.desktop.answers = {MessageAnswer::Yes};
        screen.TabControl1.userSelect(1);
        command(stage, screen, "Reset Sequencing");
        EXPECT_EQ(column(screen, DetailList::Sequence), "9999");
        screen.TabControl1.userSelect(0);
        EXPECT_EQ(
            column(screen, DetailList::Name),
            "Room Location|Pattern|It's|Lift|Collection|Collection Type|Operating System|Design Option|Overall "
            "Width|Left Blind|Left Shade|Center Blind|Center Shade|Right Blind|Right Shade|Height|Overall "
            "Height|Blinds on Headrail|Finish");
        EXPECT_EQ(column(screen, DetailList::Sequence),
                  "1|16|9999|9999|2|3|4|5|6|7|8|9|10|11|12|13|14|15|17");
        EXPECT_THAT(stage.host->callsOf("CurrentCompanyConn.Execute"), IsEmpty());
        screen.cmdOK.userPress();
    });
    ASSERT_EQ(statements.size(), 17U);
    EXPECT_TRUE(statements[0].starts_with(update(12, "Pattern", "", 16, 1)));
    EXPECT_EQ(statements[1], insertInto(0, "Collection", 2));
    EXPECT_TRUE(statements[16].starts_with(update(21, "Mount", "Mount", 9999, 1)));
}

TEST(DetailSettings, AFailedRowIsToldWhileTheOthersAreSaved) {
    Stage stage;
    furnish(stage);
    bool fails = true;
    stage.host->on("CurrentCompanyConn.Execute", [&](Arguments a) -> Variant {
        const std::string sql = a[0].toText();
        if (fails &&
            (sql.find("'New'") != sql.npos || sql.find("'Pattern'") != sql.npos || sql.ends_with("= 14")))
            throw HostError(code::fail, "Connection", "in use");
        if (a.has(1)) a.assign(1, sql.ends_with("= 13") ? 0 : 1);  // another user has deleted 13
        return {};
    });
    written(stage, [&](DetailSettings& screen) {
        ReportControl& items = screen.current().rptItems;
        for (const char* name : {"New", "Newer"}) {
            screen.cmdNew.userPress();
            items.userEdit(items.rowCount() - 1, DetailList::Name, name);
        }
        command(stage, screen, "Uncheck All");
        items.userEdit(2, DetailList::Prefix, "gone");
        select(screen, {3});
        screen.cmdDelete.userPress();
        stage.host->rows(loadOf(0), "<Records>" + record(15, "newer", "", 9999, false) + "</Records>");
        screen.cmdOK.userPress();
        ASSERT_TRUE(screen.shown());
        const std::string last = std::string(", ") + explanation + ", object";
        EXPECT_THAT(stage.host->callsOf("ShowADOErrorMessage"),
                    ElementsAre("Option detail setting 'Pattern' could not be saved. (3738)" + last,
                                "Option detail setting 'It's' could not be saved. (3738)" + last,
                                "Option detail setting 'New' could not be saved. (3739)" + last,
                                "Option detail setting 'Lift' could not be deleted." + last));
        // What was saved is not written again, and a change of a row inserted meanwhile has its key.
        fails = false;
        stage.host->forget();
        items.userEdit(4, DetailList::Prefix, "N");
        select(screen, {2});
        screen.cmdDelete.userPress();
        screen.cmdOK.userPress();
        EXPECT_FALSE(screen.shown());
    });
    std::vector<std::string> rest = stage.host->callsOf("CurrentCompanyConn.Execute");
    ASSERT_EQ(rest.size(), 5U);
    EXPECT_TRUE(rest[0].starts_with(update(12, "Pattern", "", 2, 0)));
    EXPECT_TRUE(rest[1].starts_with("INSERT INTO OptionDetailSettings"));
    EXPECT_NE(rest[1].find("'New'"), std::string::npos);
    EXPECT_TRUE(rest[2].starts_with(update(15, "Newer", "N", 9999, 0)));
    EXPECT_EQ(rest[3], "DELETE FROM OptionDetailSettings WHERE ID = 14");
    EXPECT_EQ(rest[4], "DELETE FROM OptionDetailSettings WHERE ID = 13");
}

TEST(DetailSettings, AScanFromTheScreenAddsItsRowsAndKeepsTheChanges) {
    Stage stage;
    furnish(stage);
    const auto statements = written(stage, [&](DetailSettings& screen) {
        ReportControl& items = screen.current().rptItems;
        screen.cmdNew.userPress();
        items.userEdit(4, DetailList::Name, "Motor");
        items.userEdit(0, DetailList::Prefix, "mine");
        stage.host->rows(loadOf(0), "<Records>" + record(11, "Room Location", "theirs", 1, true) +
                                        record(31, "MOTOR", "Motor", 3, true) +
                                        record(32, "Trim", "Trim", 4, true, true) + "</Records>");
        command(stage, screen, "Scan Products for Settings");
        EXPECT_EQ(column(screen, DetailList::Name), "Room Location|Pattern|It's|Lift|Motor|Trim");
        EXPECT_TRUE(items.style(5).bold);
        screen.cmdOK.userPress();
    });
    EXPECT_EQ(stage.host->callsOf("catalog5engine.Engine.Initialize").size(), 1U);
    ASSERT_EQ(statements.size(), 2U);
    EXPECT_TRUE(statements[0].starts_with(update(11, "Room Location", "mine", 1, 1, 1)));
    EXPECT_TRUE(statements[1].starts_with(update(31, "Motor", "", 9999, 1))) << "it is not added twice";
}

TEST(DetailSettings, RightsLimitWhatCanBeDone) {
    for (const int right : {0, 8, 16, 32}) {
        SCOPED_TRACE(right);
        Stage stage;
        furnish(stage);
        stage.host->on("Security.CanDo", [right](Arguments a) {
            EXPECT_EQ(a[0].toLong(), 105);
            return Variant(a[1].toLong() == right);
        });
        written(stage, [&](DetailSettings& screen) {
            ReportControl& items = screen.current().rptItems;
            select(screen, {0});
            EXPECT_EQ(screen.cmdNew.enabled(), right == 8);
            EXPECT_EQ(screen.cmdDelete.enabled(), right == 32);
            EXPECT_EQ(items.canEdit({0, DetailList::Prefix}), right == 16);
            EXPECT_EQ(command(stage, screen, "Check Selected"), right == 16);
            EXPECT_EQ(command(stage, screen, "Add to Sequence"), right == 16);
            EXPECT_EQ(command(stage, screen, "Scan Products for Settings"), right == 8);
            EXPECT_FALSE(command(stage, screen, "Reset Sequencing")) << "it adds and edits";
            EXPECT_TRUE(command(stage, screen, "Show All"));
            EXPECT_EQ(command(stage, screen, "Delete All"), right == 32);
        });
    }
}

TEST(DetailSettings, EveryHostFaultIsReported) {
    sweepFaults([](Stage& stage) {
        Products products(stage);
        furnish(stage);
        stage.desktop.user<DetailSettings>("frmOptionDetailSettings", [&](DetailSettings& screen) {
            if (!screen.cmdOK.enabled() || !screen.cmdNew.enabled() ||
                screen.current().rptItems.rowCount() < 4 || !screen.lists[1].rptItems.rowCount()) {
                EXPECT_TRUE(stage.told() || stage.host->callsOf("Security.CanDo").size() == 3);
                return;
            }
            ReportControl& items = screen.current().rptItems;
            command(stage, screen, "Scan Products for Settings");
            screen.cmdNew.userPress();
            items.userEdit(items.rowCount() - 1, DetailList::Name, "New");
            items.userEdit(0, DetailList::Prefix, "mine");
            select(screen, {3});
            screen.cmdDelete.userPress();
            screen.cmdOK.userPress();
            if (screen.shown()) {
                EXPECT_TRUE(stage.told());
                EXPECT_EQ(items.rowText(0, DetailList::Prefix), items.canEdit({0, 2}) ? "mine" : "Room");
            }
        });
        stage.library->ShowOptionDetailSettings();
    });
}

}  // namespace
}  // namespace tsln::test
