#include <cstdlib>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/dataview.h>
#include <wx/gauge.h>
#include <wx/splitter.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

#include "tests/desktop/EveryControl.h"
#include "tests/desktop/Picture.h"
#include "tests/desktop/Robot.h"

namespace tsln::desktop::test {
namespace {

// The modifier with which Tab leaves a multi-line box.
#ifdef __WXGTK__
constexpr int leavesSeveralLines = wxMOD_CONTROL;
#else
constexpr int leavesSeveralLines = wxMOD_NONE;
#endif

class EveryControlTest : public testing::Test {
  protected:
    WxDesktop desktop{nullptr, ""};
    EveryControl screen{desktop};
    Robot user{screen};

    void untilNoted(const std::string& what, std::size_t times = 1) {
        user.until("noted: " + what, [=, this] { return screen.count(what) >= times; });
    }
    /// Waits until a dialog is open above the screen, or until it is closed.
    void untilCovered(bool covered = true) {
        user.until(covered ? "a dialog is open" : "the dialog is closed",
                   [this, covered] { return user.dialog()->IsActive() != covered; });
        user.pause();
    }
    template <class Window>
    Window& windowOf(Control& control) {
        return dynamic_cast<Window&>(*user.windowOf(control));
    }
    wxSplitterWindow& sash() { return windowOf<wxSplitterWindow>(screen.spl); }
};

TEST_F(EveryControlTest, TheKeyboardAloneEntersTextDatesColorsAndChoices) {
    user.untilFocused(screen.txtName);
    user.key(WXK_TAB).pause().then([&] { savePicture(*user.dialog(), "controls"); });
    user.key(WXK_TAB, wxMOD_SHIFT).type("quay").key(WXK_RETURN);
    untilNoted("enter in name");
    user.key(WXK_TAB).type("pw").until("masked text", [&] { return screen.txtPassword.text() == "pw"; });

    // Inserted text replaces the selection, and typing continues behind it.
    user.key(WXK_TAB);
    user.untilFocused(screen.txtNotes);
    user.key(WXK_HOME, wxMOD_CONTROL).key(WXK_RIGHT, wxMOD_SHIFT).key(WXK_RIGHT, wxMOD_SHIFT);
    user.key('I', wxMOD_ALT);
    user.until("inserted", [&] { return screen.txtNotes.text() == "[Date]e line\r\nand another"; });
    user.untilFocused(screen.txtNotes);
    user.type("x").until("typed", [&] { return screen.txtNotes.text() == "[Date]xe line\r\nand another"; });
    user.key(WXK_END, wxMOD_CONTROL).key(WXK_LEFT, wxMOD_SHIFT).key(WXK_LEFT, wxMOD_SHIFT);
    user.key('I', wxMOD_ALT);
    user.until("inserted below",
               [&] { return screen.txtNotes.text() == "[Date]xe line\r\nand anoth[Date]"; });
    user.untilFocused(screen.txtNotes);

    user.key(WXK_TAB, leavesSeveralLines);
    user.untilFocused(screen.cboTerms);
    user.key('D', wxMOD_ALT);
    user.untilFocused(screen.datDue);
    user.key(WXK_F4);
    untilCovered();
    user.then([] { savePicture(*Robot::find<wxDialog>(), "calendar"); });
    user.key(WXK_RIGHT).key(WXK_RETURN);
    untilNoted("due 3/5/2024");
    user.untilFocused(screen.datDue);
    user.key(WXK_DOWN, wxMOD_ALT);
    untilCovered();
    user.key(WXK_PAGEDOWN).key(WXK_ESCAPE);
    untilCovered(false);
    user.then([&] { EXPECT_EQ(screen.datDue.text(), "3/5/2024"); }).key(WXK_F4);
    untilCovered();
    user.key('N', wxMOD_ALT);
    untilNoted("due None");
    user.untilFocused(screen.datDue);
    user.type("x");
    untilNoted("due x");  // the text from the calendar is selected

    user.key(WXK_TAB);
    user.untilFocused(screen.colFabric);
    for (const int opens : {int(WXK_SPACE), int(WXK_RETURN)}) {
        user.key(opens);
        untilCovered();
        user.key(WXK_ESCAPE);
        untilCovered(false);
        user.untilFocused(screen.colFabric);
    }
    user.key(WXK_TAB).key(WXK_SPACE).until("cleared", [&] { return !screen.chkActive.checked(); });

    user.key(WXK_TAB);
    user.untilFocused(screen.optAmount);  // the chosen button, not the first one
    user.key(WXK_DOWN);
    untilNoted("optNone");
    user.untilFocused(screen.optNone);
    user.key(WXK_DOWN);
    untilNoted("optPercent");
    user.then([&] { screen.optKind.clear(); }).key('M', wxMOD_ALT);
    untilNoted("optAmount");
    user.key(WXK_TAB, wxMOD_SHIFT);
    user.untilFocused(screen.chkActive);
    user.key(WXK_ESCAPE).show();
    EXPECT_EQ(screen.count("color"), 0U);
    EXPECT_EQ(screen.count("ok"), 0U);
    EXPECT_EQ(screen.optKind.selected(), &screen.optAmount);
}

TEST_F(EveryControlTest, TheKeyboardAloneReachesPanesPagesAndLinks) {
    screen.placement = {.left = 10, .width = 1000, .height = 700};  // leaves room for a long caption
    screen.rpt.setFocus();
    user.untilFocused(screen.rpt);
    user.key(WXK_HOME).key(WXK_F2).pause().type("sheer").key(WXK_RETURN);
    untilNoted("edited sheer");
    user.key(WXK_SPACE);
    untilNoted("edited 1");  // the first row's check box
    user.key(WXK_F6);
    user.untilFocused(screen.grd);
    user.then([&] {
        screen.grd.addRow(screen.grd.addCategory("Later"), "A row with a caption of this length",
                          "two\r\nlines");
        auto& tree = windowOf<wxDataViewCtrl>(screen.grd);
        wxDataViewItemArray top, rows;
        tree.GetModel()->GetChildren({}, top);
        tree.GetModel()->GetChildren(top.back(), rows);
        ASSERT_EQ(rows.size(), 1U);
        EXPECT_TRUE(tree.IsExpanded(top.back()));
        wxVariant value;
        tree.GetModel()->GetValue(value, rows.front(), 1);
        EXPECT_EQ(value.GetString(), "two lines");
    });
    user.until("the caption is shown in full", [&] {
        auto& tree = windowOf<wxDataViewCtrl>(screen.grd);
        return tree.GetColumn(0)->GetWidth() > tree.GetTextExtent("A row with a caption of this length").x;
    });
    user.key(WXK_F6);
    user.untilFocused(screen.rpt);
    user.key(WXK_F6, wxMOD_SHIFT);
    user.untilFocused(screen.grd);
    user.then([&] { screen.spl.setPosition(0.9); });
    user.until("sash moved as far as the lower pane allows", [&] {
        const int length = sash().GetClientSize().y;
        return sash().GetSashPosition() > length / 2 &&
               length - sash().GetSashPosition() >= user.windowOf(screen.grd)->GetMinSize().y;
    });
    user.then([&] {
        EXPECT_EQ(screen.count("sash"), 0U) << "the screen's own position was reported as a user action";
    });
    user.key(WXK_TAB);
    user.untilFocused(screen.lblLinks);
    user.key(WXK_RETURN);
    untilNoted("Approve");
    user.key(WXK_TAB).key(WXK_RETURN);
    untilNoted("Discard");
    user.key(WXK_TAB);
    user.untilFocused(screen.cmdInsert);  // the progress bar and the label are not tab stops

    user.key(WXK_PAGEDOWN, wxMOD_CONTROL).until("past the hidden page", [&] {
        return screen.tab.selected() == 2;
    });
    user.then([&] { screen.tab.setPageVisible(1, true); });
    user.key(WXK_PAGEUP, wxMOD_CONTROL).until("the page is selected", [&] {
        return screen.tab.selected() == 1;
    });
    user.until("its field is shown", [&] { return user.windowOf(screen.txtHidden)->IsShownOnScreen(); });
    user.then([&] {
        screen.tab.setPageVisible(1, false);
        EXPECT_EQ(screen.tab.selected(), 2);
    });
    user.until("the next page is shown", [&] { return user.windowOf(screen.lst)->IsShownOnScreen(); });
    user.key(WXK_ESCAPE).show();
}

TEST_F(EveryControlTest, ProgressIsDrawnDuringWorkAndTimerTicksWaitForItsEnd) {
    std::vector<int> shown;
    screen.duringWork = [&] {
        shown.push_back(windowOf<wxGauge>(screen.prg).GetValue());
        EXPECT_EQ(user.windowOf(screen.lblState)->GetLabel().utf8_string(),
                  "Step " + std::to_string(shown.size()));
        wxMilliSleep(30);  // longer than the timer's interval
    };
    screen.cmdWork.onClick = [this, work = screen.cmdWork.onClick] {
        screen.note("work begins");
        work();
        screen.note("work ends");
    };
    user.untilFocused(screen.txtName);
    user.then([&] { screen.tim.start(); });
    untilNoted("tick", 2);
    user.key('K', wxMOD_ALT);
    untilNoted("work ends");
    user.then([&] {
        const auto& notes = screen.notes;
        EXPECT_EQ(std::ranges::find(notes, "work begins") + 1, std::ranges::find(notes, "work ends"))
            << "a timer ticked during the work";
        screen.tim.stop();
    });
    user.key(WXK_ESCAPE).show();
    EXPECT_THAT(shown, testing::ElementsAre(1, 2, 3, 4));
}

}  // namespace
}  // namespace tsln::desktop::test
