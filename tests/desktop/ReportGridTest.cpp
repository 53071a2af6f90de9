#include <array>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/ReportGrid.h"
#include "tests/desktop/Robot.h"
#include "tests/desktop/Samples.h"

namespace tsln::desktop::test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::Le;

enum { name, price, active, unit };

/// A price list that is edited in place, with a filter above it.
class PriceGrid : public NotingScreen {
  public:
    PriceGrid(Desktop& desktop, int records) : NotingScreen(desktop, "frmPrices") {
        setCaption("Prices");
        rptPrices.columns = {
            {.caption = "Name", .width = 160, .editable = true, .maxLength = 8},
            {.caption = "Price", .width = 80, .rightAligned = true, .numeric = true, .editable = true},
            {.caption = "Active", .width = 60, .kind = ReportColumn::Kind::Check, .editable = true},
            {.caption = "Unit",
             .width = 100,
             .kind = ReportColumn::Kind::Choice,
             .editable = true,
             .choices = {{1, "Piece"}, {2, "Meter"}, {3, "Pair"}}}};
        for (int i = 0; i < records; ++i) {
            const std::string text = "Item " + std::to_string(i);
            const std::string cost = std::to_string(records - i);
            const std::string_view cells[] = {text, cost, i % 2 ? "1" : "0", "Piece"};
            rptPrices.addRecord(i + 1, cells);
        }
        rptPrices.cellEditable = [](std::size_t record, std::size_t column) {
            return record != 1 || column != price;
        };
        rptPrices.onCellEdited = [this](std::size_t record, std::size_t column) {
            note(std::to_string(record) + ": " + std::string(rptPrices.cell(record, column)));
        };
        rptPrices.onRowDoubleClick = [this](std::size_t row) { note("open " + std::to_string(row)); };
        rptPrices.populate();
        txtFilter.onChange = [this] { rptPrices.setFilter(txtFilter.text()); };
        cmdOK.onClick = [this] { hide(); };
        cmdCancel.onClick = [this] {
            note("cancel");
            hide();
        };
        setFocus(rptPrices);
    }

    TextBox txtFilter{*this, "txtFilter"};
    ReportControl rptPrices{*this, "rptPrices"};
    Button cmdOK{*this, "cmdOK", "&OK", Button::Role::Default};
    Button cmdCancel{*this, "cmdCancel", "Cancel", Button::Role::Cancel};

    Layout layout() override {
        using namespace tsln::layout;
        return column({form({field("&Filter:", txtFilter)}), fill(rptPrices),
                       row({spring(), item(cmdOK), item(cmdCancel)})});
    }
};

class ReportGridTest : public testing::Test {
  protected:
    WxDesktop desktop{nullptr, ""};

    static ReportGrid& grid(Robot& user, PriceGrid& screen) {
        return *dynamic_cast<ReportGrid*>(user.windowOf(screen.rptPrices));
    }
    static void untilNoted(Robot& user, PriceGrid& screen, const std::string& what) {
        user.until("noted: " + what, [=, &screen] { return screen.count(what) >= 1; });
    }
    static void untilEditing(Robot& user, PriceGrid& screen, bool editing = true) {
        user.until(editing ? "an editor" : "no editor",
                   [=, &user, &screen] { return grid(user, screen).isEditing() == editing; });
    }
    /// Types on the focused row, by which an editor opens.
    static Robot& overwrite(Robot& user, PriceGrid& screen, const std::string& text) {
        user.type(text.substr(0, 1));
        untilEditing(user, screen);
        return user.type(text.substr(1));
    }
};

TEST_F(ReportGridTest, KeysEditTextTicksAndChoicesInPlace) {
    PriceGrid screen(desktop, 5);
    Robot user(screen);
    user.key(WXK_DOWN).until("first row", [&] { return screen.rptPrices.focusedRow() == 0; });
    user.key(WXK_F2);
    untilEditing(user, screen);
    user.type("ab").key(WXK_RETURN);
    untilNoted(user, screen, "0: ab");
    user.type("xyz");  // the first letter opens the editor
    untilEditing(user, screen);
    user.key(WXK_ESCAPE);
    untilEditing(user, screen, false);
    overwrite(user, screen, "more than eight").key(WXK_TAB);
    untilNoted(user, screen, "0: more tha");
    untilEditing(user, screen);
    user.then([&] { EXPECT_EQ(grid(user, screen).currentCell(), (ReportControl::Cell{0, price})); });
    user.pause().type("17").key(WXK_TAB);
    untilNoted(user, screen, "0: 17");
    user.until("the box", [&] { return grid(user, screen).currentCell() == ReportControl::Cell{0, active}; });
    user.key(WXK_SPACE);
    untilNoted(user, screen, "0: 1");
    user.key(WXK_TAB);
    untilEditing(user, screen);
    user.key(WXK_ESCAPE);
    untilEditing(user, screen, false);
    user.key(WXK_DOWN, wxMOD_ALT);
    untilEditing(user, screen);
    user.pause().key(WXK_DOWN).key(WXK_RETURN);
    untilNoted(user, screen, "0: Meter");
    user.pause().key(WXK_ESCAPE).show();
    std::erase(screen.notes, "activate");  // the list of choices takes the front for a while
    EXPECT_THAT(screen.notes, ElementsAre("0: ab", "0: more tha", "0: 17", "0: 1", "0: Meter", "cancel"));
}

TEST_F(ReportGridTest, TypedTextIsKeptWhenTheUserGoesElsewhere) {
    PriceGrid screen(desktop, 5);
    Robot user(screen);
    user.key(WXK_DOWN);
    overwrite(user, screen, "one");
    user.key('F', wxMOD_ALT);
    untilNoted(user, screen, "0: one");
    user.clickAt(screen.rptPrices, [&] {
        ReportGrid& shown = grid(user, screen);
        return shown.ScreenToClient(*shown.belowRow(2)) + wxPoint(20, -8);
    });
    user.until("third row", [&] { return screen.rptPrices.focusedRow() == 2; });
    overwrite(user, screen, "two");
    user.key('O', wxMOD_ALT).show();
    EXPECT_THAT(screen.notes, ElementsAre("activate", "0: one", "2: two"));
    EXPECT_FALSE(screen.shown());
}

TEST_F(ReportGridTest, ACellThatMayNotBeEditedIsPassedOver) {
    PriceGrid screen(desktop, 3);
    Robot user(screen);
    user.key(WXK_DOWN).key(WXK_DOWN).until("row", [&] { return screen.rptPrices.focusedRow() == 1; });
    user.key(WXK_F2);
    untilEditing(user, screen);
    user.key(WXK_TAB).until("the box", [&] {
        return grid(user, screen).currentCell() == ReportControl::Cell{1, active};
    });
    user.key(WXK_TAB, wxMOD_SHIFT);
    untilEditing(user, screen);
    user.then([&] { EXPECT_EQ(grid(user, screen).currentCell(), (ReportControl::Cell{1, name})); });
    user.key(WXK_ESCAPE).pause().key(WXK_ESCAPE).show();
}

TEST_F(ReportGridTest, TheScreenOpensAnEditorAndTellsWhyItRefusesAText) {
    PriceGrid screen(desktop, 3);
    screen.rptPrices.correctEdit = [&](std::size_t, std::size_t,
                                       std::string_view text) -> std::optional<std::string> {
        if (text != "soon") return std::string(text);
        desktop.messageBox(&screen, "That is no price.", MessageButtons::Ok, MessageIcon::Exclamation);
        return std::nullopt;
    };
    Robot user(screen);
    user.key(WXK_DOWN).until("first row", [&] { return screen.rptPrices.focusedRow() == 0; });
    const auto edit = [&](std::size_t column, const std::string& text) {
        user.then([&screen, column] { screen.rptPrices.beginEdit(2, column); });
        untilEditing(user, screen);
        user.pause().type(text).key(WXK_RETURN);
    };
    edit(name, "new");
    untilNoted(user, screen, "2: new");
    edit(price, "soon");
    user.until("a message", [&] { return user.dialog() && !user.dialog()->IsActive(); }).pause();
    user.key(WXK_RETURN).pause();
    user.then([&] { EXPECT_EQ(screen.rptPrices.rowText(2, price), "1"); });
    user.key(WXK_ESCAPE).show();
    EXPECT_EQ(screen.count("cancel"), 1U);
}

TEST_F(ReportGridTest, AHundredThousandRowsAreFilteredSortedAndEdited) {
    PriceGrid screen(desktop, 100'000);
    Robot user(screen);
    std::uint64_t refills = 0;
    user.key('F', wxMOD_ALT).then([&] {
        grid(user, screen).rowsWindow().Bind(wxEVT_IDLE, [&, before = 0U](wxIdleEvent& event) mutable {
            event.Skip();
            const unsigned rows =
                grid(user, screen).GetModel()
                    ? static_cast<wxDataViewVirtualListModel*>(grid(user, screen).GetModel())->GetCount()
                    : 0;
            if (std::exchange(before, rows) != rows) ++refills;
        });
    });
    for (const char letter : std::string("item 9999")) {
        user.type({letter}).until("typed", [&, letter] { return screen.txtFilter.text().back() == letter; });
    }
    user.until("filtered",
               [&] { return screen.rptPrices.rowCount() == 11 && !grid(user, screen).refillPending(); });
    user.then([&] { EXPECT_THAT(refills, Le(5U)) << "not one for each of nine letters"; });
    // The window's rows are those of the filter, the dearest last once the price sorts.
    user.then([&] { screen.rptPrices.userClickHeader(price); });
    user.until("sorted", [&] { return !grid(user, screen).refillPending(); });
    user.key(WXK_TAB).key(WXK_DOWN).until("row", [&] { return screen.rptPrices.focusedRow() == 0; });
    user.then([&] {
        EXPECT_EQ(screen.rptPrices.rowText(0, name), "Item 99999");
        EXPECT_THAT(grid(user, screen).selection(), ElementsAre(0));
    });
    overwrite(user, screen, "gone").key(WXK_RETURN);
    untilNoted(user, screen, "99999: gone");
    user.then([&] { EXPECT_EQ(screen.rptPrices.rowText(0, name), "gone") << "it stays while it is edited"; });
    user.key('F', wxMOD_ALT).pause().key(WXK_END).pause().key(WXK_BACK).until("filtered again", [&] {
        return !grid(user, screen).refillPending() && screen.rptPrices.rowCount() == 110;
    });
    user.key('A', wxMOD_CONTROL).pause().key(WXK_DELETE).until("all rows", [&] {
        return !grid(user, screen).refillPending() && screen.rptPrices.rowCount() == 100'000;
    });
    user.key(WXK_TAB).key(WXK_END).until("last row", [&] { return screen.rptPrices.focusedRow() == 99'999; });
    overwrite(user, screen, "first").key(WXK_RETURN);
    untilNoted(user, screen, "0: first");
    user.key(WXK_ESCAPE).show();
}

}  // namespace
}  // namespace tsln::desktop::test
