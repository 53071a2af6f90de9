#pragma once

#include <cstdint>
#include <string_view>

#include "bridge/HostPart.h"

namespace tsln {

/// Notices to the other parts of the host.
class Messages : HostPart {
  public:
    explicit Messages(Library& library) : HostPart(library, "Messages") {}
    /// `code` is the event, `about` the key of its record.
    void PostMessage(std::int32_t code, std::int32_t about) const;
};

}  // namespace tsln
