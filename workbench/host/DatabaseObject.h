#pragma once

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// "Database": runs the module's statements on the company.
///
/// What fails is kept for LastSQLError and LastSQLErrorDescription until the next failure. The members for
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
