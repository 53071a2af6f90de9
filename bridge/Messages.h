#pragma once

#include <cstdint>
#include <string_view>

#include "bridge/HostPart.h"

namespace tsln {

/// Notices to the rest of the host.
class Messages : HostPart {
  public:
    explicit Messages(Library& library) : HostPart(library, "Messages") {}
    /// `code` says what happened, `about` to which record.
    void PostMessage(std::int32_t code, std::int32_t about) const;
};

}  // namespace tsln
