#pragma once

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// "Security": the rights of the signed-in user by the stored roles. They are read at every call, so a changed role
/// takes effect at once.
class SecurityObject : public HostObject {
  public:
    using HostObject::HostObject;
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    /// Returns true when one of the user's roles grants all bits of `access` for the activity.
    bool canDo(std::int32_t activity, std::int32_t access) const;
    bool companyFlag(std::string_view name, std::string_view section, bool otherwise) const;
};

}  // namespace tsln::workbench
