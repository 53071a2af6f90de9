#include "screens/OptionButton.h"

#include <algorithm>
#include <utility>

#include "screens/ControlMembers.h"

namespace tsln {

int OptionGroup::selectedIndex() const noexcept {
    const auto found = std::ranges::find(buttons_, selected_);
    return found == buttons_.end() ? -1 : static_cast<int>(found - buttons_.begin());
}

void OptionGroup::selectIndex(int index) {
    const bool exists = index >= 0 && index < static_cast<int>(buttons_.size());
    select(exists ? buttons_[static_cast<std::size_t>(index)] : nullptr);
}

void OptionGroup::select(OptionButton* button) {
    if (button == selected_) return;
    OptionButton* before = std::exchange(selected_, button);
    // Notified after the change: a front end that draws at once must see the group in its new state.
    if (before) before->changed();
    if (button) button->changed();
}

OptionButton::OptionButton(Screen& screen, OptionGroup& group, std::string name, std::string caption)
    : Control(screen, std::move(name)), group_(group), caption_(std::move(caption)) {
    group_.buttons_.push_back(this);
}

OptionButton::~OptionButton() {
    std::erase(group_.buttons_, this);
    if (selected()) group_.selected_ = nullptr;
}

void OptionButton::setCaption(std::string caption) {
    caption_ = std::move(caption);
    changed();
}

void OptionButton::setSelected(bool selected) {
    if (selected) {
        group_.select(this);
    } else if (group_.selected() == this) {
        group_.select(nullptr);
    }
}

void OptionButton::userSelect() {
    if (!enabled() || selected()) return;
    group_.select(this);
    fire(onClick);
}

Variant OptionButton::invoke(std::string_view member, Access access, Arguments arguments) {
    static constexpr Member<OptionButton> members[] = {
        {"Value", [](OptionButton& self, Arguments) { return Variant(self.selected()); },
         [](OptionButton& self, Arguments a) { self.setSelected(a[0].toBoolean()); }},
        {"Caption", [](OptionButton& self, Arguments) { return Variant(self.caption_); },
         [](OptionButton& self, Arguments a) { self.setCaption(a[0].toText()); }},
    };
    return invokeControl(*this, members, member, access, arguments);
}

}  // namespace tsln
