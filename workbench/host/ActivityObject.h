#pragma once

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// "Activity": the history of single customers, vendors and employees.
class ActivityObject : public HostObject {
  public:
    using HostObject::HostObject;
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    /// Adds an entry (record, text) to the statement's table, in the user's name.
    Variant record(std::string_view statement, Arguments a);
};

}  // namespace tsln::workbench
