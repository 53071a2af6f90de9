#pragma once

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// A component of the host that is created by its program identifier. "Initialize" gives it the shared-code
/// object, "PreTerminate" takes it back; "Engine" is its name in what it raises.
class EngineObject : public HostObject {
  public:
    using HostObject::HostObject;
    Variant invoke(std::string_view member, Access access, Arguments arguments) final;

  protected:
    /// Every member but the two.
    virtual Variant invokeOwn(std::string_view member, Access access, Arguments arguments) = 0;
    /// "PreTerminate" was called.
    virtual void terminated() {}
    /// Raises HostError(code::objectNotSet) before "Initialize" and after "PreTerminate".
    Object& sharedCode() const;

  private:
    ObjectPtr sharedCode_;
};

}  // namespace tsln::workbench
