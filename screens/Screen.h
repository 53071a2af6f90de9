#pragma once

#include <exception>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "screens/Controls.h"
#include "screens/Desktop.h"
#include "screens/Layout.h"

namespace tsln {

class Job;
class Timer;

/// Receives the changes of a screen while a front end shows it.
class ScreenView {
  public:
    virtual ~ScreenView() = default;
    /// The state of the control changed and must be redrawn.
    virtual void controlChanged(Control& control) = 0;
    /// Caption, pointer or visibility of the screen changed.
    virtual void screenChanged() = 0;
    virtual void focusChanged(Control& control) = 0;
    /// A job of the screen has begun or ended.
    virtual void jobChanged() = 0;
    /// Runs a handler as a user action, by Screen::handle(). Does nothing while another action runs.
    virtual void act(const std::function<void()>& what) = 0;
};

/// A modal screen: its controls, their state and its rules, without a toolkit.
///
/// Life: created, load(), shown by the desktop, activate() each time it comes to the front, then hidden or
/// unloaded. Handlers run through handle(): an exception ends the handler and is reported by reportError();
/// the screen and its input stay as they are.
class Screen {
  public:
    /// `name` is the screen's external name ("frmTerms"), under which its position is saved.
    Screen(Desktop& desktop, std::string name);
    virtual ~Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    Desktop& desktop() const noexcept { return desktop_; }
    const std::string& name() const noexcept { return name_; }
    const std::string& caption() const noexcept { return caption_; }
    void setCaption(std::string caption);
    /// Whether the mouse pointer is the hourglass.
    bool pointerBusy() const noexcept { return pointerBusy_; }
    void setPointerBusy(bool busy);

    virtual Layout layout() = 0;
    /// The controls in the order of their construction.
    const std::vector<Control*>& controls() const noexcept { return controls_; }
    /// The control of that name, ignoring letter case; null when there is none.
    Control* control(std::string_view name) const;

    /// Position and size in pixels at 96 per inch. The front end chooses values that are not set.
    struct Placement {
        std::optional<int> left;
        std::optional<int> width;
        std::optional<int> height;
        bool maximized = false;
    };
    Placement placement;
    bool resizable = true;

    // Life --------------------------------------------------------------------------------------------
    void load();
    bool loaded() const noexcept { return loaded_; }
    /// Shows the screen modally and returns when it is hidden or unloaded. Raises
    /// HostError(code::alreadyShown) when the screen is already shown.
    void showModal();
    bool shown() const noexcept { return shown_; }
    /// The screen came to the front. Called by the front end.
    void activate();
    void hide();
    /// Unloads and hides the screen unless Form_QueryUnload() returns false.
    void unload();
    /// The user clicked the screen's close box.
    void userClose();
    /// The user pressed F1.
    void userHelp();

    /// The control that has the focus or receives it once the screen is shown; null for the first control of
    /// the layout.
    Control* focusedControl() const noexcept { return focused_; }
    void setFocus(Control& control);
    /// The user moved the focus to this control. Called by the front end.
    void userFocused(Control& control) { focused_ = &control; }

    /// Runs a handler. Reports an exception from it and returns false.
    bool handle(const std::function<void()>& handler);

    /// The job that a handler of the screen runs now; null when there is none.
    Job* job() const noexcept { return job_; }

    ScreenView* view() const noexcept { return view_; }
    void setView(ScreenView* view) noexcept { view_ = view; }
    void controlChanged(Control& control);

  protected:
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    /// Returns whether the screen may close. `byCloseBox`: the user clicked the close box in the title bar.
    virtual bool Form_QueryUnload([[maybe_unused]] bool byCloseBox) { return true; }
    virtual void Form_Unload() {}
    virtual void Form_Help() {}
    /// Called before a handler that is not nested in another handler of the screen, for example at a user
    /// action.
    virtual void actStarts() {}
    /// Reports an error that ended a handler to the user.
    virtual void reportError(const std::exception& error) noexcept;

  private:
    friend class Control;
    friend class Job;
    friend class Timer;
    void close(bool byCloseBox);
    void setJob(Job* job);

    Desktop& desktop_;
    std::string name_;
    std::string caption_;
    std::vector<Control*> controls_;
    std::vector<Timer*> timers_;
    Job* job_ = nullptr;
    ScreenView* view_ = nullptr;
    Control* focused_ = nullptr;
    int handlers_ = 0;  // the number of nested handlers that run
    bool pointerBusy_ = false;
    bool loaded_ = false;
    bool shown_ = false;
};

}  // namespace tsln
