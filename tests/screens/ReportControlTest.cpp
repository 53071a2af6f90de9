#include <array>
#include <random>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doubles/QuietDesktop.h"
#include "screens/ReportControl.h"
#include "screens/Screen.h"

namespace tsln {
namespace {

using testing::ElementsAre;

class ListOnly : public Screen {
  public:
    explicit ListOnly(Desktop& desktop) : Screen(desktop, "frmListOnly") {}
    Layout layout() override { return layout::fill(list); }
    ReportControl list{*this, "list"};
};

class ReportControlTest : public testing::Test {
  protected:
    ReportControlTest() {
        list.columns = {{.caption = "Name"}, {.caption = "Days", .numeric = true}, {.caption = "Kind"}};
    }
    void add(std::int32_t id, std::string_view name, std::string_view days = "", std::string_view kind = "") {
        const std::string_view cells[] = {name, days, kind};
        list.addRecord(id, cells);
    }
    std::vector<std::string> shown(std::size_t column = 0) {
        std::vector<std::string> texts;
        for (std::size_t row = 0; row < list.rowCount(); ++row)
            texts.emplace_back(list.rowText(row, column));
        return texts;
    }

    test::QuietDesktop desktop;
    ListOnly screen{desktop};
    ReportControl& list = screen.list;
};

TEST_F(ReportControlTest, SortsTextIgnoringLetterCaseAndNumbersByValue) {
    add(1, "net 30", "30");
    add(2, "COD", "");
    add(3, "Net 15", "9");
    add(4, "cod", "100");
    list.populate();
    EXPECT_THAT(shown(), ElementsAre("net 30", "COD", "Net 15", "cod"))
        << "the order in which they were added";
    list.userClickHeader(0);
    EXPECT_THAT(shown(), ElementsAre("COD", "cod", "Net 15", "net 30"));
    list.userClickHeader(0);
    EXPECT_THAT(shown(), ElementsAre("net 30", "Net 15", "COD", "cod")) << "equal rows keep their order";
    list.userClickHeader(1);
    EXPECT_THAT(shown(1), ElementsAre("", "9", "30", "100"));
    list.userClickHeader(99);
    list.sortBy(std::nullopt);
    EXPECT_THAT(shown(), ElementsAre("net 30", "COD", "Net 15", "cod"));
}

TEST_F(ReportControlTest, EachGroupRowPrecedesItsSortedRows) {
    add(1, "b", "", "Ship");
    add(2, "a", "", "install");
    add(3, "c", "", "Install");
    list.userClickHeader(0);
    list.userClickHeader(0);
    list.groupBy(2);
    EXPECT_THAT(shown(), ElementsAre("Install", "c", "a", "Ship", "b"));
    EXPECT_TRUE(list.row(0).isGroup());
    EXPECT_EQ(list.rowText(0, 1), "");
    list.groupBy(std::nullopt);
    EXPECT_THAT(shown(), ElementsAre("c", "b", "a"));
}

TEST_F(ReportControlTest, SelectionAndFocusStayWithTheirRecords) {
    for (int i = 0; i < 5; ++i)
        add(i + 1, std::string(1, static_cast<char>('e' - i)));
    list.populate();
    list.userSelect(std::vector<std::size_t>{1, 3, 77}, 3);
    EXPECT_THAT(list.selectedRows(), ElementsAre(1U, 3U)) << "a row that does not exist is not selected";
    list.userClickHeader(0);  // reverses the order
    EXPECT_THAT(list.selectedRows(), ElementsAre(1U, 3U));
    EXPECT_EQ(list.focusedRow(), 1U);
    EXPECT_EQ(list.rowText(1, 0), "b");

    list.removeRecord(list.row(1).record);
    list.removeRecord(list.row(1).record);  // a second removal has no effect
    list.populate();
    EXPECT_THAT(shown(), ElementsAre("a", "c", "d", "e"));
    EXPECT_THAT(list.selectedRows(), ElementsAre(2U));
    EXPECT_EQ(list.focusedRow(), 1U) << "the row that took the removed one's place";
    EXPECT_EQ(list.findRecord(4), std::nullopt);

    // Several rows are removed together, among them the focused one; then all rows after it.
    list.userSelect(std::vector<std::size_t>{0, 1}, 1);
    for (const std::size_t row : list.selectedRows())
        list.removeRecord(list.row(row).record);
    list.populate();
    EXPECT_THAT(shown(), ElementsAre("d", "e"));
    EXPECT_EQ(list.focusedRow(), 0U);
    list.userSelect(std::vector<std::size_t>{1}, 1);
    list.removeRecord(list.row(1).record);
    list.populate();
    EXPECT_EQ(list.focusedRow(), 0U) << "without a row after it, the last row has the focus";
    EXPECT_THROW(list.rowText(4, 0), std::out_of_range);
}

TEST_F(ReportControlTest, GroupsAreOrderedByTheirOwnRule) {
    using Grouping = ReportControl::Grouping;
    add(1, "x", "", "Ship");
    add(2, "y", "", "");
    add(3, "z", "", "Install");
    add(4, "w", "", "ship");
    list.groupBy(Grouping{.column = 2, .emptyText = "(No Group)"});
    EXPECT_THAT(shown(), ElementsAre("(No Group)", "y", "Install", "z", "Ship", "x", "w"));
    list.groupBy(Grouping{.column = 2, .order = Grouping::Order::ByAppearance});
    EXPECT_THAT(shown(), ElementsAre("Ship", "x", "w", "", "y", "Install", "z"));
    list.groupBy(Grouping{.column = 2, .before = [](auto a, auto b) { return a.size() > b.size(); }});
    EXPECT_THAT(shown(), ElementsAre("Install", "z", "Ship", "x", "w", "", "y"));
    list.setFilter("W");
    EXPECT_THAT(shown(), ElementsAre("ship", "w")) << "a group without rows is not shown";

    list.setFilter("");
    const auto throwing = [](std::string_view, std::string_view) -> bool {
        throw std::runtime_error("order");
    };
    EXPECT_THROW(list.groupBy(Grouping{.column = 2, .before = throwing}), std::runtime_error);
    EXPECT_EQ(list.rowCount(), 0U);
    list.groupBy(std::nullopt);
    EXPECT_THAT(shown(), ElementsAre("x", "y", "z", "w")) << "no record is lost";
}

TEST_F(ReportControlTest, DatesSortBySortValue) {
    list.columns[1] = {.caption = "Due", .kind = ReportColumn::Kind::Date};
    add(1, "a", "12/1/2024");
    add(2, "b", "2/1/2025");
    add(3, "c", "None");
    add(4, "d", "1/1/2025");
    list.setSortValue(0, 1, 45627);
    list.setSortValue(1, 1, 45689);
    list.setSortValue(3, 1, 45658);
    list.populate();
    list.userClickHeader(1);
    EXPECT_THAT(shown(), ElementsAre("c", "a", "d", "b"));
    list.userClickHeader(1);
    EXPECT_THAT(shown(), ElementsAre("b", "d", "a", "c"));
    list.removeRecord(0);
    list.populate();
    EXPECT_THAT(shown(), ElementsAre("b", "d", "c")) << "sort values move with their records";
}

TEST_F(ReportControlTest, FilterShowsRecordsThatContainTheTextInAnyColumn) {
    list.columns[2].kind = ReportColumn::Kind::Check;
    add(1, "Ångström", "30", "1");
    add(2, "Meter\nlong", "31", "0");
    add(3, "meter", "", "1");
    list.populate();
    const struct {
        const char* text;
        std::vector<std::string> rows;
    } cases[] = {{"METER", {"Meter\nlong", "meter"}},
                 {"ångSTR", {"Ångström"}},
                 {"3", {"Ångström", "Meter\nlong"}},
                 {"31", {"Meter\nlong"}},
                 {"m30", {}},             // no match spans two columns
                 {"1", {"Meter\nlong"}},  // check boxes are not searched
                 {"meterx", {}},
                 {"", {"Ångström", "Meter\nlong", "meter"}}};
    for (const auto& test : cases) {
        list.setFilter(test.text);
        EXPECT_EQ(shown(), test.rows) << test.text;
    }
    list.setFilterPredicate([&](std::size_t record) { return list.id(record) != 2; });
    list.setFilter("meter");
    EXPECT_THAT(shown(), ElementsAre("meter"));
    list.setCell(0, 0, "Kilometer");
    list.setFilter("METER");
    EXPECT_THAT(shown(), ElementsAre("Kilometer", "meter")) << "the filter finds changed texts";
    EXPECT_EQ(list.recordCount(), 3U);
}

TEST_F(ReportControlTest, FilterKeepsSelectionAndFocusOfRowsThatStayShown) {
    for (const char* name : {"aa", "ab", "b", "ac", "ad"})
        add(1, name);
    list.populate();
    list.userSelect(std::vector<std::size_t>{1, 2, 3}, 2);
    list.setFilter("a");
    EXPECT_THAT(shown(), ElementsAre("aa", "ab", "ac", "ad"));
    EXPECT_THAT(list.selectedRows(), ElementsAre(1U, 2U));
    EXPECT_EQ(list.focusedRow(), 2U) << "the row that took the hidden one's place";
    list.removeRecord(0);
    list.setFilter("");
    EXPECT_THAT(shown(), ElementsAre("ab", "b", "ac", "ad"));
    EXPECT_THAT(list.selectedRows(), ElementsAre(0U, 2U));
    list.setFilter("zzz");
    EXPECT_EQ(list.focusedRow(), std::nullopt);
}

TEST_F(ReportControlTest, EditsAreAcceptedInEditableCellsOnly) {
    using Kind = ReportColumn::Kind;
    list.columns = {{.caption = "Name", .editable = true, .maxLength = 3},
                    {.caption = "On", .kind = Kind::Check, .editable = true},
                    {.caption = "Unit", .kind = Kind::Choice, .editable = true, .choices = {{1, "Pair"}}},
                    {.caption = "Fixed"}};
    for (const char* name : {"c", "b", "a"})
        list.addRecord(1, std::array<std::string_view, 4>{name, "0", "", "f"});
    std::vector<std::string> edited;
    list.onCellEdited = [&](std::size_t record, std::size_t column) {
        edited.push_back(std::to_string(record) + "." + std::to_string(column));
    };
    list.cellEditable = [](std::size_t record, std::size_t column) {
        if (record == 1 && column == 0) throw std::runtime_error("asked while drawing");
        return record != 2 || column != 2;
    };
    list.sortBy(ReportControl::SortOrder{0});
    const auto version = list.rowsVersion();
    list.userEdit(2, 0, "äöüß");
    EXPECT_EQ(list.rowText(2, 0), "äöü") << "the limit counts characters; the row keeps its place";
    list.userEdit(2, 0, "äöü");   // the text that the cell has already
    list.userEdit(1, 0, "x");     // cellEditable throws
    list.userEdit(0, 2, "Pair");  // cellEditable returns false
    list.userEdit(2, 2, "Pair");
    list.userEdit(2, 2, "Dozen");  // not one of the choices
    list.userEdit(2, 3, "x");
    list.userEdit(2, 1, "x");
    list.userEdit(9, 0, "x");
    list.userCheck(2, 1, true);
    list.userCheck(2, 1, true);
    list.userCheck(2, 0, true);
    EXPECT_THAT(edited, ElementsAre("0.0", "0.2", "0.1"));
    EXPECT_TRUE(list.checked(0, 1));
    EXPECT_EQ(list.rowsVersion(), version) << "an edit does not rebuild the rows";
    EXPECT_THAT(shown(), ElementsAre("a", "b", "äöü"));

    // nextEditable() skips cells that may not be edited.
    using Cell = ReportControl::Cell;
    EXPECT_EQ(list.nextEditable({0, 1}, false), (Cell{1, 1}));
    EXPECT_EQ(list.nextEditable({1, 1}, true), (Cell{0, 1}));
    EXPECT_EQ(list.nextEditable({0, 0}, true), std::nullopt);
    EXPECT_EQ(list.nextEditable({2, 2}, false), std::nullopt);
    // A typed text can be corrected or refused before it is stored.
    list.correctEdit = [](std::size_t, std::size_t, std::string_view typed) -> std::optional<std::string> {
        if (typed == "no") return std::nullopt;
        return typed == "!" ? throw std::runtime_error("cannot check") : "<" + std::string(typed) + ">";
    };
    for (const char* typed : {"no", "!", "q"})
        list.userEdit(0, 0, typed);
    EXPECT_EQ(list.rowText(0, 0), "<q>");
    EXPECT_EQ(edited.size(), 4U);
    list.beginEdit(0, 1);
    EXPECT_EQ(list.takeEditRequest(), (Cell{2, 1})) << "the row that shows the record";
    EXPECT_EQ(list.takeEditRequest(), std::nullopt);
    list.setEnabled(false);
    list.userCheck(2, 1, false);
    EXPECT_TRUE(list.checked(0, 1));
}

TEST_F(ReportControlTest, ColumnLayoutMatchesCaptionsAndSurvivesChangedColumns) {
    list.columns = {{.caption = "Name; first, last", .width = 100},
                    {.caption = "Days", .width = 50},
                    {.caption = "Kind", .width = 60, .resizable = false}};
    list.userColumnOrder({2, 0, 1});
    list.userColumnOrder({0, 0, 1});  // not a permutation
    list.userColumnOrder({0, 1});
    list.userColumnWidth(1, 77);
    list.userColumnWidth(2, 99);  // not resizable
    list.sortBy(ReportControl::SortOrder{1, true});
    const std::string layout = list.columnLayout();

    list.columns[1].width = 1;
    list.userColumnOrder({0, 1, 2});
    list.sortBy(std::nullopt);
    list.setColumnLayout(layout);
    EXPECT_EQ(list.columnLayout(), layout);
    EXPECT_THAT(list.columnOrder(), ElementsAre(2U, 0U, 1U));
    EXPECT_EQ(list.columns[1].width, 77);
    EXPECT_EQ(list.sortOrder(), (ReportControl::SortOrder{1, true}));

    for (const char* bad :
         {"", "x", ";;,,\\", "Gone,5,+;Days", "Days,-5;Days,99999999999999", "Kind,1", "\xFF,1"}) {
        list.setColumnLayout(bad);
        EXPECT_EQ(list.columns[1].width, 77) << bad;
        EXPECT_EQ(list.columns[2].width, 60) << bad;
        EXPECT_EQ(list.columnOrder().size(), 3U) << bad;
    }
    list.setColumnLayout("Days,90;Gone,5");
    EXPECT_THAT(list.columnOrder().front(), 1U) << "a column that the text does not name comes last";
    EXPECT_EQ(list.columns[1].width, 90);
}

TEST_F(ReportControlTest, StylesStayWithTheirRecordsAndTheContextMenuSelectsItsRow) {
    for (const char* name : {"a", "b", "c"})
        add(1, name);
    list.setStyle(1, {.bold = true, .color = 0x0000FF});
    list.populate();
    list.removeRecord(0);
    list.populate();
    EXPECT_TRUE(list.style(0).bold);
    EXPECT_FALSE(list.style(1).bold);
    EXPECT_THROW(list.setStyle(2, {}), std::out_of_range);

    std::vector<std::size_t> asked;
    list.onContextMenu = [&](std::size_t row) { asked.push_back(row * 10 + list.selectedRows().size()); };
    list.userContextMenu(1);
    EXPECT_THAT(list.selectedRows(), ElementsAre(1U));
    list.userSelectAll();
    list.userContextMenu(0);
    list.userContextMenu(2);
    EXPECT_THAT(asked, ElementsAre(11, 2, 20));
}

TEST_F(ReportControlTest, IndexesOutOfRangeThrow) {
    add(5, "a");
    list.populate();
    ASSERT_TRUE(list.findRecord(5));
    EXPECT_EQ(list.cell(*list.findRecord(5), 0), "a");
    EXPECT_THROW(list.rowText(4, 0), std::out_of_range);
    EXPECT_THROW(list.cell(0, 3), std::out_of_range);
}

TEST_F(ReportControlTest, AgreesWithAVectorAfterRandomChanges) {
    // Applies random additions, changes and removals to the control and to a vector.
    struct Plain {
        std::int32_t id;
        std::string name;
    };
    std::mt19937 random(5);
    for (int round = 0; round < 200; ++round) {
        list.clearRecords();
        std::vector<Plain> plain;
        for (int step = 0; step < 40; ++step) {
            const auto pick = plain.empty() ? 0 : random() % plain.size();
            switch (plain.empty() ? 0 : random() % 5) {
                case 0:
                case 1:
                    plain.push_back({step + 1, "n" + std::to_string(random() % 1000)});
                    add(plain.back().id, plain.back().name);
                    break;
                case 2: {
                    plain[pick].name = std::string(random() % 20, 'x');
                    const std::string_view cells[] = {plain[pick].name};
                    list.replaceRecord(*list.findRecord(plain[pick].id), cells);
                    break;
                }
                case 3:
                    plain[pick].name = std::string(random() % 60'000, 'y') + std::to_string(step);
                    list.setCell(*list.findRecord(plain[pick].id), 0, plain[pick].name);
                    break;
                default:
                    list.removeRecord(*list.findRecord(plain[pick].id));
                    plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(pick));
            }
            if (random() % 3 == 0) list.populate();
        }
        list.populate();
        ASSERT_EQ(list.rowCount(), plain.size());
        ASSERT_EQ(list.recordCount(), plain.size());
        for (std::size_t i = 0; i < plain.size(); ++i) {
            ASSERT_EQ(list.rowText(i, 0), plain[i].name);
            ASSERT_EQ(list.id(list.row(i).record), plain[i].id);
        }
    }
}

TEST(ReportRecords, ACellThatGrowsRepeatedlyKeepsTheOtherCellsAndTheMemorySize) {
    ReportRecords records(1);
    for (const std::string_view text : {"first", "grows", "last"})
        records.add(1, std::array{text});
    for (std::size_t size = 100'000; size < 100'100; ++size) {
        records.setCell(1, 0, std::string(size, 'x'));
        ASSERT_EQ(records.cell(0, 0), "first");
        ASSERT_EQ(records.cell(1, 0).size(), size);
        ASSERT_EQ(records.cell(2, 0), "last");
    }
    EXPECT_LT(records.textBytes(), 3'000'000U);
    records.setCell(1, 0, records.cell(2, 0));
    EXPECT_EQ(records.cell(1, 0), "last");
}

TEST_F(ReportControlTest, TheHostReadsItsRecordCountAndItsState) {
    add(1, "Net 30");
    const ObjectPtr handed = list.automation();
    EXPECT_EQ(handed->get("recordcount").toLong(), 1);
    handed->put("Enabled", false);
    EXPECT_FALSE(handed->get("Enabled").toBoolean());
    EXPECT_FALSE(list.enabled());
    EXPECT_THROW(handed->put("RecordCount", 2), HostError);
    EXPECT_THROW(handed->call("NoSuchMember"), HostError);
}

TEST(ControlAutomation, TheHostFillsAComboBoxAndAnObjectThatOutlivesItsScreenThrows) {
    test::QuietDesktop desktop;
    ObjectPtr handed;
    {
        class ComboOnly : public Screen {
          public:
            explicit ComboOnly(Desktop& d) : Screen(d, "frmComboOnly") {}
            Layout layout() override { return layout::fill(combo); }
            ComboBox combo{*this, "combo"};
        } screen(desktop);
        handed = screen.combo.automation();
        for (const auto& [text, id] : {std::pair{"Net 30", 7}, {"COD", 3}, {"Net 15", 9}}) {
            handed->call("AddItem", text);
            handed->put("ItemData", handed->get("NewIndex"), id);
        }
        handed->call("AddItem", "first", 0);
        handed->put("listindex", 3);
        EXPECT_EQ(screen.combo.chosen(), 9);
        EXPECT_EQ(handed->get("Text").toText(), "Net 15");
        handed->call("RemoveItem", 1);
        EXPECT_EQ(screen.combo.chosen(), 9) << "the choice moves with its entry";
        EXPECT_EQ(handed->get("ListCount").toLong(), 3);
        EXPECT_EQ(handed->get("List", 1).toText(), "COD");
        EXPECT_THROW(handed->get("ItemData", 3), HostError);
        EXPECT_THROW(handed->get("ItemData"), HostError);
        EXPECT_THROW(handed->put("NewIndex", 1), HostError);
        EXPECT_THROW(handed->call("NoSuchMember"), HostError);
        handed->put("ListIndex", 55);
        EXPECT_EQ(screen.combo.chosen(), std::nullopt);
        handed->put("List", 1, "Cash");
        EXPECT_EQ(handed->get("List", 1).toText(), "Cash");
        screen.combo.editable = true;
        screen.combo.userType("typed");
        EXPECT_EQ(screen.combo.text(), "typed");
        screen.combo.editable = false;
        screen.combo.userType("more");
        EXPECT_EQ(screen.combo.text(), "typed");
        screen.combo.editable = true;
        screen.combo.setEnabled(false);
        screen.combo.userType("more");
        EXPECT_EQ(screen.combo.text(), "typed");
        handed->call("Clear");
        EXPECT_EQ(screen.combo.entries().size(), 0U);
    }
    EXPECT_THROW(handed->get("Text"), HostError);
}

}  // namespace
}  // namespace tsln
