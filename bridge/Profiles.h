#pragma once

#include <string>

#include "bridge/HostPart.h"

namespace tsln {

/// The profiles under which the host's settings are kept.
class Profiles : HostPart {
  public:
    explicit Profiles(Library& library) : HostPart(library, "Profiles") {}
    /// The name of the current profile; empty for the default one.
    std::string Profile() const { return textOf(call("Profile"), "Profile"); }
};

}  // namespace tsln
