#include "workbench/host/ImportLists.h"

#include "automation/Object.h"

namespace tsln::workbench {
namespace {

/// The columns that identify rows.
namespace keys {
using Names = const std::string_view[];
constexpr Names Account{"Account"}, Charge{"ChargeName"}, Code{"Code"}, Criteria{"Criteria"},
    // a price group and a cost group may have equal names
    DiscountGroup{"DiscountGroup", "DiscountGroupType"}, GroupName{"GroupName"}, ItemName{"ItemName"},
    JobType{"JobType"}, Label{"Label"}, Manufacturer{"Manufacturer"}, Mount{"Mount"}, Name{"Name"},
    OrderType{"OrderType"}, PaymentMethod{"PaymentMethod"}, ProductType{"ProductType"}, Range{"Range"},
    ReferralMethod{"ReferralMethod"}, Room{"Room"}, SalesTaxGroup{"SalesTaxGroup"},
    ShippingMethod{"ShippingMethod"}, Terms{"Terms"}, Access{"SecurityRoleID", "Activity"},
    OptionDetail{"OptionName", "Location"}, OptionDefault{"OptionName", "ProductID"},
    Callout{"OptionName", "ProductTypeID", "ProductID", "Style", "ColorWhen", "ColorCriteria"},
    Discount{"DiscountGroupID", "DiscountLevel", "ProductID", "Style", "OptionName", "TierLevel"},
    Template{"TemplateType", "GroupName", "TemplateName"},
    Measurement{"CustomerID", "Location", "Room", "Item", "Mount"}, Location{"LocationName"},
    Person{"LastName", "FirstName", "MiddleInitial"}, Customer{"CustomerName"},
    Membership{"GroupID", "CustomerID"};
}  // namespace keys

/// The tables that the names in a list refer to.
namespace references {
using Rows = const ImportReference[];
constexpr ImportReference product{"ProductID", "Products", {{{"Product", "Product"}}}, true};
constexpr Rows Product{product}, Role{{"SecurityRoleID", "SecurityRoles", {{{"SecurityRole", "Name"}}}}},
    Callout{{"ProductTypeID", "ProductTypes", {{{"ProductType", "ProductType"}}}, true}, product},
    Discount{{"DiscountGroupID",
              "DiscountGroups",
              {{{"DiscountGroup", "DiscountGroup"}, {"DiscountGroupType", "DiscountGroupType"}}}},
             product},
    Charge{{"CustomerTypeID", "CustomerTypes", {{{"CustomerType", "Name"}}}, true},
           {"VendorID", "Vendors", {{{"Vendor", "VendorName"}}}, true},
           {"SalesAccountID", "Accounts", {{{"SalesAccount", "Account"}}}, true},
           {"PurchaseAccountID", "Accounts", {{{"PurchaseAccount", "Account"}}}, true}},
    Customer{{"CustomerID",
              "Customers",
              {{{"CustomerName", "CustomerName"}, {"AccountNumber", "AccountNumber"}}}}};
/// What a customer of version 4.2 refers to. Tax groups are known by name only: that version has none.
constexpr Rows OldCustomer{
    {"CustomerTypeID", "CustomerTypes", {{{"CustomerType", "Name"}}}, true},
    {"TermsID", "Terms", {{{"Terms", "Terms"}}}, true},
    {"ShippingMethodID", "ShippingMethods", {{{"ShippingMethod", "ShippingMethod"}}}, true},
    {"DiscountGroupID",
     "DiscountGroups",
     {{{"DiscountGroup", "DiscountGroup"}, {"DiscountGroupType", "DiscountGroupType"}}},
     true},
    {"ReferralMethodID", "ReferralMethods", {{{"ReferralMethod", "ReferralMethod"}}}, true},
    {"SalesTaxGroupID", "SalesTaxGroups", {{{"SalesTaxGroup", "SalesTaxGroup"}}}, true},
    {"SalesRepID",
     "Employees",
     {{{"SalesRepFirstName", "FirstName"}, {"SalesRepLastName", "LastName"}}},
     true,
     "SalesRepUniqueID"}};
constexpr Rows OldMembership{
    {"GroupID", "Groups", {{{"GroupName", "GroupName"}}}, false, "GroupUniqueID"},
    {"CustomerID", "Customers", {{{"CustomerName", "CustomerName"}}}, false, "CustomerUniqueID"}};
}  // namespace references

constexpr bool rowsRepeat = true;

constexpr ImportList importLists[] = {
    {"Manufacturers", keys::Manufacturer},
    {"ProductTypes", keys::ProductType},
    {"Terms", keys::Terms},
    {"OptionDetailSettings", keys::OptionDetail},
    {"OptionDefaults", keys::OptionDefault, references::Product},
    {"PhoneLabels", keys::Label},
    {"EmailLabels", keys::Label},
    {"CustomerTypes", keys::Name},
    {"RequireDepositCriteria", keys::Criteria, {}, rowsRepeat},
    {"ShippingMethods", keys::ShippingMethod},
    {"ReferralMethods", keys::ReferralMethod},
    {"JobTypes", keys::JobType},
    {"Groups", keys::GroupName},
    {"DeliveryRanges", keys::Range},
    {"DiscountGroups", keys::DiscountGroup},
    {"FieldMeasureCriteria", keys::Criteria, {}, rowsRepeat},
    {"OrderTypes", keys::OrderType},
    {"PaymentMethods", keys::PaymentMethod},
    {"SalesTaxCodes", keys::Code},
    {"SalesTaxGroups", keys::SalesTaxGroup},
    {"AdditionalCharges", keys::Charge, references::Charge},
    {"EmailTemplates", keys::Template, {}, rowsRepeat},
    {"CustomerMeasurements", keys::Measurement, references::Customer, rowsRepeat},
    {"OptionCallouts", keys::Callout, references::Callout, rowsRepeat},
    {"Discounts", keys::Discount, references::Discount, rowsRepeat},
    {"SecurityRoles", keys::Name},
    {"SecurityRoleAccess", keys::Access, references::Role},
    {"MeasurementRooms", keys::Room},
    {"MeasurementItems", keys::ItemName},
    {"MeasurementMounts", keys::Mount},
    {"Accounts", keys::Account},
};

constexpr ImportList upgradeLists[] = {
    {"Locations", keys::Location},
    {"Company", {}},
    {"Employees", keys::Person, {}, rowsRepeat},
    {"Customers", keys::Customer, references::OldCustomer, rowsRepeat},
    {"GroupedCustomers", keys::Membership, references::OldMembership},
};

}  // namespace

const ImportList* findImportList(std::string_view name, bool upgrade) {
    if (upgrade) {
        for (const ImportList& row : upgradeLists) {
            if (sameName(row.name, name)) return &row;
        }
    }
    for (const ImportList& row : importLists) {
        if (sameName(row.name, name)) return &row;
    }
    return nullptr;
}

}  // namespace tsln::workbench
