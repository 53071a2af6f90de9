#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <string>

#include <wx/event.h>
#include <wx/timer.h>

#include "desktop/ScreenDialog.h"
#include "desktop/WxDesktop.h"

namespace tsln::desktop::test {

/// The user at a screen: a list of steps taken one after the other while the screen is shown. Keys and clicks
/// go through the display server. No window manager is needed.
class Robot : private wxTimer {
  public:
    explicit Robot(Screen& screen) : screen_(screen) {}

    /// Does something. It may open further windows and return only when they are closed.
    Robot& then(std::function<void()> what);
    /// Waits until something is true; fails after some seconds.
    Robot& until(std::string what, std::function<bool()> isTrue);
    /// Presses a key (wxKeyCode or an upper-case letter) with wxKeyModifiers.
    Robot& key(int code, int modifiers = 0);
    Robot& type(const std::string& text);
    Robot& click(const Control& control);
    /// Moves the pointer there, and with it the keyboard to that control's window.
    Robot& pointAt(const Control& control);
    /// A point in the client area of a control's input window, asked for when it is needed.
    using Where = std::function<wxPoint()>;
    Robot& clickAt(const Control& control, Where where, int modifiers = 0);
    /// Waits so long that the next click is no double click with the one before.
    Robot& pause();
    Robot& doubleClickAt(const Control& control, Where where);
    Robot& rightClickAt(const Control& control, Where where);
    /// Waits until that screen is shown too.
    Robot& untilOpen(const Screen& other);

    /// Shows the screen and takes the steps. After the last one the screen must close by itself.
    void show();

    /// The foremost top-level window of a class that is shown; null when there is none.
    template <class Window>
    static Window* find() {
        for (auto node = wxTopLevelWindows.GetLast(); node; node = node->GetPrevious()) {
            auto* window = dynamic_cast<Window*>(node->GetData());
            if (window && window->IsShown()) return window;
        }
        return nullptr;
    }
    ScreenDialog* dialog() const { return dialogOf(screen_); }
    static ScreenDialog* dialogOf(const Screen& screen);
    wxWindow* windowOf(const Control& control) const;
    /// The control that has the keyboard, or null.
    Control* focused() const;

  private:
    struct Step {
        std::string what;
        std::function<bool()> isTrue;  // what is waited for, or
        std::function<void()> act;     // what is done
    };
    void Notify() override;
    Robot& pointerStep(const Control& control, Where where, std::function<void()> act);

    using Clock = std::chrono::steady_clock;
    Screen& screen_;
    std::deque<Step> steps_;
    Clock::time_point since_{};
    bool typing_ = false;
    bool failed_ = false;
};

}  // namespace tsln::desktop::test
