#include "workbench/host/SearchLists.h"

#include <algorithm>

#include "automation/Object.h"

namespace tsln::workbench {
namespace {

constexpr std::string_view vendorColumns[] = {"Vendor", "Contact", "City"};
constexpr std::string_view customerColumns[] = {"Customer", "Account", "City", "Exported"};
constexpr std::string_view orderColumns[] = {"Order", "Customer", "State", "Sidemark"};

constexpr SearchList lists[] = {
    {"Vendors", vendorColumns,
     "SELECT ID, VendorName, Contact, BillToCity FROM Vendors WHERE VendorName <> '(None)' ORDER BY VendorName, ID"},
    {"Customers", customerColumns,
     "SELECT ID, CustomerName, AccountNumber, BillToCity, CASE WHEN Exported <> 0 THEN 'Yes' ELSE '' END FROM Customers "
     "ORDER BY CustomerName, ID"},
    {"Orders", orderColumns,
     "SELECT Orders.ID, Orders.OrderNumber, Customers.CustomerName, "
     "CASE Orders.State WHEN 1 THEN 'Quote' WHEN 2 THEN 'Sale' ELSE 'Order' END, Orders.Sidemark "
     "FROM Orders LEFT JOIN Customers ON Customers.ID = Orders.CustomerID ORDER BY Orders.OrderNumber, Orders.ID"},
};

}  // namespace

const SearchList* searchListOf(std::string_view table) {
    const auto found =
        std::ranges::find_if(lists, [&](const SearchList& list) { return sameName(list.table, table); });
    return found == std::end(lists) ? nullptr : found;
}

std::vector<ListedRecord> listRecords(Company& company, const SearchList& list) {
    return listRecords(company, list.list, list.columns.size());
}

}  // namespace tsln::workbench
