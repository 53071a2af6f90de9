#include "workbench/host/RecordLists.h"

#include <algorithm>

#include "shared/modSharedSQL.h"
#include "workbench/host/TextOf.h"

namespace tsln::workbench {
namespace {

constexpr std::string_view vendorColumns[] = {"Vendor", "Contact", "City", "Active", "Locked"};

constexpr std::string_view customerColumns[] = {"Customer", "Contact", "City", "Phone", "Active"};

constexpr std::string_view employeeColumns[] = {"Employee", "E-mail", "User", "Can log in", "Active"};

constexpr RecordKind kinds[] = {
    {.edit = Operation::ShowEditCustomer,
     .caption = "Customers",
     .columns = customerColumns,
     .list =
         "SELECT ID, CustomerName, Contact, BillToCity, Phone1, CASE WHEN Active <> 0 THEN 'Yes' ELSE 'No' END "
         "FROM Customers ORDER BY CustomerName, ID",
     .history =
         "SELECT REPLACE(ActivityDate, 'T', ' '), Activity FROM CustomerActivity WHERE CustomerID = {0} ORDER BY ID DESC"},
    {.edit = Operation::ShowEditEmployee,
     .caption = "Employees",
     .columns = employeeColumns,
     .list =
         "SELECT ID, dbo.BuildEmployeeName(FirstName, MiddleInitial, LastName), Email1, Username, CASE WHEN CanLogin <> 0 THEN 'Yes' ELSE '' END, CASE WHEN Active <> 0 THEN 'Yes' ELSE 'No' END "
         "FROM Employees ORDER BY LastName, FirstName, ID",
     .history =
         "SELECT REPLACE(ActivityDate, 'T', ' '), Activity FROM EmployeeActivity WHERE EmployeeID = {0} ORDER BY ID DESC"},
    {.edit = Operation::ShowEditVendor,
     .caption = "Vendors",
     .columns = vendorColumns,
     .list =
         "SELECT ID, VendorName, Contact, BillToCity, CASE WHEN Active <> 0 THEN 'Yes' ELSE 'No' END, CASE WHEN Locked <> 0 THEN 'Yes' ELSE '' END "
         "FROM Vendors ORDER BY VendorName, ID",
     .history =
         "SELECT REPLACE(ActivityDate, 'T', ' '), Activity FROM VendorActivity WHERE VendorID = {0} ORDER BY ID DESC"},
};

}  // namespace

const RecordKind* recordKindOf(Operation operation) {
    const auto found = std::ranges::find(kinds, operation, &RecordKind::edit);
    return found == std::end(kinds) ? nullptr : found;
}

std::vector<ListedRecord> listRecords(Company& company, const RecordKind& kind) {
    return listRecords(company, kind.list, kind.columns.size());
}

std::vector<ListedRecord> listRecords(Company& company, std::string_view query, std::size_t columns) {
    std::vector<ListedRecord> records;
    for (const std::vector<Variant>& row : company.run(query).rows) {
        ListedRecord& record = records.emplace_back();
        record.ID = row.at(0).toLong();
        for (std::size_t i = 0; i < columns; ++i)
            record.cells.push_back(textOf(row.at(i + 1)));
    }
    return records;
}

std::vector<HistoryEntry> historyOf(Company& company, const RecordKind& kind, std::int32_t ID) {
    std::vector<HistoryEntry> entries;
    for (const std::vector<Variant>& row : company.run(modSharedSQL::format(kind.history, ID)).rows)
        entries.push_back({textOf(row.at(0)), textOf(row.at(1))});
    return entries;
}

}  // namespace tsln::workbench
