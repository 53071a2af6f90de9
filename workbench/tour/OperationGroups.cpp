#include "workbench/tour/OperationGroups.h"

#include <algorithm>
#include <iterator>
#include <sstream>

#include "shared/modSharedStrings.h"

namespace tsln::workbench {
namespace {

using enum Operation;

const OperationGroup groups[] = {
    {"Lookup lists", {ShowTerms,       ShowPaymentMethods,   ShowShippingMethods,  ShowReferralMethods,
                      ShowJobTypes,    ShowOrderTypes,       ShowProductTypes,     ShowManufacturers,
                      ShowGroups,      ShowCustomerTypes,    ShowDeliveryRanges,   ShowPhoneLabels,
                      ShowEmailLabels, ShowMeasurementRooms, ShowMeasurementItems, ShowMeasurementMounts,
                      ShowLocations,   ShowProductTags,      ShowPortfolioTags,    ShowMoveReferences}},
    {"Lookup list dialogs",
     {ShowEditTerms, ShowEditPaymentMethods, ShowEditShippingMethods, ShowEditReferralMethods,
      ShowEditJobTypes, ShowEditOrderTypes, ShowEditProductTypes, ShowEditManufacturers, ShowEditGroups,
      ShowEditCustomerTypes, ShowEditDeliveryRanges, ShowEditPhoneLabels, ShowEditEmailLabels,
      ShowEditMeasurementRoom, ShowEditMeasurementItem, ShowEditMeasurementMount, ShowEditLocation,
      ShowEditProductTags, ShowEditPortfiolioTag}},
    {"Order criteria",
     {ShowFieldMeasureCriteria, ShowEditFieldMeasureCriteria, ShowQuoteApprovalCriteria,
      ShowEditQuoteApproval, ShowRequireDepositCriteria, ShowEditDepositCriteria}},
    {"Discount groups",
     {ShowDiscountGroups, ShowEditDiscountGroups, ShowGetReplacementDiscountGroup, ShowDeleteDiscountGroup,
      CanDeleteDiscountGroup}},
    {"Sales tax and accounts",
     {ShowSalesTaxCodes, ShowEditSalesTaxCodes, ShowSalesTaxGroups, ShowEditSalesTaxGroup,
      ShowSalesTaxGroupCodes, ShowAccounts, ShowAccounts_Edit, ShowChooseAccouningApplication}},
    {"Vendors, customers, employees, company",
     {ShowEditVendor, ShowEditCustomer, ShowUpdateOrderInformation, ShowEditEmployee, ShowEditCompany}},
    {"Security and workstations",
     {ShowSecurityRoles, ShowEditSecurityRole, ShowRoamingWorkstations, ShowEditRoamingWorkstation,
      ShowRoamingWorkstationInitial, ShowRoamingWorkstationManager, ShowRoamingWorkstationIdentity}},
    {"Pricing and product options",
     {ShowAdditionalCharges, ShowEditAdditionalCharge, ShowOptionDetailSettings, ScanForOptionDetailSettings,
      ShowOptionCallouts, ShowEditOptionCallout, ShowOptionDefaults, ShowEditOptionDefault, ShowBulkChange,
      ShowMoveProductsToVendor, MoveProductsToVendor, ShowVendorCostMethods}},
    {"Measurements and messages",
     {ShowCustomerMeasurements, ShowEditCustomerMeasurement, SelectCustomerMeasurementsLocation,
      ShowEmailTemplates, ShowEditEmailTemplate, ShowSentMessages}},
    {"Company database",
     {ShowDatabaseProperties, Perform42Migration, InitialSyncComplete, RunPackageProcessor}},
    {"Lifecycle", {Initialize, SharedCodeLibrary, PreTerminate}},
};

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
            group.operations, std::back_inserter(matching.operations), [&](Operation operation) {
                const std::string text = modSharedStrings::toLower(std::string(info(operation).name) + " " +
                                                                   std::string(group.caption));
                return std::ranges::all_of(
                    wanted, [&](const std::string& word) { return text.find(word) != text.npos; });
            });
        if (!matching.operations.empty()) found.push_back(std::move(matching));
    }
    // An operation with exactly this name comes first, with its group.
    const auto exact = [&](Operation operation) { return sameName(info(operation).name, search); };
    std::ranges::stable_partition(found, [&](OperationGroup& group) {
        std::ranges::stable_partition(group.operations, exact);
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
