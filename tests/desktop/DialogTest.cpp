#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/msgdlg.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>
#include <wx/utils.h>
// clang-format off: must follow wx/msgdlg.h
#include <wx/generic/msgdlgg.h>
// clang-format on

#include "tests/desktop/Robot.h"
#include "tests/desktop/Samples.h"

namespace tsln::desktop::test {
namespace {

using testing::ElementsAre;

class DialogTest : public testing::Test {
  protected:
    WxDesktop desktop{nullptr, ""};
    SampleDialog screen{desktop};
    Robot user{screen};

    /// Waits until the screen has noted `what` as often as `times`.
    void untilNoted(const std::string& what, std::size_t times = 1) {
        user.until("noted: " + what, [=, this] { return screen.count(what) >= times; });
    }
};

TEST_F(DialogTest, TabVisitsTheControlsInLayoutOrder) {
    Control* const order[] = {&screen.txtName,   &screen.txtDiscount, &screen.cboMethod, &screen.cboCity,
                              &screen.txtNotes,  &screen.chkExported, &screen.cmdApply,  &screen.cmdOK,
                              &screen.cmdCancel, &screen.txtName};
    for (Control* control : order) {
        user.untilFocused(*control);
        // In a multi-line box Tab is text and Ctrl+Tab leaves it. The arrow of an editable list is no tab stop.
        user.key(WXK_TAB, control == &screen.txtNotes ? wxMOD_CONTROL : 0);
    }
    user.untilFocused(screen.txtDiscount);
    user.key(WXK_TAB, wxMOD_SHIFT);
    user.untilFocused(screen.txtName);
    user.key(WXK_ESCAPE).show();
    EXPECT_EQ(screen.count("left name"), 2u);
    EXPECT_EQ(screen.count("left discount"), 2u);
}

TEST_F(DialogTest, TypedTextReachesTheControlAndTheControlsTextIsShown) {
    screen.txtDiscount.setText("5");
    user.untilFocused(screen.txtName);
    user.type("net 10").until("typed", [&] { return screen.txtName.text() == "net 10"; });
    user.then([&] { screen.txtName.setText("From the rules \xC3\xA9"); });
    user.until("shown", [&] {
        return static_cast<wxTextCtrl*>(user.windowOf(screen.txtName))->GetValue() ==
               wxString::FromUTF8("From the rules \xC3\xA9");
    });
    // Tab selects the whole text, so typing replaces it.
    user.key(WXK_TAB).type("7").until("replaced", [&] { return screen.txtDiscount.text() == "7"; });
    user.key(WXK_TAB).until("corrected on leaving", [&] {
        return static_cast<wxTextCtrl*>(user.windowOf(screen.txtDiscount))->GetValue() == "0";
    });
    user.key(WXK_ESCAPE).show();
    EXPECT_EQ(screen.txtDiscount.text(), "0");
    EXPECT_EQ(screen.count("name net 10"), 1u);
}

TEST_F(DialogTest, MaximumLengthAndLockLimitTyping) {
    screen.txtDiscount.setText("5");
    screen.txtDiscount.setLocked(true);
    user.untilFocused(screen.txtName);
    user.type("abcdefghijklmnop").until("typed", [&] { return screen.txtName.text().size() >= 12; });
    user.key(WXK_TAB).type("9").key(WXK_ESCAPE).show();
    EXPECT_EQ(screen.txtName.text(), "abcdefghijkl");
    EXPECT_THAT(screen.notes, testing::Contains("left discount").Times(0));
}

TEST_F(DialogTest, EnterPressesTheDefaultButtonWithoutLeavingTheField) {
    user.untilFocused(screen.txtName);
    user.type("x").key(WXK_RETURN).show();
    EXPECT_THAT(screen.notes, ElementsAre("activate", "name x", "ok"));
}

TEST_F(DialogTest, EnterOnAButtonPressesThatButton) {
    screen.cmdApply.setFocus();
    user.untilFocused(screen.cmdApply);
    user.key(WXK_RETURN);
    untilNoted("apply");
    user.key(WXK_SPACE);
    untilNoted("apply", 2);
    user.key(WXK_ESCAPE).show();
    EXPECT_EQ(screen.count("ok"), 0u);
    EXPECT_EQ(screen.notes.back(), "cancel");
}

TEST_F(DialogTest, ADisabledButtonIsNotPressed) {
    screen.cmdOK.setEnabled(false);
    user.untilFocused(screen.txtName);
    user.key(WXK_RETURN).click(screen.cmdOK).type("x").until("typed", [&] {
        return screen.txtName.text() == "x";
    });
    user.key(WXK_ESCAPE).show();
    EXPECT_EQ(screen.count("ok"), 0u);
}

TEST_F(DialogTest, MnemonicsReachFieldsBoxesAndButtons) {
    const struct {
        int letter;
        Control* control;
    } fields[] = {{'D', &screen.txtDiscount},
                  {'M', &screen.cboMethod},
                  {'Y', &screen.cboCity},
                  {'N', &screen.txtNotes},
                  {'T', &screen.txtName}};
    for (const auto& field : fields) {
        user.key(field.letter, wxMOD_ALT);
        user.untilFocused(*field.control);
    }
    user.key('X', wxMOD_ALT);
    untilNoted("exported 1");
    user.key('P', wxMOD_ALT);
    untilNoted("apply");
    user.key(WXK_ESCAPE).show();
    EXPECT_EQ(screen.count("left discount"), 1u);
    EXPECT_TRUE(screen.chkExported.checked());
}

TEST_F(DialogTest, ArrowKeysChooseFromAList) {
    screen.cboMethod.setFocus();
    user.untilFocused(screen.cboMethod);
    user.key(WXK_DOWN);
    untilNoted("method Invoice");
    user.key(WXK_DOWN);
    untilNoted("method Cash");
    user.then([&] { screen.cboMethod.choose(30); });
    user.until("shown",
               [&] { return static_cast<wxChoice*>(user.windowOf(screen.cboMethod))->GetSelection() == 2; });
    user.key(WXK_ESCAPE).show();
    EXPECT_EQ(screen.count("method Check"), 0u) << "the screen's own choice was reported as a user action";
    EXPECT_EQ(screen.cboMethod.chosen(), 30);
}

TEST_F(DialogTest, AnEditableListAcceptsTypedTextAndAChosenEntry) {
    screen.cboCity.setFocus();
    user.untilFocused(screen.cboCity);
    user.type("Ber").until("typed", [&] { return screen.cboCity.text() == "Ber"; });
    user.then([&] {
        auto* box = static_cast<wxComboBox*>(user.windowOf(screen.cboCity));
        box->SetSelection(1);
        wxCommandEvent chosen(wxEVT_COMBOBOX, box->GetId());
        chosen.SetEventObject(box);
        box->ProcessWindowEvent(chosen);
    });
    untilNoted("city chosen Oslo");
    user.key(WXK_ESCAPE).show();
    EXPECT_EQ(screen.cboCity.listIndex(), 1);
    EXPECT_EQ(screen.count("city typed Oslo"), 0u);
}

TEST_F(DialogTest, F1OpensHelpFromAnyControl) {
    user.untilFocused(screen.txtName);
    user.key(WXK_F1);
    untilNoted("help");
    user.key(WXK_TAB).key(WXK_F1);
    untilNoted("help", 2);
    user.key(WXK_ESCAPE).show();
}

TEST_F(DialogTest, TheCloseBoxClosesOnlyIfTheScreenAllowsIt) {
    screen.mayClose = false;
    user.then([&] { user.dialog()->Close(); });
    untilNoted("close box");
    user.then([&] {
        EXPECT_TRUE(user.dialog()->IsShown());
        screen.mayClose = true;
        user.dialog()->Close();
    });
    user.show();
    EXPECT_THAT(screen.notes, ElementsAre("activate", "close box", "close box", "unload"));
    EXPECT_FALSE(screen.view());
}

TEST_F(DialogTest, EnabledVisibleCaptionAndPointerFollowTheScreen) {
    user.then([&] {
        screen.setCaption("Edit Terms (Busy...)");
        screen.setPointerBusy(true);
        screen.cboCity.setVisible(false);
        screen.txtDiscount.setEnabled(false);
        screen.fraMore.setEnabled(false);
    });
    user.until("drawn", [&] {
        return user.dialog()->GetTitle() == "Edit Terms (Busy...)" &&
               !user.windowOf(screen.cboCity)->IsShown() && !user.windowOf(screen.txtDiscount)->IsEnabled() &&
               !user.windowOf(screen.cboMethod)->IsEnabled() && user.dialog()->GetCursor().IsOk();
    });
    user.then([&] { screen.setPointerBusy(false); });
    user.key(WXK_ESCAPE).show();
}

TEST_F(DialogTest, AScreenThatHidesItselfOnActivationReturns) {
    screen.onActivate = [&] { screen.hide(); };
    screen.showModal();
    EXPECT_THAT(screen.notes, ElementsAre("activate"));
}

TEST_F(DialogTest, AHandlerThatThrowsIsReportedAndTheScreenKeepsItsInput) {
    screen.cmdApply.onClick = [] { throw std::runtime_error("broken"); };
    user.untilFocused(screen.txtName);
    user.type("kept").key('P', wxMOD_ALT);
    untilNoted("error: broken");
    user.type("!").until("input goes on", [&] { return screen.txtName.text() == "kept!"; });
    user.key(WXK_ESCAPE).show();
}

TEST_F(DialogTest, TheOwnerOfANestedScreenTakesNoInput) {
    SampleList list(desktop);
    list.onNew = [&] { screen.showModal(); };
    Robot at(list);
    at.key('N', wxMOD_ALT).untilOpen(screen).pointAt(screen.txtName);
    at.until("ready", [&] { return user.focused() == &screen.txtName; });
    at.then([&] { EXPECT_EQ(user.dialog()->GetParent(), at.dialog()); });
    at.click(list.cmdNew).type("ab").until("typed", [&] { return screen.txtName.text() == "ab"; });
    at.key(WXK_RETURN).until("closed", [&] { return !user.dialog(); }).pointAt(list.cmdNew);
    at.until("back", [&] { return at.dialog()->IsActive(); });
    at.key(WXK_ESCAPE).show();
    EXPECT_EQ(list.count("new"), 1u);
    EXPECT_EQ(screen.count("ok"), 1u);
    EXPECT_GE(list.count("activate"), 1u);
}

TEST_F(DialogTest, InputThatComesDuringAHandlerIsDropped) {
    screen.cmdApply.onClick = [&] {
        screen.note("apply begins");
        wxUIActionSimulator().Char('z');
        for (int i = 0; i < 20; ++i) {
            desktop.yield();
            wxMilliSleep(5);
        }
        screen.note("apply ends");
    };
    user.untilFocused(screen.txtName);
    user.key('P', wxMOD_ALT);
    untilNoted("apply ends");
    user.pause().key(WXK_ESCAPE).show();
    EXPECT_THAT(screen.notes, ElementsAre("activate", "apply begins", "apply ends", "cancel"));
}

TEST_F(DialogTest, AWindowThatOpensDuringAHandlerTakesInput) {
    auto answer = MessageAnswer::Cancel;
    screen.cmdApply.onClick = [&] {
        wxTheApp->CallAfter([&] {  // as the host may, from a timer
            answer = desktop.messageBox(&screen, "Would you?", MessageButtons::YesNo, MessageIcon::None);
        });
        desktop.yield();
        screen.note("apply ends");
    };
    user.untilFocused(screen.txtName);
    user.key('P', wxMOD_ALT).until("the box is open", [] {
        auto* box = Robot::find<wxGenericMessageDialog>();
        return box && box->IsActive();
    });
    user.key(WXK_RETURN);
    untilNoted("apply ends");
    user.pointAt(screen.txtName).until("active again", [&] { return user.dialog()->IsActive(); });
    user.key(WXK_ESCAPE).show();
    EXPECT_EQ(answer, MessageAnswer::Yes);
}

TEST_F(DialogTest, APositionIsRestoredAndRemembered) {
    screen.placement = {.left = 100, .width = 640, .height = 480};
    wxSize shown;
    user.then([&] { shown = user.dialog()->GetClientSize(); });
    user.then([&] {
        user.dialog()->Move(90, user.dialog()->GetPosition().y);
        user.dialog()->SetClientSize(700, 500);
    });
    user.until("kept", [&] { return screen.placement.left == 90 && screen.placement.width == 700; });
    user.key(WXK_ESCAPE).show();
    EXPECT_EQ(shown, wxSize(640, 480));
    EXPECT_EQ(screen.placement.height, 500);

    // Position and size stay the same each time the screen is opened, regardless of the size of the frame.
    for (int i = 0; i < 3; ++i) {
        Robot again(screen);
        again.pause().key(WXK_ESCAPE).show();
        EXPECT_EQ(screen.placement.left, 90);
        EXPECT_EQ(screen.placement.width, 700);
        EXPECT_EQ(screen.placement.height, 500);
    }

    screen.placement = {.left = 100000, .width = 1, .height = 1};
    Robot last(screen);
    last.then([&] {
        const wxRect rect = last.dialog()->GetRect();
        EXPECT_TRUE(wxRect(wxGetDisplaySize()).Contains(rect)) << rect.x << " " << rect.width;
        EXPECT_EQ(rect.GetSize(), last.dialog()->GetMinSize());
    });
    last.key(WXK_ESCAPE).show();
}

}  // namespace
}  // namespace tsln::desktop::test
