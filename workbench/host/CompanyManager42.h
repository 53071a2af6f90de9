#pragma once

#include <string>

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// The component "tslncmgr5.Library": opens companies of version 4.2.
///
/// Its "PSD" describes a company: "Load" (path, login name, mark of a program of the family) returns false for another
/// login or mark and for an empty path; "ConnectionString" then tells "tslnsql5.Engine" where the company is. The path may
/// be that of a folder with one such company. "CanOpenCompany2" (connection string) returns whether it can be read, and
/// writes to the event log why not.
class CompanyManager42 : public HostObject {
  public:
    explicit CompanyManager42(std::shared_ptr<HostContext> context);
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    bool canOpen(const std::string& connectionString);

    ObjectPtr description_;
};

/// The component "tslnsql5.Engine" as the migration uses it: "Initialize" (connection string) opens a company of version
/// 4.2 for reading, "ExecuteRead" (SELECT) returns its rows as a query result document, "PreTerminate" closes it.
class SqlEngine42 : public HostObject {
  public:
    using HostObject::HostObject;
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    bool open(const std::string& connectionString);

    std::unique_ptr<Company> company_;
};

}  // namespace tsln::workbench
