#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <string>

#include <wx/event.h>
#include <wx/timer.h>

#include "desktop/ScreenDialog.h"
#include "desktop/WxDesktop.h"

namespace tsln::desktop::test {

/// Simulates the user of a screen by a list of steps, which run in sequence while the screen is shown. Keys
/// and clicks go through the display server. No window manager is needed.
class Robot : private wxTimer {
  public:
    explicit Robot(Screen& screen) : screen_(screen) {}

    /// Runs an action. It may open further windows and return only when they are closed.
    Robot& then(std::function<void()> what);
    /// Waits until a condition is true. Fails after 20 seconds. `what` describes the condition.
    Robot& until(std::string what, std::function<bool()> isTrue);
    /// Waits until the control has the keyboard focus.
    Robot& untilFocused(const Control& control);
    /// Presses a key (wxKeyCode or an upper-case letter) with wxKeyModifiers.
    Robot& key(int code, int modifiers = 0);
    Robot& type(const std::string& text);
    Robot& click(const Control& control);
    /// Moves the pointer to the control, which gives its top-level window the focus.
    Robot& pointAt(const Control& control);
    /// Returns a point in the client area of a control's input window. Called when the step runs.
    using Where = std::function<wxPoint()>;
    Robot& clickAt(const Control& control, Where where, int modifiers = 0);
    /// Waits long enough that the next click does not form a double click with the previous one.
    Robot& pause();
    Robot& doubleClickAt(const Control& control, Where where);
    Robot& rightClickAt(const Control& control, Where where);
    /// Waits until the other screen is shown.
    Robot& untilOpen(const Screen& other);

    /// Shows the screen and runs the steps. The last step must close the screen.
    void show();

    /// The last opened top-level window of a class that is shown; null when there is none.
    template <class Window>
    static Window* find() {
        for (auto node = wxTopLevelWindows.GetLast(); node; node = node->GetPrevious()) {
            auto* window = dynamic_cast<Window*>(node->GetData());
            if (window && window->IsShown()) return window;
        }
        return nullptr;
    }
    ScreenDialog* dialog() const { return dialogOf(screen_); }
    /// Whether the windows below the screen can be used while it is open.
    bool leavesOthersUsable() const;
    static ScreenDialog* dialogOf(const Screen& screen);
    wxWindow* windowOf(const Control& control) const;
    /// The control that has the keyboard focus, or null.
    Control* focused() const;

  private:
    struct Step {
        std::string what;
        std::function<bool()> isTrue;  // set: the step waits for this condition
        std::function<void()> act;     // set: the step runs this action
    };
    void Notify() override;
    Robot& pointerStep(const Control& control, Where where, std::function<void()> act);

    using Clock = std::chrono::steady_clock;
    Screen& screen_;
    std::deque<Step> steps_;
    Clock::time_point since_{};
    /// The number of posted actions that have not returned: they are queued or have opened a window.
    std::shared_ptr<int> unfinished_ = std::make_shared<int>(0);
    bool failed_ = false;
};

}  // namespace tsln::desktop::test
