#pragma once

#include <functional>
#include <memory>
#include <string>

#include "automation/Object.h"
#include "screens/ControlVisitor.h"

namespace tsln {

class Screen;

/// An element of a screen. A control holds its state and uses no toolkit: the screen sets the state, the
/// front end draws it and reports the user's actions through the user...() functions, and the host can
/// receive the control as an automation object. Controls are members of their screen and live as long.
class Control {
  public:
    /// `name` as the host sees it ("txtTerms"); it must be unique within the screen and outlive the control.
    Control(Screen& screen, std::string name);
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    Screen& screen() const noexcept { return screen_; }
    const std::string& name() const noexcept { return name_; }
    /// Calls the visitor's function for this kind of control.
    virtual void accept(ControlVisitor& visitor) = 0;

    bool enabled() const noexcept { return enabled_; }
    void setEnabled(bool enabled);
    bool visible() const noexcept { return visible_; }
    void setVisible(bool visible);
    /// Moves the keyboard focus to the control, or does so once the screen is shown.
    void setFocus();

    /// The name that screen readers announce. Empty: the label before the control in the layout.
    std::string accessibleName;
    std::string toolTip;

    /// Runs when the focus leaves the control, before the control that takes it gets its first event.
    std::function<void()> onLeave;
    void userLeft();
    /// Runs when the user has moved the focus to the control, after the `onLeave` of the previous control.
    std::function<void()> onEnter;
    void userEntered();

    /// The control as an automation object for the host. The object may outlive the control; its members then
    /// raise an error.
    ObjectPtr automation();

    /// Answers a late-bound member: `Name`, `Enabled`, `Visible`, `SetFocus` and those of the derived class.
    virtual Variant invoke(std::string_view member, Access access, Arguments arguments);

  protected:
    /// Tells the front end that something of this control changed.
    void changed();
    /// Runs a handler by Screen::handle(). An empty handler is ignored.
    void fire(const std::function<void()>& handler);

  private:
    class Automation;

    Screen& screen_;
    std::string name_;
    bool enabled_ = true;
    bool visible_ = true;
    std::shared_ptr<Automation> automation_;
};

}  // namespace tsln
