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

/// What a front end is told while it shows a screen.
class ScreenView {
  public:
    virtual ~ScreenView() = default;
    /// Something of the control changed: draw it anew from its state.
    virtual void controlChanged(Control& control) = 0;
    /// Caption, pointer or visibility of the screen changed.
    virtual void screenChanged() = 0;
    virtual void focusChanged(Control& control) = 0;
    /// A job of the screen has begun or ended.
    virtual void jobChanged() = 0;
    /// Runs something on the screen as if the user had done it, under the screen's guard; nothing happens
    /// while something else runs.
    virtual void act(const std::function<void()>& what) = 0;
};

/// A modal screen: its controls, their state and the rules, without a toolkit.
///
/// Life: created, load(), shown by the desktop, activate() each time it comes to the front, then hidden or
/// unloaded. Handlers run under handle(): whatever they throw is reported by reportError() and ends that
/// handler, with the screen and its input as they are.
class Screen {
  public:
    /// `name` is the screen's name to the outside ("frmTerms"), under which its position is kept.
    Screen(Desktop& desktop, std::string name);
    virtual ~Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    Desktop& desktop() const noexcept { return desktop_; }
    const std::string& name() const noexcept { return name_; }
    const std::string& caption() const noexcept { return caption_; }
    void setCaption(std::string caption);
    /// The mouse pointer is the hourglass.
    bool pointerBusy() const noexcept { return pointerBusy_; }
    void setPointerBusy(bool busy);

    virtual Layout layout() = 0;
    /// The controls in the order they were made.
    const std::vector<Control*>& controls() const noexcept { return controls_; }
    /// The control of that name, or null. Without letter case.
    Control* control(std::string_view name) const;

    /// Position and size in pixels at 96 per inch; what is not set is the front end's choice.
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
    /// Shows the screen modally and returns when it is hidden or unloaded. A screen that is shown already
    /// raises HostError(code::alreadyShown).
    void showModal();
    bool shown() const noexcept { return shown_; }
    /// The screen came to the front. Called by the front end.
    void activate();
    void hide();
    /// Unloads the screen unless it refuses.
    void unload();
    /// The user asks to close the screen by its close box.
    void userClose();
    /// The user asks for help by F1.
    void userHelp();

    /// The control that has the focus, or is to have it once the screen is shown; null leaves it to the
    /// layout.
    Control* focusedControl() const noexcept { return focused_; }
    void setFocus(Control& control);
    /// The focus went to this control by the user's act. Called by the front end.
    void userFocused(Control& control) { focused_ = &control; }

    /// Runs a handler and reports what it throws. Returns false when it threw.
    bool handle(const std::function<void()>& handler);

    /// The work of many steps that one of its handlers does now; null when there is none.
    Job* job() const noexcept { return job_; }

    ScreenView* view() const noexcept { return view_; }
    void setView(ScreenView* view) noexcept { view_ = view; }
    void controlChanged(Control& control);

  protected:
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    /// Answers whether the screen may close. `byCloseBox`: asked for by the title bar's close box.
    virtual bool Form_QueryUnload([[maybe_unused]] bool byCloseBox) { return true; }
    virtual void Form_Unload() {}
    virtual void Form_Help() {}
    /// A handler begins, and none of the screen's runs yet: an act of the user, or the first showing.
    virtual void actStarts() {}
    /// Tells the user of an error that ended a handler. Must not throw.
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
    int handlers_ = 0;  // running, one within the other
    bool pointerBusy_ = false;
    bool loaded_ = false;
    bool shown_ = false;
};

}  // namespace tsln
