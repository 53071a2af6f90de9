#include "screens/ColorBox.h"

#include "screens/ControlMembers.h"

namespace tsln {

void ColorBox::setColor(std::int32_t color) {
    if (color == color_) return;
    color_ = color;
    changed();
}

void ColorBox::userChoose(std::int32_t color) {
    if (!enabled() || color == color_) return;
    setColor(color);
    fire(onChange);
}

Variant ColorBox::invoke(std::string_view member, Access access, Arguments arguments) {
    static constexpr Member<ColorBox> members[] = {
        {"SelectedColor", [](ColorBox& self, Arguments) { return Variant(self.color_); },
         [](ColorBox& self, Arguments a) { self.setColor(a[0].toLong()); }},
    };
    return invokeControl(*this, members, member, access, arguments);
}

}  // namespace tsln
