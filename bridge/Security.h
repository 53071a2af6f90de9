#pragma once

#include <cstdint>

#include "bridge/HostPart.h"

namespace tsln {

/// The rights to the rows of a list, as CanDo() takes them.
enum class Right : std::int32_t { Add = 8, Edit = 16, Delete = 32 };

class Security : HostPart {
  public:
    explicit Security(Library& library) : HostPart(library, "Security") {}
    /// True when the user holds the right in the security area.
    bool CanDo(std::int32_t area, Right right) const;
    /// True when the company uses the feature with this number.
    bool CompanyFeatureEnabled(std::int32_t feature) const;
};

}  // namespace tsln
