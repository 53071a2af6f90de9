#pragma once

#include <functional>
#include <string>
#include <vector>

#include "screens/Control.h"

namespace tsln {

class OptionButton;

/// A group of option buttons, at most one of which is chosen. It must outlive its buttons, so it is declared
/// before them. The buttons are in the order of their construction.
class OptionGroup {
  public:
    OptionGroup() = default;
    OptionGroup(const OptionGroup&) = delete;
    OptionGroup& operator=(const OptionGroup&) = delete;

    const std::vector<OptionButton*>& buttons() const noexcept { return buttons_; }
    /// The chosen button; null when none is.
    OptionButton* selected() const noexcept { return selected_; }
    /// The index of the chosen button in the group, from 0; -1 when none is chosen.
    int selectedIndex() const noexcept;
    /// An index that does not exist clears the choice.
    void selectIndex(int index);
    void clear() { selectIndex(-1); }

  private:
    friend class OptionButton;
    void select(OptionButton* button);

    std::vector<OptionButton*> buttons_;
    OptionButton* selected_ = nullptr;
};

/// One choice of an option group. The "&" in its caption marks the mnemonic.
class OptionButton : public Control {
  public:
    OptionButton(Screen& screen, OptionGroup& group, std::string name, std::string caption);
    ~OptionButton() override;
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    OptionGroup& group() const noexcept { return group_; }
    const std::string& caption() const noexcept { return caption_; }
    void setCaption(std::string caption);
    bool selected() const noexcept { return group_.selected() == this; }
    /// True chooses this button in its group. False clears the group's choice if it is this button.
    void setSelected(bool selected);

    std::function<void()> onClick;  ///< the user chose this button
    void userSelect();
    /// Adds `Value`, a boolean, and `Caption`.
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    friend class OptionGroup;

    OptionGroup& group_;
    std::string caption_;
};

}  // namespace tsln
