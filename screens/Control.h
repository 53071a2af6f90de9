#pragma once

#include <functional>
#include <memory>
#include <string>

#include "automation/Object.h"
#include "screens/ControlVisitor.h"

namespace tsln {

class Screen;

/// Something a screen shows. It holds state and knows no toolkit: the screen writes it, the front end draws
/// it and reports the user's acts through the user...() functions, and the host may be handed it as an
/// automation object. Controls are members of their screen and live as long as it does.
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
    /// Moves the keyboard focus here, as soon as the screen is shown.
    void setFocus();

    /// What a screen reader calls the control; empty means the label before it in the layout.
    std::string accessibleName;
    std::string toolTip;

    /// Runs when the focus leaves the control, before the control that takes it gets its first event.
    std::function<void()> onLeave;
    void userLeft();
    /// Runs when the user has moved the focus here, after the `onLeave` of the control that had it.
    std::function<void()> onEnter;
    void userEntered();

    /// The control as the host sees it. The reference may outlive the control: its members then raise an
    /// error.
    ObjectPtr automation();

    /// Answers a late-bound member: `Name`, `Enabled`, `Visible`, `SetFocus`, then what the kind adds.
    virtual Variant invoke(std::string_view member, Access access, Arguments arguments);

  protected:
    /// Tells the front end that something of this control changed.
    void changed();
    /// Runs a handler of the screen under its guard; an empty one is passed over.
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
