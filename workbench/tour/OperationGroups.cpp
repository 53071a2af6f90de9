#include "workbench/tour/OperationGroups.h"

#include <algorithm>
#include <iterator>
#include <sstream>

#include "shared/modSharedStrings.h"

namespace tsln::workbench {
namespace {

using enum Operation;

// One operation per line, as the workbench lists them.
// clang-format off
const OperationGroup groups[] = {
    {"Lookup lists",
     {
         {ShowTerms, "Payment terms"},
         {ShowPaymentMethods, "Payment methods"},
         {ShowShippingMethods, "Shipping methods"},
         {ShowReferralMethods, "Referral methods"},
         {ShowJobTypes, "Job types"},
         {ShowOrderTypes, "Order types"},
         {ShowProductTypes, "Product types"},
         {ShowManufacturers, "Manufacturers"},
         {ShowGroups, "Groups"},
         {ShowCustomerTypes, "Customer types"},
         {ShowDeliveryRanges, "Delivery ranges"},
         {ShowPhoneLabels, "Phone labels"},
         {ShowEmailLabels, "E-mail labels"},
         {ShowMeasurementRooms, "Measurement rooms"},
         {ShowMeasurementItems, "Measurement items"},
         {ShowMeasurementMounts, "Measurement mounts"},
         {ShowLocations, "Locations"},
         {ShowProductTags, "Tags of a product"},
         {ShowPortfolioTags, "Portfolio tags"},
         {ShowMoveReferences, "Move references"},
     }},
    {"Lookup list dialogs",
     {
         {ShowEditTerms, "Edit payment terms"},
         {ShowEditPaymentMethods, "Edit a payment method"},
         {ShowEditShippingMethods, "Edit a shipping method"},
         {ShowEditReferralMethods, "Edit a referral method"},
         {ShowEditJobTypes, "Edit a job type"},
         {ShowEditOrderTypes, "Edit an order type"},
         {ShowEditProductTypes, "Edit a product type"},
         {ShowEditManufacturers, "Edit a manufacturer"},
         {ShowEditGroups, "Edit a group"},
         {ShowEditCustomerTypes, "Edit a customer type"},
         {ShowEditDeliveryRanges, "Edit a delivery range"},
         {ShowEditPhoneLabels, "Edit a phone label"},
         {ShowEditEmailLabels, "Edit an e-mail label"},
         {ShowEditMeasurementRoom, "Edit a measurement room"},
         {ShowEditMeasurementItem, "Edit a measurement item"},
         {ShowEditMeasurementMount, "Edit a measurement mount"},
         {ShowEditLocation, "Edit a location"},
         {ShowEditProductTags, "Edit a product tag"},
         {ShowEditPortfiolioTag, "Edit a portfolio tag"},
     }},
    {"Order criteria",
     {
         {ShowFieldMeasureCriteria, "Field measure criteria"},
         {ShowEditFieldMeasureCriteria, "Edit a field measure criterion"},
         {ShowQuoteApprovalCriteria, "Quote approval criteria"},
         {ShowEditQuoteApproval, "Edit a quote approval criterion"},
         {ShowRequireDepositCriteria, "Deposit criteria"},
         {ShowEditDepositCriteria, "Edit a deposit criterion"},
     }},
    {"Discount groups",
     {
         {ShowDiscountGroups, "Discount groups"},
         {ShowEditDiscountGroups, "Edit a discount group"},
         {ShowGetReplacementDiscountGroup, "Choose a replacement"},
         {ShowDeleteDiscountGroup, "Delete a discount group"},
         {CanDeleteDiscountGroup, "Is a discount group in use?"},
     }},
    {"Sales tax and accounts",
     {
         {ShowSalesTaxCodes, "Sales tax codes"},
         {ShowEditSalesTaxCodes, "Edit a sales tax code"},
         {ShowSalesTaxGroups, "Sales tax groups"},
         {ShowEditSalesTaxGroup, "Edit a sales tax group"},
         {ShowSalesTaxGroupCodes, "Codes of a sales tax group"},
         {ShowAccounts, "Accounts"},
         {ShowAccounts_Edit, "Edit an account"},
         {ShowChooseAccouningApplication, "Accounting application"},
     }},
    {"Vendors, customers, employees, company",
     {
         {ShowEditVendor, "Edit a vendor"},
         {ShowEditCustomer, "Edit a customer"},
         {ShowUpdateOrderInformation, "Update orders of a customer"},
         {ShowEditEmployee, "Edit an employee"},
         {ShowEditCompany, "Edit the company"},
     }},
    {"Security and workstations",
     {
         {ShowSecurityRoles, "Security roles"},
         {ShowEditSecurityRole, "Edit a security role"},
         {ShowRoamingWorkstations, "Roaming workstations"},
         {ShowEditRoamingWorkstation, "Edit a roaming workstation"},
         {ShowRoamingWorkstationInitial, "First synchronization"},
         {ShowRoamingWorkstationManager, "Manage this workstation"},
         {ShowRoamingWorkstationIdentity, "Identify this workstation"},
     }},
    {"Pricing and product options",
     {
         {ShowAdditionalCharges, "Charges and promotions"},
         {ShowEditAdditionalCharge, "Edit a charge or promotion"},
         {ShowOptionDetailSettings, "Option details"},
         {ScanForOptionDetailSettings, "Scan for option details"},
         {ShowOptionCallouts, "Option callouts"},
         {ShowEditOptionCallout, "Edit an option callout"},
         {ShowOptionDefaults, "Option defaults"},
         {ShowEditOptionDefault, "Edit an option default"},
         {ShowBulkChange, "Change many records"},
         {ShowMoveProductsToVendor, "Choose products for a vendor"},
         {MoveProductsToVendor, "Move products to a vendor"},
         {ShowVendorCostMethods, "Cost methods of vendors"},
     }},
    {"Measurements and messages",
     {
         {ShowCustomerMeasurements, "Measurements of a customer"},
         {ShowEditCustomerMeasurement, "Edit a measurement"},
         {SelectCustomerMeasurementsLocation, "Choose a measured location"},
         {ShowEmailTemplates, "E-mail templates"},
         {ShowEditEmailTemplate, "Edit an e-mail template"},
         {ShowSentMessages, "Sent messages"},
     }},
    {"Company database",
     {
         {ShowDatabaseProperties, "Database properties"},
         {Perform42Migration, "Migrate from version 4.2"},
         {InitialSyncComplete, "Is the first synchronization done?"},
         {RunPackageProcessor, "Install default rows"},
     }},
    {"Lifecycle",
     {
         {Initialize, "Begin"},
         {SharedCodeLibrary, "Shared code"},
         {PreTerminate, "End"},
     }},
};
// clang-format on

std::vector<std::string> words(std::string_view text) {
    std::istringstream in(modSharedStrings::toLower(text));
    return {std::istream_iterator<std::string>(in), {}};
}

}  // namespace

std::span<const OperationGroup> operationGroups() {
    return groups;
}

std::vector<OperationGroup> findOperations(std::string_view search) {
    const std::vector<std::string> wanted = words(search);
    std::vector<OperationGroup> found;
    for (const OperationGroup& group : groups) {
        OperationGroup matching{group.caption, {}};
        std::ranges::copy_if(
            group.operations, std::back_inserter(matching.operations), [&](const ListedOperation& listed) {
                const std::string text =
                    modSharedStrings::toLower(std::string(info(listed.operation).name) + " " +
                                              std::string(listed.caption) + " " + std::string(group.caption));
                return std::ranges::all_of(
                    wanted, [&](const std::string& word) { return text.find(word) != text.npos; });
            });
        if (!matching.operations.empty()) found.push_back(std::move(matching));
    }
    // An operation with exactly this name comes first, with its group.
    const auto exact = [&](const ListedOperation& listed) {
        return sameName(info(listed.operation).name, search);
    };
    std::stable_partition(found.begin(), found.end(), [&](OperationGroup& group) {
        std::stable_partition(group.operations.begin(), group.operations.end(), exact);
        return exact(group.operations.front());
    });
    return found;
}

std::string_view typeCaption(ValueType type) {
    switch (type) {
        case ValueType::None:
            return "";
        case ValueType::Boolean:
            return "Boolean";
        case ValueType::Flag:
            return "Boolean or number";
        case ValueType::Integer:
            return "Integer";
        case ValueType::Long:
            return "Long";
        case ValueType::String:
            return "String";
        case ValueType::Variant:
            return "Variant";
        case ValueType::Object:
            return "Object";
    }
    return "";
}

std::string signature(const OperationInfo& row) {
    std::string text(row.name);
    text += '(';
    for (const OperationArgument& argument : row.arguments()) {
        if (text.back() != '(') text += ", ";
        if (argument.passing == Passing::ByValue) text += "ByVal ";
        text += std::string(argument.name) + " As " + std::string(typeCaption(argument.type));
    }
    text += ')';
    if (row.result != ValueType::None) text += " As " + std::string(typeCaption(row.result));
    return text;
}

}  // namespace tsln::workbench
