#pragma once

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// A component of the host, created by its program identifier. "Initialize" sets the shared-code object,
/// "PreTerminate" releases it. Errors name "Engine" as their source.
class EngineObject : public HostObject {
  public:
    using HostObject::HostObject;
    Variant invoke(std::string_view member, Access access, Arguments arguments) final;

  protected:
    /// Handles all members except these two.
    virtual Variant invokeOwn(std::string_view member, Access access, Arguments arguments) = 0;
    /// Called by "PreTerminate".
    virtual void terminated() {}
    /// Raises HostError(code::objectNotSet) before "Initialize" and after "PreTerminate".
    Object& sharedCode() const;

  private:
    ObjectPtr sharedCode_;
};

}  // namespace tsln::workbench
