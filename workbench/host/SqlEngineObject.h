#pragma once

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// The host's SQL engine: "ExecuteScaler" (statement) returns the first value as "Database" does, "ExecuteNonQuery"
/// (statement) whether it ran; "PreTerminate" ends its use, after which it answers no more.
class SqlEngineObject : public HostObject {
  public:
    using HostObject::HostObject;
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    /// Raises HostError(code::objectNotSet) after "PreTerminate".
    Company& company() const;

    bool terminated_ = false;
};

}  // namespace tsln::workbench
