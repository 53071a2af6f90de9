#include "screens/ProgressBar.h"

#include <algorithm>
#include <limits>

#include "screens/ControlMembers.h"

namespace tsln {

void ProgressBar::setRange(std::int32_t minimum, std::int32_t maximum) {
    minimum_ = minimum;
    maximum_ = std::max(minimum, maximum);
    value_ = std::clamp(value_, minimum_, maximum_);
    changed();
}

void ProgressBar::setValue(std::int32_t value) {
    const std::int32_t within = std::clamp(value, minimum_, maximum_);
    if (within == value_) return;
    value_ = within;
    changed();
}

void ProgressBar::step(std::int32_t by) {
    using Limits = std::numeric_limits<std::int32_t>;
    const std::int64_t wanted = std::int64_t{value_} + by;
    setValue(static_cast<std::int32_t>(std::clamp<std::int64_t>(wanted, Limits::min(), Limits::max())));
}

Variant ProgressBar::invoke(std::string_view member, Access access, Arguments arguments) {
    static constexpr Member<ProgressBar> members[] = {
        {"Min", [](ProgressBar& self, Arguments) { return Variant(self.minimum_); },
         [](ProgressBar& self, Arguments a) {
             const std::int32_t minimum = a[0].toLong();
             self.setRange(minimum, self.maximum_);
         }},
        {"Max", [](ProgressBar& self, Arguments) { return Variant(self.maximum_); },
         [](ProgressBar& self, Arguments a) {
             const std::int32_t maximum = a[0].toLong();
             self.setRange(std::min(self.minimum_, maximum), maximum);
         }},
        {"Value", [](ProgressBar& self, Arguments) { return Variant(self.value_); },
         [](ProgressBar& self, Arguments a) { self.setValue(a[0].toLong()); }},
    };
    return invokeControl(*this, members, member, access, arguments);
}

}  // namespace tsln
