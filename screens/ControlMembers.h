#pragma once

#include "screens/Control.h"

namespace tsln {

/// Answers a late-bound member from the table `members` of a control class, or else from Control.
template <class Self, std::size_t N>
Variant invokeControl(Self& self, const Member<Self> (&members)[N], std::string_view member, Access access,
                      Arguments arguments) {
    const auto* row = findMember<Self>(members, member);
    return row ? invokeRow(self, self.name(), *row, access, arguments)
               : self.Control::invoke(member, access, arguments);
}

}  // namespace tsln
