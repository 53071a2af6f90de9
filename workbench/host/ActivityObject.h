#pragma once

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// "Activity": the histories of customers, vendors and employees.
class ActivityObject : public HostObject {
  public:
    using HostObject::HostObject;
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    /// Adds an entry (record, text) to the statement's table, under the user's name.
    Variant record(std::string_view statement, Arguments a);
};

}  // namespace tsln::workbench
