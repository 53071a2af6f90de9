#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "maintenance/ListDescription.h"
#include "shared/modSharedStrings.h"

namespace tsln::lists {

/// A type of discount group: its number, its caption, and the name of the group of this type that every company
/// needs, in lower case.
struct DiscountGroupType {
    std::int32_t number;
    std::string_view caption;
    std::string_view requiredGroup;
};
inline constexpr DiscountGroupType discountGroupTypes[] = {
    {0, "Price", "standard"},
    {1, "Cost", "vendor"},
    {2, "Customer", "customer"},
};

/// The form in which a name is compared with the names of required groups: trimmed, in lower case.
inline std::string comparableGroupName(std::string_view name) {
    return modSharedStrings::toLower(modSharedStrings::trim(name));
}

}  // namespace tsln::lists
