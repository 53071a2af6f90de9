#include "screens/Control.h"

#include "screens/Screen.h"

namespace tsln {

/// The automation object given to the host. It may outlive the control.
class Control::Automation : public Object {
  public:
    explicit Automation(Control& control) : control_(&control) {}
    void detach() noexcept { control_ = nullptr; }

    Variant invoke(std::string_view member, Access access, Arguments arguments) override {
        if (!control_) {
            throw HostError(code::objectNotSet, "Control", "The screen of this control is closed.");
        }
        return control_->invoke(member, access, arguments);
    }

  private:
    Control* control_;
};

Control::Control(Screen& screen, std::string name) : screen_(screen), name_(std::move(name)) {
    screen_.controls_.push_back(this);
}

Control::~Control() {
    if (automation_) automation_->detach();
    std::erase(screen_.controls_, this);
    if (screen_.focused_ == this) screen_.focused_ = nullptr;
}

void Control::setEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    changed();
}

void Control::setVisible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    changed();
}

void Control::setFocus() {
    screen_.setFocus(*this);
}

void Control::userLeft() {
    fire(onLeave);
}

void Control::userEntered() {
    fire(onEnter);
}

ObjectPtr Control::automation() {
    if (!automation_) automation_ = std::make_shared<Automation>(*this);
    return automation_;
}

void Control::changed() {
    screen_.controlChanged(*this);
}

void Control::fire(const std::function<void()>& handler) {
    if (handler) screen_.handle(handler);
}

Variant Control::invoke(std::string_view member, Access access, Arguments arguments) {
    static constexpr Member<Control> members[] = {
        {"Name", [](Control& self, Arguments) { return Variant(self.name_); }},
        {"Enabled", [](Control& self, Arguments) { return Variant(self.enabled_); },
         [](Control& self, Arguments a) { self.setEnabled(a[0].toBoolean()); }},
        {"Visible", [](Control& self, Arguments) { return Variant(self.visible_); },
         [](Control& self, Arguments a) { self.setVisible(a[0].toBoolean()); }},
        {"SetFocus",
         [](Control& self, Arguments) {
             self.setFocus();
             return Variant();
         }},
    };
    return invokeMember<Control>(*this, name_, members, member, access, arguments);
}

}  // namespace tsln
