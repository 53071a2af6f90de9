#include "properties/PropertyRows.h"

namespace tsln::properties {
namespace {

using enum Source;

// clang-format off
/// Odd captions are deliberate, also "Newest Employees" and the like in the plural.
constexpr PropertyRow rows[] = {
    // category, sub-category, caption, source, what it is asked
    {"Current Connection", "", "Database", ConnectionText, "DefaultDatabase"},
    {"Current Connection", "", "Connection Timeout", ConnectionNumber, "ConnectionTimeout"},
    {"Current Connection", "", "Command Timeout", ConnectionNumber, "CommandTimeout"},
    {"Current Connection", "", "Database Size", DatabaseSize, "EXEC sp_spaceused"},

    {"File Locations", "", "Company Files", Folder, "Companies"},
    {"File Locations", "", "Product Files", Folder, "Products"},
    {"File Locations", "", "Attachments", Folder, "Companies"},
    {"File Locations", "", "Reports", Folder, "Reports"},
    {"File Locations", "", "Portfolio Images", Folder, "Companies"},
    {"File Locations", "", "Export Files", Folder, "Export Files"},
    {"File Locations", "", "Sync", Folder, "Sync"},
    {"File Locations", "", "Document Templates", Folder, "Document Templates"},
    {"File Locations", "", "Kestrane Connect", Folder, "Kestrane Connect"},

    {"Company", "", "Name", Statement, "SELECT Name AS MyResult FROM Company"},
    {"Company", "", "Unique ID", Statement, "SELECT UniqueID AS MyResult FROM Company"},

    {"Employees", "", "Total Employees", Statement, "SELECT COUNT(*) AS Result FROM Employees"},
    {"Employees", "", "Enabled Employees", Statement, "SELECT COUNT(*) AS Result FROM Employees WHERE Active <> 0"},
    {"Employees", "", "Disabled Employees", Statement, "SELECT COUNT(*) AS Result FROM Employees WHERE Active = 0"},
    {"Employees", "", "Newest Employees", Statement, "SELECT TOP 1 dbo.BuildEmployeeName(Employees.FirstName,Employees.MiddleInitial,Employees.LastName)  + ' (' + CONVERT(varchar(10), CAST(AddedOn AS DATE), 101) + ')' AS Result FROM Employees ORDER BY AddedOn DESC"},
    {"Employees", "", "Oldest Employees", Statement, "SELECT TOP 1 dbo.BuildEmployeeName(Employees.FirstName,Employees.MiddleInitial,Employees.LastName)  + ' (' + CONVERT(varchar(10), CAST(AddedOn AS DATE), 101) + ')' AS Result FROM Employees ORDER BY AddedOn ASC"},

    {"Vendors", "", "Total Vendors", Statement, "SELECT COUNT(*) AS Result FROM Vendors"},
    {"Vendors", "", "Enabled Vendors", Statement, "SELECT COUNT(*) AS Result FROM Vendors WHERE Active <> 0"},
    {"Vendors", "", "OOP Vendors", Statement, "SELECT COUNT(*) AS Result FROM Vendors WHERE LEN(OOP_VendorID) > 0"},
    {"Vendors", "", "Disabled Vendors", Statement, "SELECT COUNT(*) AS Result FROM Vendors WHERE Active = 0"},
    {"Vendors", "", "Newest Vendor", Statement, "SELECT TOP 1 VendorName + ' (' + CONVERT(varchar(10), CAST(AddedOn AS DATE), 101) + ')' AS Result FROM Vendors ORDER BY AddedOn DESC"},
    {"Vendors", "", "Oldest Vendor", Statement, "SELECT TOP 1 VendorName + ' (' + CONVERT(varchar(10), CAST(AddedOn AS DATE), 101) + ')' AS Result FROM Vendors ORDER BY AddedOn ASC"},

    {"Pricing", "Additional Charges", "Total Additional Charges", Statement, "SELECT COUNT(*) AS Result FROM AdditionalCharges WHERE ChargeType = {0}", 8},
    {"Pricing", "Additional Charges", "Total Vendor Promotions", Statement, "SELECT COUNT(*) AS Result FROM AdditionalCharges WHERE ChargeType = {0}", 1},
    {"Pricing", "Additional Charges", "Total Customer Promotions", Statement, "SELECT COUNT(*) AS Result FROM AdditionalCharges WHERE ChargeType = {0}", 2},
    {"Pricing", "Additional Charges", "Total Item Cost Adjustments", Statement, "SELECT COUNT(*) AS Result FROM AdditionalCharges WHERE ChargeType = {0}", 256},
    {"Pricing", "Additional Charges", "Total Item Price Adjustments", Statement, "SELECT COUNT(*) AS Result FROM AdditionalCharges WHERE ChargeType = {0}", 4},
    {"Pricing", "Additional Charges", "Disabled Charges (any type)", Statement, "SELECT COUNT(*) AS Result FROM AdditionalCharges WHERE Enabled = 0"},
    // The captions say "Customer" although the rows show charges (deliberate).
    {"Pricing", "Additional Charges", "Newest Customer (any type)", Statement, "SELECT TOP 1 ChargeName + ' (' + CONVERT(varchar(10), CAST(AddedOn AS DATE), 101) + ')' AS Result FROM AdditionalCharges ORDER BY AddedOn DESC"},
    {"Pricing", "Additional Charges", "Oldest Customer (any type)", Statement, "SELECT TOP 1 ChargeName + ' (' + CONVERT(varchar(10), CAST(AddedOn AS DATE), 101) + ')' AS Result FROM AdditionalCharges ORDER BY AddedOn ASC"},
    {"Pricing", "Sales Tax", "Total Tax Codes", Statement, "SELECT COUNT(*) AS Result FROM SalesTaxCodes"},
    {"Pricing", "Sales Tax", "Total Tax Groups", Statement, "SELECT COUNT(*) AS Result FROM SalesTaxGroups"},

    {"Customers", "Customers", "Total Customers", Statement, "SELECT COUNT(*) AS Result FROM Customers"},
    {"Customers", "Customers", "Enabled Customers", Statement, "SELECT COUNT(*) AS Result FROM Customers WHERE Active <> 0"},
    {"Customers", "Customers", "Disabled Customers", Statement, "SELECT COUNT(*) AS Result FROM Customers WHERE Active = 0"},
    {"Customers", "Customers", "Newest Customer", Statement, "SELECT TOP 1 CustomerName + ' (' + CONVERT(varchar(10), CAST(AddedOn AS DATE), 101) + ')' AS Result FROM Customers ORDER BY AddedOn DESC"},
    {"Customers", "Customers", "Oldest Customer", Statement, "SELECT TOP 1 CustomerName + ' (' + CONVERT(varchar(10), CAST(AddedOn AS DATE), 101) + ')' AS Result FROM Customers ORDER BY AddedOn ASC"},
    // "Measurments" is spelled so deliberately.
    {"Customers", "Customer Measurments", "Total Measurements", Statement, "SELECT COUNT(*) AS Result FROM CustomerMeasurements"},
    {"Customers", "Customer Measurments", "Newest Measurement", Statement, "SELECT TOP 1 CONCAT(dbo.BuildEmployeeName(Customers.FirstName, Customers.MiddleInitial, Customers.LastName), ' ', Location, ' ', Room, ' (', CAST(CustomerMeasurements.AddedOn AS DATE), ')') AS Result FROM CustomerMeasurements INNER JOIN Customers ON Customers.ID=CustomerID ORDER BY CustomerMeasurements.AddedOn DESC"},
    {"Customers", "Customer Measurments", "Oldest Measurement", Statement, "SELECT TOP 1 CONCAT(dbo.BuildEmployeeName(Customers.FirstName, Customers.MiddleInitial, Customers.LastName), ' ', Location, ' ', Room, ' (', CAST(CustomerMeasurements.AddedOn AS DATE), ')') AS Result FROM CustomerMeasurements INNER JOIN Customers ON Customers.ID=CustomerID ORDER BY CustomerMeasurements.AddedOn ASC"},
    // Groups holds groups of other records too; the three rows are about those of customers.
    {"Customers", "Customer Groups", "Total Groups", Statement, "SELECT COUNT(*) AS Result FROM Groups WHERE GroupType = 1"},
    {"Customers", "Customer Groups", "Newest Group", Statement, "SELECT TOP 1 GroupName + ' (' + CONVERT(varchar(10), CAST(AddedOn AS DATE), 101) + ')' AS Result FROM Groups WHERE GroupType = 1 ORDER BY AddedOn DESC"},
    {"Customers", "Customer Groups", "Oldest Group", Statement, "SELECT TOP 1 GroupName + ' (' + CONVERT(varchar(10), CAST(AddedOn AS DATE), 101) + ')' AS Result FROM Groups WHERE GroupType = 1 ORDER BY AddedOn ASC"},

    {"Events", "", "Total Events", Statement, "SELECT COUNT(*) AS Result FROM EventLog"},
    {"Events", "", "Total Errors", Statement, "SELECT COUNT(*) AS Result FROM EventLog WHERE EventType = {0}", 1},
    {"Events", "", "Total Warnings", Statement, "SELECT COUNT(*) AS Result FROM EventLog WHERE EventType = {0}", 3},
    {"Events", "", "Total Notices", Statement, "SELECT COUNT(*) AS Result FROM EventLog WHERE EventType = {0}", 2},
    {"Events", "", "Newest Event", Statement, "SELECT TOP 1 CONVERT(varchar(10), CAST(EventDate AS DATE), 101) AS Result FROM EventLog ORDER BY EventDate DESC"},
    {"Events", "", "Oldest Event", Statement, "SELECT TOP 1 CONVERT(varchar(10), CAST(EventDate AS DATE), 101) AS Result FROM EventLog ORDER BY EventDate ASC"},
    {"Events", "", "Most Recent Error", Statement, "SELECT TOP 1 CONVERT(varchar(10), CAST(EventDate AS DATE), 101) AS Result FROM EventLog WHERE EventType = {0} ORDER BY EventDate DESC", 1},
    {"Events", "", "Most Recent Warning", Statement, "SELECT TOP 1 CONVERT(varchar(10), CAST(EventDate AS DATE), 101) AS Result FROM EventLog WHERE EventType = {0} ORDER BY EventDate DESC", 3},

    {"Attachments", "", "Total Attachments", Statement, "SELECT COUNT(*) AS Result FROM Attachments"},
    {"Attachments", "", "Job Attachments", Statement, "SELECT COUNT(*) AS Result FROM Attachments WHERE NOT JobID IS NULL"},
    {"Attachments", "", "Quote/Sale/Order Attachments", Statement, "SELECT COUNT(*) AS Result FROM Attachments WHERE NOT OrderID IS NULL"},
    {"Attachments", "", "Customer Attachments", Statement, "SELECT COUNT(*) AS Result FROM Attachments WHERE NOT CustomerID IS NULL"},
    {"Attachments", "", "Vendor Attachments", Statement, "SELECT COUNT(*) AS Result FROM Attachments WHERE NOT VendorID IS NULL"},
    {"Attachments", "", "Employee Attachments", Statement, "SELECT COUNT(*) AS Result FROM Attachments WHERE NOT EmployeeID IS NULL"},
    {"Attachments", "", "Newest Attachments", Statement, "SELECT TOP 1 CONCAT(OriginalFileName, ' (', CAST(AddedOn AS DATE) ,')') AS Result FROM Attachments ORDER BY AddedOn DESC"},
    {"Attachments", "", "Oldest Attachments", Statement, "SELECT TOP 1 CONCAT(OriginalFileName, ' (', CAST(AddedOn AS DATE) ,')') AS Result FROM Attachments ORDER BY AddedOn ASC"},

    {"Discount Groups", "", "Total Discount Groups", Statement, "SELECT COUNT(*) AS Result FROM DiscountGroups"},
    {"Discount Groups", "", "Price Discount Groups", Statement, "SELECT COUNT(*) AS Result FROM DiscountGroups WHERE DiscountGroupType={0}", 0},
    {"Discount Groups", "", "Customer Discount Groups", Statement, "SELECT COUNT(*) AS Result FROM DiscountGroups WHERE DiscountGroupType={0}", 2},
    {"Discount Groups", "", "Vendor Discount Groups", Statement, "SELECT COUNT(*) AS Result FROM DiscountGroups WHERE DiscountGroupType={0}", 1},
    {"Discount Groups", "", "Newest Discount Group", Statement, "SELECT TOP 1 CONCAT(DiscountGroup, ' (', CAST(AddedOn AS DATE), ')') AS Result FROM DiscountGroups ORDER BY AddedOn DESC"},
    {"Discount Groups", "", "Oldest Discount Group", Statement, "SELECT TOP 1 CONCAT(DiscountGroup, ' (', CAST(AddedOn AS DATE), ')') AS Result FROM DiscountGroups ORDER BY AddedOn ASC"},
    {"Discount Groups", "", "Most recently updated", Statement, "SELECT TOP 1 CONCAT(DiscountGroup, ' (', CAST(UpdatedOn AS DATE), ')') AS Result FROM DiscountGroups ORDER BY UpdatedOn DESC"},

    {"Discounts", "", "Total Discounts", Statement, "SELECT COUNT(*) AS Result FROM Discounts"},
    {"Discounts", "", "Product Discounts", Statement, "SELECT COUNT(*) AS Result FROM Discounts WHERE DiscountLevel={0}", 1},
    {"Discounts", "", "Style Discounts", Statement, "SELECT COUNT(*) AS Result FROM Discounts WHERE DiscountLevel={0}", 2},
    {"Discounts", "", "Option Discounts", Statement, "SELECT COUNT(*) AS Result FROM Discounts WHERE DiscountLevel={0}", 3},
    {"Discounts", "", "Multiplier Discounts", Statement, "SELECT COUNT(*) AS Result FROM Discounts WHERE Multiplier <> 0"},
    {"Discounts", "", "Tier-Level Discounts", Statement, "SELECT COUNT(*) AS Result From Discounts WHERE NOT (TierLevel IS NULL OR TierLevel='')"},
    {"Discounts", "", "Markup Discounts", Statement, "SELECT COUNT(*) AS Result FROM Discounts WHERE Markup <> 0"},
    {"Discounts", "", "Margin Discounts", Statement, "SELECT COUNT(*) AS Result FROM Discounts WHERE Margin <> 0"},

    {"Products", "", "Total Products", Statement, "SELECT COUNT(*) AS Result FROM Products"},
    {"Products", "", "Active Products", Statement, "SELECT COUNT(*) AS Result FROM Products WHERE Active <> 0"},
    {"Products", "", "Inactive Products", Statement, "SELECT COUNT(*) AS Result FROM Products WHERE Active = 0"},
    {"Products", "", "Newest Product", Statement, "SELECT TOP 1 CONCAT(Product, ' (', CAST(AddedOn AS DATE), ')') AS Result FROM Products ORDER BY AddedOn DESC"},
    {"Products", "", "Oldest Product", Statement, "SELECT TOP 1 CONCAT(Product, ' (', CAST(AddedOn AS DATE), ')') AS Result FROM Products ORDER BY AddedOn ASC"},
    {"Products", "", "Most recently updated", Statement, "SELECT TOP 1 CONCAT(Product, ' (', CAST(UpdatedOn AS DATE), ')') AS Result FROM Products ORDER BY UpdatedOn DESC"},

    {"Lists", "", "Product Types", Statement, "SELECT COUNT(*) AS Result FROM ProductTypes"},
    {"Lists", "", "Manufacturers", Statement, "SELECT COUNT(*) AS Result FROM Manufacturers"},
    {"Lists", "", "Shipping Methods", Statement, "SELECT COUNT(*) AS Result FROM ShippingMethods"},
    {"Lists", "", "Referral Methods", Statement, "SELECT COUNT(*) AS Result FROM ReferralMethods"},
    {"Lists", "", "Phone Labels", Statement, "SELECT COUNT(*) AS Result FROM PhoneLabels"},
    {"Lists", "", "Email Labels", Statement, "SELECT COUNT(*) AS Result FROM EmailLabels"},
    {"Lists", "", "Option Callouts", Statement, "SELECT COUNT(*) AS Result FROM OptionCallouts"},
    {"Lists", "", "Terms", Statement, "SELECT COUNT(*) AS Result FROM Terms"},
    {"Lists", "", "Security Roles", Statement, "SELECT COUNT(*) AS Result FROM SecurityRoles"},
    {"Lists", "", "Payment Methods", Statement, "SELECT COUNT(*) AS Result FROM PaymentMethods"},
    {"Lists", "", "Job Types", Statement, "SELECT COUNT(*) AS Result FROM JobTypes"},
    {"Lists", "", "Order Types", Statement, "SELECT COUNT(*) AS Result FROM OrderTypes"},
    {"Lists", "", "Option Defaults", Statement, "SELECT COUNT(*) AS Result FROM OptionDefaults"},
    {"Lists", "", "Option Detail Settings", Statement, "SELECT COUNT(*) AS Result FROM OptionDetailSettings"},
    {"Lists", "", "Customer Types", Statement, "SELECT COUNT(*) AS Result FROM CustomerTypes"},

    {"Email", "", "Total Templates", Statement, "SELECT COUNT(*) AS Result FROM EmailTemplates"},
    {"Email", "", "Favorite Templates", Statement, "SELECT COUNT(*) AS Result FROM EmailTemplates WHERE Favorite <> 0"},
    {"Email", "", "Newest Template", Statement, "SELECT TOP 1 CONCAT(TemplateName, ' (', CAST(AddedOn AS DATE), ')') AS Result FROM EmailTemplates ORDER BY AddedOn DESC"},
    {"Email", "", "Oldest Template", Statement, "SELECT TOP 1 CONCAT(TemplateName, ' (', CAST(AddedOn AS DATE), ')') AS Result FROM EmailTemplates ORDER BY AddedOn ASC"},
    {"Email", "", "Most recently updated", Statement, "SELECT TOP 1 CONCAT(TemplateName, ' (', CAST(UpdatedOn AS DATE), ')') AS Result FROM EmailTemplates ORDER BY UpdatedOn DESC"},
    {"Email", "", "Total Sent Messages", Statement, "SELECT COUNT(*) AS Result FROM SentMessages"},
    {"Email", "", "Most recently sent", Statement, "SELECT TOP 1 CONCAT(Subject, ' (', CAST(SentOn AS DATE), ')') AS Result FROM SentMessages ORDER BY SentOn DESC"},

    {"Current Connection", "", "Loading Time", LoadingTime, ""},
};
// clang-format on

}  // namespace

std::span<const PropertyRow> propertyRows() {
    return rows;
}

}  // namespace tsln::properties
