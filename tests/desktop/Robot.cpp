#include "tests/desktop/Robot.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/frame.h>
#include <wx/uiaction.h>
#include <wx/utils.h>

#ifdef __WXGTK__
#include <gtk/gtk.h>
#endif

#include "desktop/NativeWindow.h"
#include "screens/Controls.h"
#include "screens/Splitter.h"
#include "screens/TabControl.h"

namespace tsln::desktop::test {
namespace {

constexpr int tick = 30;  // milliseconds between steps: time for events to return from the display server
constexpr auto timeToFinish = std::chrono::milliseconds(150);
constexpr auto patience = std::chrono::seconds(20);

}  // namespace

Robot& Robot::then(std::function<void()> what) {
    steps_.push_back({.act = std::move(what)});
    return *this;
}

Robot& Robot::until(std::string what, std::function<bool()> isTrue) {
    steps_.push_back({std::move(what), std::move(isTrue)});
    return *this;
}

Robot& Robot::untilFocused(const Control& control) {
    return until("focus on " + control.name(), [this, &control] { return focused() == &control; });
}

Robot& Robot::key(int code, int modifiers) {
    return then([=] { wxUIActionSimulator().Char(code, modifiers); });
}

Robot& Robot::type(const std::string& text) {
    for (const char letter : text) {
        then([letter] { wxUIActionSimulator().Text(wxString(letter)); });
    }
    return *this;
}

Robot& Robot::pointerStep(const Control& control, Where where, std::function<void()> act) {
    const auto target = [this, &control, where] {
        const wxWindow* window = windowOf(control);
        return window ? window->ClientToScreen(where()) : wxGetMousePosition();
    };
    then([target] { wxUIActionSimulator().MouseMove(target()); });
    until("pointer at " + control.name(), [target] { return wxGetMousePosition() == target(); });
    return then(std::move(act));
}

Robot& Robot::pointAt(const Control& control) {
    return pointerStep(
        control, [] { return wxPoint(5, 5); }, [] {});
}

Robot& Robot::pause() {
    return until("a pause", [this] { return Clock::now() - since_ > std::chrono::milliseconds(600); });
}

Robot& Robot::click(const Control& control) {
    return clickAt(control, [] { return wxPoint(12, 12); });
}

Robot& Robot::clickAt(const Control& control, Where where, int modifiers) {
    return pointerStep(control, where, [modifiers] {
        wxUIActionSimulator user;
        if (modifiers & wxMOD_CONTROL) user.KeyDown(WXK_CONTROL);
        if (modifiers & wxMOD_SHIFT) user.KeyDown(WXK_SHIFT);
        user.MouseClick();
        if (modifiers & wxMOD_SHIFT) user.KeyUp(WXK_SHIFT);
        if (modifiers & wxMOD_CONTROL) user.KeyUp(WXK_CONTROL);
    });
}

Robot& Robot::doubleClickAt(const Control& control, Where where) {
    return pointerStep(control, where, [] { wxUIActionSimulator().MouseDblClick(); });
}

Robot& Robot::rightClickAt(const Control& control, Where where) {
    return pointerStep(control, where, [] { wxUIActionSimulator().MouseClick(wxMOUSE_BTN_RIGHT); });
}

void Robot::show() {
    // The pointer is moved by a posted act: the simulator runs the event loop, where the screen may begin its work, and
    // the robot's timer does not fire within its own event.
    steps_.push_front({"the screen is active", [this] { return focused() != nullptr; }});
    steps_.push_front({"the screen is shown", [this] { return dialog() && dialog()->IsShown(); },
                       // Without a window manager the window under the pointer has the focus.
                       [this] {
                           wxUIActionSimulator().MouseMove(dialog()->ClientToScreen({3, 3}));
                       }});
    since_ = Clock::now();
    Start(tick);
    screen_.showModal();
    Stop();
    if (failed_) return;
    EXPECT_TRUE(steps_.empty()) << steps_.size() << " steps left";
}

void Robot::Notify() {
    // Sending a key may run the event loop, and the next action must not start before this one has ended.
    if (*unfinished_ > 0 && Clock::now() - since_ < timeToFinish) return;
    if (!failed_ && !steps_.empty() && (!steps_.front().isTrue || steps_.front().isTrue())) {
        // The action is posted: one that opens a menu or a dialog returns only when that is closed, and the
        // timer would not fire until then.
        if (steps_.front().act) {
            ++*unfinished_;
            wxTheApp->CallAfter([act = std::move(steps_.front().act), unfinished = unfinished_] {
                act();
                --*unfinished;
            });
        }
        steps_.pop_front();
        since_ = Clock::now();
        return;
    }
    if (Clock::now() - since_ < patience && !failed_) return;
    if (!failed_) {
        const Control* control = focused();
        ADD_FAILURE() << "Timed out waiting for: " << (steps_.empty() ? "the end" : steps_.front().what)
                      << "; the focus is on " << (control ? control->name() : "no control");
    }
    failed_ = true;
    // Closes all open windows, so that the other tests can run; Esc closes menus.
    wxUIActionSimulator().Char(WXK_ESCAPE);
    if (auto* box = find<wxDialog>(); box && !dynamic_cast<ScreenDialog*>(box) && box->IsModal()) {
        box->EndModal(wxID_CANCEL);
    } else if (auto* frame = find<wxFrame>()) {
        frame->Close(true);
    } else if (auto* screen = find<ScreenDialog>()) {
        screen->screen().hide();
    }
}

Robot& Robot::untilOpen(const Screen& other) {
    return until(other.name() + " is shown", [&] { return dialogOf(other) && dialogOf(other)->IsShown(); });
}

ScreenDialog* Robot::dialogOf(const Screen& screen) {
    for (wxWindow* window : wxTopLevelWindows) {
        auto* dialog = dynamic_cast<ScreenDialog*>(window);
        if (dialog && &dialog->screen() == &screen) return dialog;
    }
    return nullptr;
}

bool Robot::leavesOthersUsable() const {
#ifdef __WXGTK__
    return gtk_grab_get_current() != dialog()->GetHandle();
#else
    return dialog()->GetParent() && dialog()->GetParent()->IsEnabled();
#endif
}

wxWindow* Robot::windowOf(const Control& control) const {
    for (wxWindow* window : wxTopLevelWindows) {
        auto* dialog = dynamic_cast<ScreenDialog*>(window);
        if (!dialog) continue;
        if (const ControlView* view = dialog->viewOf(control)) return &view->inputWindow();
    }
    return nullptr;
}

Control* Robot::focused() const {
    if (!dialog() || !dialog()->IsActive()) return nullptr;
    Control* tabs = nullptr;  // has the focus when no control on its pages has it
    for (Control* control : screen_.controls()) {
        const wxWindow* window = windowOf(*control);
        const bool holdsOthers = dynamic_cast<Frame*>(control) || dynamic_cast<Splitter*>(control);
        if (!window || holdsOthers || !hasKeyboard(*window)) continue;
        if (!dynamic_cast<TabControl*>(control)) return control;
        tabs = control;
    }
    return tabs;
}

}  // namespace tsln::desktop::test
