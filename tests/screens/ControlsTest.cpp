#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "automation/DateText.h"
#include "doubles/QuietDesktop.h"
#include "tests/desktop/EveryControl.h"

namespace tsln {
namespace {

using desktop::test::EveryControl;
using testing::ElementsAre;

/// A desktop whose timers tick when the test calls their callbacks.
class TickingDesktop : public test::QuietDesktop {
  public:
    std::vector<std::function<void()>> started;
    int running = 0;

    std::unique_ptr<RunningTimer> startTimer(std::function<void()> callback, int) override {
        struct Counted : RunningTimer {
            explicit Counted(int& count) : count_(count) { ++count_; }
            ~Counted() override { --count_; }
            int& count_;
        };
        started.push_back(std::move(callback));
        return std::make_unique<Counted>(running);
    }
};

class ControlsTest : public testing::Test {
  protected:
    TickingDesktop desktop;
    EveryControl screen{desktop};

    Variant get(Control& control, std::string_view member) { return control.automation()->get(member); }
    void put(Control& control, std::string_view member, Variant value) {
        control.automation()->put(member, std::move(value));
    }
};

TEST_F(ControlsTest, AnInsertedTextReplacesTheSelectionWhichCountsCharacters) {
    using Selection = TextBox::Selection;
    TextBox& box = screen.txtNotes;
    const struct {
        const char* text;
        Selection selection;
        const char* insert;
        const char* result;
        std::size_t caret;
    } cases[] = {
        {"", {}, "new", "new", 3},
        {"abc", {1, 1}, "xy", "axyc", 3},
        {"abc", {3, 0}, "d", "abcd", 4},
        {"abc", {7, 9}, "d", "abcd", 4},
        {"\xC3\xA9\xF0\x9F\xAA\x9Fz", {1, 1}, "\xC3\xBC", "\xC3\xA9\xC3\xBCz", 2},
        {"a\r\nb", {1, 2}, "", "ab", 1},
    };
    for (const auto& test : cases) {
        box.setText(test.text);
        EXPECT_EQ(box.selection(), Selection{}) << "setText() puts the caret at the start";
        box.select(test.selection);
        box.insert(test.insert);
        EXPECT_EQ(box.text(), test.result);
        EXPECT_EQ(box.selection(), (Selection{test.caret, 0})) << test.text;
    }
    box.userType("\xC3\xA9t\xC3\xA9");
    EXPECT_EQ(box.selection(), (Selection{3, 0}));
    box.selectAll();
    EXPECT_EQ(box.selectedText(), "\xC3\xA9t\xC3\xA9");
    put(box, "SelStart", 1);
    EXPECT_EQ(get(box, "SelLength"), Variant(0));
    put(box, "SelLength", 99);
    EXPECT_EQ(get(box, "SelText"), Variant("t\xC3\xA9"));
    put(box, "SelText", "!");
    EXPECT_EQ(get(box, "Text"), Variant("\xC3\xA9!"));
    EXPECT_THROW(put(box, "SelStart", -1), HostError);
}

TEST_F(ControlsTest, AnEnterHandlerThatThrowsCountsAsHandled) {
    EXPECT_FALSE(screen.txtName.userEnter());
    screen.txtName.setText("x");
    EXPECT_TRUE(screen.txtName.userEnter());
    EXPECT_FALSE(screen.txtNotes.userEnter()) << "without a handler";
    screen.txtName.onEnterKey = []() -> bool { throw std::runtime_error("broken"); };
    EXPECT_TRUE(screen.txtName.userEnter());
    EXPECT_EQ(screen.notes.back(), "error: broken");
}

TEST_F(ControlsTest, AnOptionGroupHasAtMostOneChoice) {
    EXPECT_EQ(screen.optKind.selectedIndex(), 1);
    screen.optPercent.userSelect();
    EXPECT_EQ(screen.optKind.selected(), &screen.optPercent);
    EXPECT_FALSE(screen.optAmount.selected());
    screen.optPercent.userSelect();
    EXPECT_THAT(screen.notes, ElementsAre("optPercent")) << "the chosen button fires no second click";
    screen.optAmount.setSelected(false);
    EXPECT_TRUE(screen.optPercent.selected()) << "clearing another button keeps the choice";
    screen.optNone.setEnabled(false);
    screen.optNone.userSelect();
    EXPECT_EQ(screen.optKind.selectedIndex(), 0);
    put(screen.optPercent, "Value", false);
    EXPECT_EQ(screen.optKind.selectedIndex(), -1);
    put(screen.optNone, "Value", true);
    EXPECT_EQ(screen.optKind.selectedIndex(), 2);
    screen.optKind.selectIndex(7);
    EXPECT_EQ(get(screen.optNone, "Value"), Variant(false));
}

TEST_F(ControlsTest, AProgressBarStaysInItsRange) {
    ProgressBar& bar = screen.prg;
    bar.setRange(0, 10);
    bar.step(7);
    bar.step(7);
    EXPECT_EQ(bar.value(), 10);
    bar.step(INT32_MIN);
    EXPECT_EQ(bar.value(), 0);
    put(bar, "Value", 8);
    put(bar, "Max", 5);
    EXPECT_EQ(get(bar, "Value"), Variant(5));
    put(bar, "Min", 20);
    EXPECT_EQ(get(bar, "Value"), Variant(20));
    EXPECT_EQ(get(bar, "Max"), Variant(20));
}

TEST_F(ControlsTest, ADateBoxTellsDatesFromNoneAndOtherText) {
    DateBox& box = screen.datDue;
    const struct {
        const char* text;
        bool none, valid;
        std::optional<CalendarTime> date;
    } cases[] = {
        {"None", true, true, {}},
        {" nONE ", true, true, {}},
        {"3/4/2011", false, true, CalendarTime{2011, 3, 4, 0, 0, 0}},
        {" 4 March 2011 ", false, true, CalendarTime{2011, 3, 4, 0, 0, 0}},
        {"", false, false, {}},
        {"soon", false, false, {}},
        {"2/30/2011", false, false, {}},
    };
    for (const auto& test : cases) {
        box.userType(test.text);
        EXPECT_EQ(box.text(), test.text);
        EXPECT_EQ(box.isNone(), test.none) << test.text;
        EXPECT_EQ(box.isValid(), test.valid) << test.text;
        EXPECT_EQ(box.date(), test.date ? fromCalendar(*test.date) : std::nullopt) << test.text;
    }
    for (const char* day : {"3/4/2011", "12/30/1899", "12/29/1899", "1/1/0100"}) {
        box.userPick(Date{readDateText(day)->days});
        EXPECT_EQ(box.text(), day);
    }
    box.userPick(readDateText("3/4/2011 10:20 PM"));
    EXPECT_EQ(box.text(), "3/4/2011");
    box.setDate(Date{1e9});
    EXPECT_EQ(box.text(), "None");
}

TEST_F(ControlsTest, HidingTheShownPageShowsAVisibleOne) {
    TabControl& tab = screen.tab;  // its page 1 is hidden
    tab.userSelect(1);
    EXPECT_EQ(tab.selected(), 0);
    tab.setPageVisible(0, false);
    EXPECT_EQ(tab.selected(), 2);
    tab.setPageVisible(2, false);
    EXPECT_EQ(tab.selected(), -1);
    tab.setPageVisible(1, true);
    EXPECT_EQ(tab.selected(), 1);
    tab.setPageVisible(0, true);
    EXPECT_EQ(tab.selected(), 1);
    tab.setPageVisible(1, false);
    EXPECT_EQ(tab.selected(), 0) << "no visible page follows, so the nearest before it is shown";
    tab.setPageVisible(9, true);
    EXPECT_FALSE(tab.isPageVisible(9));
}

TEST_F(ControlsTest, ASplitterLimitsItsPositionToZeroToOne) {
    for (const auto& [wanted, kept] : {std::pair{0.25, 0.25}, {-1.0, 0.0}, {7.0, 1.0}, {NAN, 1.0}}) {
        screen.spl.userMove(wanted);
        EXPECT_EQ(screen.spl.position(), kept);
    }
    EXPECT_EQ(screen.count("sash"), 3U);
}

TEST_F(ControlsTest, APropertyGridRefusesRowsOutsideCategories) {
    PropertyGrid& grid = screen.grd;
    ASSERT_EQ(grid.items().size(), 8U);
    EXPECT_EQ(grid.items()[3].parent, 0U);
    EXPECT_EQ(grid.items()[4].parent, 3U);
    EXPECT_THROW(grid.addRow(1, "in a row", ""), std::out_of_range);
    EXPECT_THROW(grid.addRow(99, "nowhere", ""), std::out_of_range);
    EXPECT_THROW(grid.addCategory("in a row", 1), std::out_of_range);
    EXPECT_EQ(grid.items().size(), 8U);
    grid.clear();
    EXPECT_EQ(grid.addCategory("new"), 0U);
}

TEST_F(ControlsTest, OnlyLinksInTheCaptionOfAnEnabledLabelAreFollowed) {
    screen.lblLinks.userFollow("Approve");
    screen.lblLinks.userFollow("Unknown");
    screen.lblLinks.setEnabled(false);
    screen.lblLinks.userFollow("Discard");
    EXPECT_THAT(screen.notes, ElementsAre("Approve"));
}

TEST_F(ControlsTest, AThrowingTickIsReportedAndATimerStopsWithItsScreen) {
    screen.tim.start();
    screen.tim.start();
    EXPECT_EQ(desktop.running, 1);
    desktop.started.back()();
    screen.tim.onTick = [] { throw std::runtime_error("broken"); };
    desktop.started.back()();
    EXPECT_THAT(screen.notes, ElementsAre("tick", "error: broken"));
    screen.hide();
    EXPECT_FALSE(screen.tim.running());
    EXPECT_EQ(desktop.running, 0);
    screen.load();
    screen.tim.start();
    screen.unload();
    EXPECT_EQ(desktop.running, 0);
}

}  // namespace
}  // namespace tsln
