#include "workbench/host/CommonObject.h"

#include <cmath>
#include <optional>
#include <span>

#include "shared/modSharedSQL.h"
#include "shared/modSharedStrings.h"
#include "shared/modSharedXML.h"
#include "workbench/host/PersonNameText.h"
#include "workbench/host/ProductFiles.h"
#include "workbench/host/StoredSecret.h"
#include "workbench/host/TextOf.h"
#include "workbench/sql/Guid.h"
#include "workbench/sql/SqlText.h"

namespace tsln::workbench {
namespace {

using modSharedSQL::format;
using modSharedXML::Record;
using modSharedXML::Records;

/// A member that only runs a statement.
struct StatementMember {
    std::string_view name, statement;
};

/// Members that return the name of the record with the identifier {0}.
constexpr StatementMember nameMembers[] = {
    {"GetDiscountGroupName", "SELECT DiscountGroup FROM DiscountGroups WHERE ID = {0}"},
    {"GetEmployeeName",
     "SELECT dbo.BuildEmployeeName(FirstName, MiddleInitial, LastName) FROM Employees WHERE ID = {0}"},
    {"GetCustomerName", "SELECT CustomerName FROM Customers WHERE ID = {0}"},
    {"GetShippingMethodName", "SELECT ShippingMethod FROM ShippingMethods WHERE ID = {0}"},
    {"GetVendorCostMethodName",
     "SELECT CASE {0} WHEN 1 THEN '% of MSRP' WHEN 2 THEN 'Cost from Product' WHEN 3 THEN 'Price from Product' ELSE '' END"},
    {"GetOrderStatusNameFromID", "SELECT StatusName FROM OrderStatusCodes WHERE ID = {0}"},
    {"GetFriendlySyncState",
     "SELECT CASE {0} WHEN 0 THEN 'Not set up' WHEN 1 THEN 'Initial sync requested' WHEN 2 THEN 'Initial sync sent' "
     "WHEN 3 THEN 'Initial sync received' WHEN 4 THEN 'In sync' WHEN 5 THEN 'Reset requested' ELSE 'Unknown' END"},
    {"GetProductNameFromID", "SELECT Product FROM Products WHERE ID = {0}"},
};

/// Members that fill a combo box with a list.
constexpr StatementMember loadMembers[] = {
    {"LoadPhoneLabels", "SELECT ID, Label AS Entry FROM PhoneLabels ORDER BY Label"},
    {"LoadEmailLabels", "SELECT ID, Label AS Entry FROM EmailLabels ORDER BY Label"},
    {"LoadCustomerTypes", "SELECT ID, Name AS Entry FROM CustomerTypes ORDER BY Name"},
    {"LoadLocations", "SELECT ID, LocationName AS Entry FROM Locations ORDER BY LocationName"},
    {"LoadProductTypes", "SELECT ID, ProductType AS Entry FROM ProductTypes ORDER BY ProductType"},
    {"LoadReferralMethods",
     "SELECT ID, ReferralMethod AS Entry FROM ReferralMethods ORDER BY ReferralMethod"},
    {"LoadShippingMethods",
     "SELECT ID, ShippingMethod AS Entry FROM ShippingMethods ORDER BY ShippingMethod"},
    {"LoadTerms", "SELECT ID, Terms AS Entry FROM Terms ORDER BY Terms"},
    {"LoadTaxGroups", "SELECT ID, SalesTaxGroup AS Entry FROM SalesTaxGroups ORDER BY SalesTaxGroup"},
    {"LoadSalesAccounts", "SELECT ID, Account AS Entry FROM Accounts WHERE AccountType = 1 ORDER BY Account"},
    {"LoadPurchaseAccounts",
     "SELECT ID, Account AS Entry FROM Accounts WHERE AccountType = 2 ORDER BY Account"},
    {"LoadVendors", "SELECT ID, VendorName AS Entry FROM Vendors WHERE Active <> 0 ORDER BY VendorName"},
    {"LoadDesigners",
     "SELECT ID, dbo.BuildEmployeeName(FirstName, MiddleInitial, LastName) AS Entry FROM Employees "
     "WHERE Designer <> 0 AND Active <> 0 ORDER BY LastName, FirstName"},
    {"LoadInstallers",
     "SELECT ID, dbo.BuildEmployeeName(FirstName, MiddleInitial, LastName) AS Entry FROM Employees "
     "WHERE Installer <> 0 AND Active <> 0 ORDER BY LastName, FirstName"},
};

std::optional<std::string_view> statementOf(std::span<const StatementMember> members, std::string_view name) {
    for (const StatementMember& row : members) {
        if (sameName(row.name, name)) return row.statement;
    }
    return std::nullopt;
}

void addEntry(Object& combo, const std::string& text, std::int32_t itemData) {
    combo.call("AddItem", text);
    combo.put("ItemData", combo.get("NewIndex"), itemData);
}

/// Returns the text of the column or, without one, of the first column other than ID.
std::string entryText(const std::string& column, Record row) {
    if (!column.empty()) return modSharedXML::readText(column, row);
    for (const pugi::xml_node field : row.node().children()) {
        if (!sameName(field.name(), "ID")) return modSharedXML::readText(field.name(), row);
    }
    return {};
}

}  // namespace

Variant CommonObject::RecordExists(Arguments a) {
    a.require(4, 4);
    // The user's text is inserted last, so that nothing in it is replaced.
    const std::string column = bracketed(a[1].toText());
    const std::string statement = "SELECT COUNT(*) AS MyCount FROM " + bracketed(a[0].toText()) +
                                  " WHERE ID <> " + std::to_string(a[3].toLong()) + " AND LTRIM(RTRIM(" +
                                  column + ")) = " + literal(modSharedStrings::trim(textOf(a[2])));
    return context().company.scalar(statement).toLong() > 0;
}

Variant CommonObject::name(std::string_view statement, Arguments a) {
    a.require(1, 1);
    return textOf(context().company.scalar(format(statement, a[0].toLong())));
}

Variant CommonObject::load(Object& combo, std::string_view statement) {
    const Records rows = Records::parse(context().company.read(statement));
    combo.call("Clear");
    for (const Record row : rows) {
        addEntry(combo, modSharedXML::readText("Entry", row), modSharedXML::readLong("ID", row));
    }
    return {};
}

/// Arguments: the combo box, the statement, the column of the shown text (empty: the first other than ID), the column
/// of the stored number (empty: none, all are 0), and the entry before the rows (a text, or true for a blank one).
Variant CommonObject::LoadComboFromQuery(Arguments a) {
    a.require(2, 5);
    Object& combo = a[0].object();
    const std::string shown = textOf(a[2]), stored = textOf(a[3]);
    const Records rows = Records::parse(context().company.read(a[1].toText()));
    combo.call("Clear");
    if (a[4].isText() && !a[4].toText().empty()) addEntry(combo, a[4].toText(), 0);
    if (a[4].holds<bool>() && a[4].toBoolean()) addEntry(combo, "", 0);
    for (const Record row : rows) {
        addEntry(combo, entryText(shown, row), stored.empty() ? 0 : modSharedXML::readLong(stored, row));
    }
    return {};
}

/// The second argument includes inactive employees.
Variant CommonObject::LoadSalesReps(Arguments a) {
    a.require(1, 2);
    const bool all = a.has(1) && a[1].toBoolean();
    return load(
        a[0].object(),
        std::string(
            "SELECT ID, dbo.BuildEmployeeName(FirstName, MiddleInitial, LastName) AS Entry FROM Employees WHERE SalesRep <> 0 ") +
            (all ? "" : "AND Active <> 0 ") + "ORDER BY LastName, FirstName");
}

/// The last argument is a group to leave out.
Variant CommonObject::LoadDiscountGroups(Arguments a) {
    a.require(2, 3);
    return load(
        a[0].object(),
        format(
            "SELECT ID, DiscountGroup AS Entry FROM DiscountGroups WHERE DiscountGroupType = {0} AND ID <> {1} ORDER BY DiscountGroup",
            a[1].toLong(), a.valueOr(2, 0).toLong()));
}

/// Arguments: the name; by reference the first name, the middle initial and the last name.
Variant CommonObject::ParseCompleteName(Arguments a) {
    a.require(1, 4);
    const PersonNameParts parts = parsePersonName(textOf(a[0]));
    a.assign(1, parts.first);
    a.assign(2, parts.middleInitial);
    a.assign(3, parts.last);
    return {};
}

/// What the customer owes: the sales and orders without what was paid.
Variant CommonObject::GetCustomerBalance(Arguments a) {
    a.require(1, 1);
    const std::int32_t customer = a[0].toLong();
    const auto sum = [&](std::string_view statement) {
        const Variant total = context().company.scalar(format(statement, customer));
        return total.isNull() ? 0.0 : total.toDouble();
    };
    const double balance = sum("SELECT SUM(Total) FROM Orders WHERE CustomerID = {0} AND State > 1") -
                           sum("SELECT SUM(Amount) FROM Payments WHERE CustomerID = {0}");
    return std::round(balance * 100) / 100;
}

Variant CommonObject::invoke(std::string_view member, Access access, Arguments arguments) {
    using Self = CommonObject;
    static constexpr Member<Self> members[] = {
        {"RecordExists", [](Self& self, Arguments a) { return self.RecordExists(a); }},
        {"CreateGUID", [](Self&, Arguments) { return Variant(createGuid()); }},
        {"FormatAsGUID",
         [](Self&, Arguments a) {
             a.require(1, 1);
             const auto guid = formatAsGuid(textOf(a[0]));
             if (!guid) throw HostError(code::typeMismatch, "Common", "'" + textOf(a[0]) + "' is no GUID.");
             return Variant(*guid);
         }},
        {"ComplexEncrypt",
         [](Self&, Arguments a) {
             a.require(1, 1);
             return Variant(protectSecret(textOf(a[0])));
         }},
        {"ComplexDecrypt",
         [](Self&, Arguments a) {
             a.require(1, 1);
             return Variant(readSecret(textOf(a[0])));
         }},
        {"LoadComboFromQuery", [](Self& self, Arguments a) { return self.LoadComboFromQuery(a); }},
        {"GetProductFileFromID2",
         [](Self& self, Arguments a) {
             a.require(1, 1);
             return Variant(productFile(self.context().company, a[0].toLong()));
         }},
        {"ParseCompleteName", [](Self& self, Arguments a) { return self.ParseCompleteName(a); }},
        {"GetCustomerBalance", [](Self& self, Arguments a) { return self.GetCustomerBalance(a); }},
        {"LoadSalesReps", [](Self& self, Arguments a) { return self.LoadSalesReps(a); }},
        {"LoadDiscountGroups", [](Self& self, Arguments a) { return self.LoadDiscountGroups(a); }},
    };
    return raisingSqlErrors("Common", [&]() -> Variant {
        if (access != Access::Put) {
            if (const auto statement = statementOf(nameMembers, member)) return name(*statement, arguments);
            if (const auto statement = statementOf(loadMembers, member)) {
                arguments.require(1, 1);
                return load(arguments[0].object(), *statement);
            }
        }
        return invokeMember<Self>(*this, "Common", members, member, access, arguments);
    });
}

}  // namespace tsln::workbench
