#include "workbench/host/HostContext.h"

#include "shared/modSharedXML.h"
#include "workbench/sql/SqlText.h"

namespace tsln::workbench {
namespace {

constexpr std::string_view userColumns =
    "SELECT ID, Username, PasswordHash, dbo.BuildEmployeeName(FirstName, MiddleInitial, LastName) AS EmployeeName, Active, CanLogin FROM Employees WHERE ";

User userOf(modSharedXML::Record row) {
    return {readLong("ID", row), readText("Username", row), readText("EmployeeName", row),
            readText("PasswordHash", row)};
}

User signIn(Company& company, std::string_view login) {
    const auto rows =
        modSharedXML::Records::parse(company.read(std::string(userColumns) + "Username = " + literal(login)));
    const modSharedXML::Record row = rows.first();
    const std::string name = "'" + std::string(login) + "'";
    if (login.empty() || !row) throw SignInError("This company has no user " + name + ".");
    if (!readBoolean("Active", row) || !readBoolean("CanLogin", row)) {
        throw SignInError("The user " + name + " may not log in to this company.");
    }
    return userOf(row);
}

}  // namespace

HostContext::HostContext(const std::string& path, OpenMode mode, std::string_view login, HostUi& hostUi)
    : company(path, mode),
      ui(hostUi),
      user(signIn(company, login)),
      eventLog(company, user.login),
      options(company) {}

void HostContext::readUserAgain() {
    const auto rows = modSharedXML::Records::parse(
        company.read(std::string(userColumns) + "ID = " + std::to_string(user.ID)));
    if (rows.count() > 0) user = userOf(rows.first());
}

}  // namespace tsln::workbench
