#include "entities/EmployeeRoles.h"

#include <array>

#include "shared/modSharedSQL.h"

namespace tsln::entities {
namespace {

using modSharedSQL::format;

enum Column : std::size_t { Name, Description, Assigned, Updated };

}  // namespace

EmployeeRoles::EmployeeRoles(HostScreen& screen) : rptRoles(screen, "rptRoles"), screen_(screen) {
    using Kind = ReportColumn::Kind;
    rptRoles.columns = {{.caption = "Security role", .width = 180},
                        {.caption = "Description", .width = 300},
                        {.caption = "Assigned", .width = 80, .kind = Kind::Check, .editable = true},
                        {.caption = "Updated", .width = 80, .kind = Kind::Check}};
    rptRoles.accessibleName = "Security roles";
    rptRoles.onCellEdited = [this](std::size_t record, std::size_t) { mark(record); };
}

void EmployeeRoles::mark(std::size_t record) {
    const bool differs = rptRoles.checked(record, Assigned) != stored_.contains(rptRoles.id(record));
    rptRoles.setCell(record, Updated, differs ? "1" : "0");
}

void EmployeeRoles::read(std::int32_t employee) {
    loaded_ = false;
    const Database database = screen_.host().database();
    const Records roles = database.ExecuteRead("SELECT * FROM SecurityRoles ORDER BY Name");
    stored_.clear();
    if (employee >= 1) {
        const Records assigned = database.ExecuteRead(
            format("SELECT * FROM EmployeeSecurityRoles WHERE EmployeeID = {0}", employee));
        for (const Record row : assigned)
            stored_.insert(modSharedXML::readLong("SecurityRoleID", row));
    }
    rptRoles.clearRecords();
    for (const Record row : roles) {
        const std::int32_t role = modSharedXML::readLong("ID", row);
        const std::string name = modSharedXML::readText("Name", row);
        const std::string description = modSharedXML::readText("Description", row);
        const std::array<std::string_view, 4> cells{name, description, stored_.contains(role) ? "1" : "0",
                                                    "0"};
        rptRoles.addRecord(role, cells);
    }
    rptRoles.populate();
    loaded_ = true;
}

std::size_t EmployeeRoles::tickedCount() const {
    std::size_t count = 0;
    for (std::size_t record = 0; record < rptRoles.recordCount(); ++record)
        count += rptRoles.checked(record, Assigned) ? 1 : 0;
    return count;
}

void EmployeeRoles::save(std::int32_t employee) {
    if (!loaded_) return;
    const Database database = screen_.host().database();
    bool failed = false;
    for (std::size_t record = 0; record < rptRoles.recordCount(); ++record) {
        if (!rptRoles.checked(record, Updated)) continue;
        const std::string_view statement =
            rptRoles.checked(record, Assigned)
                ? "INSERT INTO EmployeeSecurityRoles (EmployeeID, SecurityRoleID) VALUES({0},{1})"
                : "DELETE FROM EmployeeSecurityRoles WHERE EmployeeID = {0} AND SecurityRoleID = {1}";
        if (!database.ExecuteNonQuery(format(statement, employee, rptRoles.id(record)))) failed = true;
    }
    if (failed) screen_.reportDatabaseFailure("One or more of the security roles could not be saved.");
}

}  // namespace tsln::entities
