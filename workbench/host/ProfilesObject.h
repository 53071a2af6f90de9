#pragma once

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// "Profiles": the profile that the host was started with. In the workbench it is the default one, with an empty
/// name.
class ProfilesObject : public HostObject {
  public:
    using HostObject::HostObject;
    Variant invoke(std::string_view member, Access access, Arguments arguments) override {
        using Self = ProfilesObject;
        static constexpr Member<Self> members[] = {
            {"Profile", [](Self&, Arguments) { return Variant(""); }},
        };
        return answer(*this, "Profiles", members, member, access, arguments);
    }
};

}  // namespace tsln::workbench
