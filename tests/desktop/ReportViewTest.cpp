#include <array>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/ReportGrid.h"
#include "tests/desktop/Robot.h"
#include "tests/desktop/Samples.h"

namespace tsln::desktop::test {
namespace {

using testing::Contains;
using testing::ElementsAre;

/// A list for reading, or a grid, whose last column is edited by ticks.
class EitherList : public SampleList {
  public:
    EitherList(Desktop& desktop, bool grid, int records = 5) : SampleList(desktop, records) {
        if (!grid) return;
        rptItems.columns[2].kind = ReportColumn::Kind::Check;
        rptItems.columns[2].editable = true;
    }
};

class ReportViewTest : public testing::Test {
  protected:
    WxDesktop desktop{nullptr, ""};

    static ReportGrid& window(Robot& user, SampleList& screen) {
        return dynamic_cast<ReportGrid&>(*user.windowOf(screen.rptItems));
    }
    static unsigned rowCount(ReportGrid& grid) { return model(grid).GetCount(); }
    static wxString text(ReportGrid& grid, unsigned row, unsigned column) {
        wxVariant value;
        model(grid).GetValueByRow(value, row, column);
        return value.GetString();
    }
    /// A point on a row, or where it would be; the list must not be scrolled.
    static Robot::Where onRow(Robot& user, SampleList& screen, int row) {
        return [=, &user, &screen] {
            wxWindow& rows = window(user, screen);
            const int first = rows.ScreenToClient(*window(user, screen).belowRow(0)).y;
            const int height = rows.ScreenToClient(*window(user, screen).belowRow(1)).y - first;
            return wxPoint(60, first + row * height - height / 2);
        };
    }
    static void untilNoted(Robot& user, SampleList& screen, const std::string& what, std::size_t times = 1) {
        user.until("noted: " + what, [=, &screen] { return screen.count(what) >= times; });
    }

  private:
    static wxDataViewVirtualListModel& model(ReportGrid& grid) {
        return *static_cast<wxDataViewVirtualListModel*>(grid.GetModel());
    }
};

class EitherReportView : public ReportViewTest, public testing::WithParamInterface<bool> {};
INSTANTIATE_TEST_SUITE_P(ListAndGrid, EitherReportView, testing::Values(false, true));

TEST_P(EitherReportView, KeysActOnTheFocusedRow) {
    EitherList screen(desktop, GetParam());
    Robot user(screen);
    user.key(WXK_DOWN).key(WXK_DOWN).until("second row", [&] { return screen.rptItems.focusedRow() == 1; });
    user.key(WXK_RETURN);
    untilNoted(user, screen, "open 1");
    user.key(WXK_INSERT);
    untilNoted(user, screen, "insert");
    user.key(WXK_DELETE);
    untilNoted(user, screen, "delete");
    user.key('M', wxMOD_ALT).then([] {});  // the popup is modal; the next key closes it
    user.key(WXK_ESCAPE);
    user.key(WXK_HOME).type("net 3").until("found", [&] { return screen.rptItems.focusedRow() == 3; });
    user.then([&] { EXPECT_THAT(screen.rptItems.selectedRows(), ElementsAre(3)); });
    user.key(WXK_ESCAPE).show();
}

TEST_P(EitherReportView, TheWholeSelectionIsReportedOnceForEachAct) {
    EitherList screen(desktop, GetParam(), 100);
    Robot user(screen);
    user.clickAt(screen.rptItems, onRow(user, screen, 1));
    untilNoted(user, screen, "selection 1");
    user.clickAt(screen.rptItems, onRow(user, screen, 6), wxMOD_SHIFT);
    untilNoted(user, screen, "selection 6");
    user.clickAt(screen.rptItems, onRow(user, screen, 3), wxMOD_CONTROL);
    untilNoted(user, screen, "selection 5");
    user.then([&] {
        EXPECT_THAT(screen.rptItems.selectedRows(), ElementsAre(1, 2, 4, 5, 6));
        EXPECT_FALSE(user.windowOf(screen.cmdEdit)->IsEnabled());
    });
    user.key('A', wxMOD_CONTROL);
    untilNoted(user, screen, "selection 100");
    user.clickAt(screen.rptItems, onRow(user, screen, 2));
    untilNoted(user, screen, "selection 1", 2);
    user.then([&] { EXPECT_TRUE(user.windowOf(screen.cmdEdit)->IsEnabled()); });
    user.key(WXK_DOWN, wxMOD_SHIFT);
    untilNoted(user, screen, "selection 2");
    user.key(WXK_ESCAPE).show();
    std::erase_if(screen.notes, [](const std::string& note) { return !note.starts_with("selection"); });
    EXPECT_THAT(screen.notes, ElementsAre("selection 1", "selection 6", "selection 5", "selection 100",
                                          "selection 1", "selection 2"));
}

TEST_P(EitherReportView, TheFirstKeySelectsTheFirstRowAndShiftGoesOnFromThere) {
    for (const int first : {WXK_DOWN, WXK_UP, WXK_HOME}) {
        EitherList screen(desktop, GetParam(), 10);
        Robot user(screen);
        user.key(first);
        untilNoted(user, screen, "selection 1");
        user.then([&] { EXPECT_THAT(screen.rptItems.selectedRows(), ElementsAre(0)); });
        user.key(WXK_DOWN, wxMOD_SHIFT);
        untilNoted(user, screen, "selection 2");
        user.key(WXK_DOWN, wxMOD_SHIFT);
        untilNoted(user, screen, "selection 3");
        user.then([&] { EXPECT_THAT(screen.rptItems.selectedRows(), ElementsAre(0, 1, 2)); });
        // The same from a row that was found by its letters, and from one that the screen has selected.
        user.type("net 5");
        untilNoted(user, screen, "selection 1", 2);
        user.key(WXK_UP, wxMOD_SHIFT);
        untilNoted(user, screen, "selection 2", 2);
        user.then([&] { EXPECT_THAT(screen.rptItems.selectedRows(), ElementsAre(4, 5)); });
        user.then([&] { screen.rptItems.selectRow(7); });
        user.key(WXK_DOWN, wxMOD_SHIFT);
        untilNoted(user, screen, "selection 2", 3);
        user.then([&] { EXPECT_THAT(screen.rptItems.selectedRows(), ElementsAre(7, 8)); });
        user.key(WXK_ESCAPE).show();
    }
}

TEST_P(EitherReportView, RowsThatComeAfterTheKeyboardTakeTheFirstKey) {
    const struct {
        int key;
        std::size_t row;
    } cases[] = {{WXK_DOWN, 0}, {WXK_HOME, 0}, {WXK_PAGEDOWN, 0}, {WXK_END, 2}};
    for (const auto& test : cases) {
        EitherList screen(desktop, GetParam(), 0);
        Robot user(screen);
        user.then([&] {
            for (int i = 1; i <= 3; ++i)
                screen.rptItems.addRecord(i, std::array<std::string_view, 1>{"Net 30"});
            screen.rptItems.populate();
        });
        user.key(test.key);
        untilNoted(user, screen, "selection 1");
        user.then([&] { EXPECT_THAT(screen.rptItems.selectedRows(), ElementsAre(test.row)); });
        user.key(WXK_ESCAPE).show();
    }
    // One that the screen selects is shown so, too.
    EitherList screen(desktop, GetParam(), 0);
    Robot user(screen);
    user.then([&] {
        screen.rptItems.addRecord(1, std::array<std::string_view, 1>{"Net 30"});
        screen.rptItems.populate();
        screen.rptItems.selectRow(0);
        EXPECT_THAT(window(user, screen).selection(), ElementsAre(0));
    });
    user.key(WXK_ESCAPE).show();
}

TEST_P(EitherReportView, DoubleClickOpensAndHeaderSorts) {
    EitherList screen(desktop, GetParam(), 20);
    Robot user(screen);
    user.doubleClickAt(screen.rptItems, onRow(user, screen, 2));
    untilNoted(user, screen, "open 2");
    for (const bool descending : {false, true}) {
        user.pause();
        user.clickAt(screen.rptItems, [] { return wxPoint(230, 12); }).until("sorted", [&, descending] {
            if (screen.rptItems.sortOrder() != ReportControl::SortOrder{1, descending}) return false;
            const auto* price = window(user, screen).GetColumn(1);
            return price->IsSortKey() && price->IsSortOrderAscending() == !descending;
        });
    }
    user.then([&] {
        // The selection went with its record, and so did the window's.
        ASSERT_EQ(screen.rptItems.selectedRows().size(), 1u);
        const std::size_t row = screen.rptItems.selectedRows().front();
        EXPECT_EQ(screen.rptItems.rowText(row, 0), "Net 2");
        EXPECT_THAT(window(user, screen).selection(), ElementsAre(row));
        EXPECT_EQ(window(user, screen).focusedRow(), row);
    });
    user.key(WXK_ESCAPE).show();
}

TEST_P(EitherReportView, TheContextMenuIsOfTheRowUnderThePointerOrTheFocusedOne) {
    EitherList screen(desktop, GetParam(), 3);
    Robot user(screen);
    user.rightClickAt(screen.rptItems, onRow(user, screen, 1));
    untilNoted(user, screen, "context 1");
    user.then([&] { EXPECT_THAT(window(user, screen).selection(), ElementsAre(1)); });
    user.key('A', wxMOD_CONTROL);
    untilNoted(user, screen, "selection 3");
    user.rightClickAt(screen.rptItems, onRow(user, screen, 2));
    untilNoted(user, screen, "context 2");
    user.then([&] { EXPECT_THAT(screen.rptItems.selectedRows(), ElementsAre(0, 1, 2)); });
    user.rightClickAt(screen.rptItems, onRow(user, screen, 6));
    untilNoted(user, screen, "context 3");
    user.then([&] { EXPECT_THAT(window(user, screen).selection(), ElementsAre()); });
    user.key(WXK_HOME);
    user.until("first row", [&] { return screen.rptItems.focusedRow() == 0; });
    user.key(WXK_F10, wxMOD_SHIFT);
    untilNoted(user, screen, "context 0");
    user.key(WXK_MENU);
    untilNoted(user, screen, "context 0", 2);
    user.key(WXK_ESCAPE).show();
}

TEST_F(ReportViewTest, GroupRowsAreBoldWithTheirCount) {
    SampleList screen(desktop, 5);
    screen.rptItems.groupBy(2);
    screen.rptItems.populate();
    Robot user(screen);
    user.then([&] {
        ReportGrid& shown = window(user, screen);
        ASSERT_EQ(rowCount(shown), 7U);
        EXPECT_EQ(text(shown, 0, 0), "even (3)");
        EXPECT_FALSE(shown.GetModel()->HasValue(shown.GetTopItem(), 1));
        EXPECT_EQ(text(shown, 4, 0), "odd (2)");
        wxDataViewItemAttr attributes;
        EXPECT_TRUE(shown.GetModel()->GetAttr(shown.GetTopItem(), 0, attributes) && attributes.GetBold());
        screen.rptItems.groupBy(std::nullopt);
        screen.rptItems.populate();
        EXPECT_EQ(rowCount(shown), 5U);
    });
    user.key(WXK_ESCAPE).show();
}

TEST_F(ReportViewTest, AMillionRowsOpenAndAHundredThousandAreSelected) {
    // What goes row by row here does not come to its end in the time a test has.
    SampleList big(desktop, 1000000);
    big.onActivate = [&] { big.hide(); };
    big.showModal();

    SampleList screen(desktop, 100000);
    Robot user(screen);
    user.key('A', wxMOD_CONTROL);
    untilNoted(user, screen, "selection 100000");
    user.then([&] { EXPECT_EQ(window(user, screen).selection().size(), 100000U); });
    user.key(WXK_END, wxMOD_SHIFT).key(WXK_HOME);
    untilNoted(user, screen, "selection 1");
    user.key(WXK_END, wxMOD_SHIFT);
    untilNoted(user, screen, "selection 100000", 2);
    user.key(WXK_ESCAPE).show();
}

TEST_F(ReportViewTest, RowsThatGoKeepTheListInPlace) {
    SampleList screen(desktop, 1000);
    Robot user(screen);
    user.then([&] { screen.rptItems.selectRow(500); });
    user.until("row 500 is in view", [&] {
        const unsigned top = visibleRows(window(user, screen)).first;
        return top > 400 && top <= 500;
    });
    unsigned top = 0;
    user.then([&] {
        top = visibleRows(window(user, screen)).first;
        screen.rptItems.removeRecord(500);
        screen.rptItems.populate();
        EXPECT_EQ(rowCount(window(user, screen)), 999U);
    });
    user.until("the rows in view are the same",
               [&] { return visibleRows(window(user, screen)).first == top; });
    user.then([&] {
        EXPECT_EQ(window(user, screen).focusedRow(), screen.rptItems.focusedRow());
        screen.rptItems.clearRecords();
        screen.rptItems.populate();
        EXPECT_EQ(rowCount(window(user, screen)), 0U);
    });
    user.key(WXK_DELETE);
    untilNoted(user, screen, "delete");
    user.key(WXK_ESCAPE).show();
}

}  // namespace
}  // namespace tsln::desktop::test
