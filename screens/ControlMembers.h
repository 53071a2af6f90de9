#pragma once

#include <algorithm>

#include "screens/Control.h"

namespace tsln {

/// Answers a late-bound member from the table `members` of a control class, or else from Control.
template <class Self, std::size_t N>
Variant invokeControl(Self& self, const Member<Self> (&members)[N], std::string_view member, Access access,
                      Arguments arguments) {
    const bool own =
        std::ranges::any_of(members, [&](const auto& row) { return sameName(row.name, member); });
    if (!own) return self.Control::invoke(member, access, arguments);
    return invokeMember<Self>(self, self.name(), members, member, access, arguments);
}

}  // namespace tsln
