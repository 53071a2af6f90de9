#pragma once

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// "Database": runs the module's statements on the company.
///
/// LastSQLError and LastSQLErrorDescription keep a failure until the next one. The members that read also raise it;
/// the members that write return false or 0.
/// reading raise it as well; those for writing answer false or 0.
class DatabaseObject : public HostObject {
  public:
    using HostObject::HostObject;
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    Variant ExecuteRead(Arguments a);
    Variant ExecuteScaler(Arguments a);
    Variant ExecuteNonQuery(Arguments a);
    Variant ExecuteNonQueryWithID(Arguments a);
    void keep(const SqlError& error);
};

}  // namespace tsln::workbench
