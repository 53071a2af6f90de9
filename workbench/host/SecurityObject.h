#pragma once

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// "Security": what the signed-in user may do, by the roles that are stored for him. It is read anew each
/// time, so a changed role counts at once.
class SecurityObject : public HostObject {
  public:
    using HostObject::HostObject;
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    /// True when one of the user's roles grants every bit of `access` for the activity.
    bool canDo(std::int32_t activity, std::int32_t access) const;
    bool companyFlag(std::string_view name, std::string_view section, bool otherwise) const;
};

}  // namespace tsln::workbench
