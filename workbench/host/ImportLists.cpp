#include "workbench/host/ImportLists.h"

#include "automation/Object.h"

namespace tsln::workbench {
namespace {

constexpr std::string_view kManufacturer[] = {"Manufacturer"};
constexpr std::string_view kProductType[] = {"ProductType"};
constexpr std::string_view kTerms[] = {"Terms"};
constexpr std::string_view kLabel[] = {"Label"};
constexpr std::string_view kName[] = {"Name"};
constexpr std::string_view kCriteria[] = {"Criteria"};
constexpr std::string_view kShippingMethod[] = {"ShippingMethod"};
constexpr std::string_view kReferralMethod[] = {"ReferralMethod"};
constexpr std::string_view kJobType[] = {"JobType"};
constexpr std::string_view kOrderType[] = {"OrderType"};
constexpr std::string_view kGroupName[] = {"GroupName"};
constexpr std::string_view kRange[] = {"Range"};
// A price group and a cost group may have the same name.
constexpr std::string_view kDiscountGroup[] = {"DiscountGroup", "DiscountGroupType"};
constexpr std::string_view kPaymentMethod[] = {"PaymentMethod"};
constexpr std::string_view kRoom[] = {"Room"};
constexpr std::string_view kItemName[] = {"ItemName"};
constexpr std::string_view kMount[] = {"Mount"};
constexpr std::string_view kRoleAndActivity[] = {"SecurityRoleID", "Activity"};

constexpr ImportReference kRole{"SecurityRole", "SecurityRoles", "Name", "SecurityRoleID"};

constexpr ImportList kLists[] = {
    {"Manufacturers", "Manufacturers", kManufacturer},
    {"ProductTypes", "ProductTypes", kProductType},
    {"Terms", "Terms", kTerms},
    {"PhoneLabels", "PhoneLabels", kLabel},
    {"EmailLabels", "EmailLabels", kLabel},
    {"CustomerTypes", "CustomerTypes", kName},
    {"RequireDepositCriteria", "RequireDepositCriteria", kCriteria},
    {"ShippingMethods", "ShippingMethods", kShippingMethod},
    {"ReferralMethods", "ReferralMethods", kReferralMethod},
    {"JobTypes", "JobTypes", kJobType},
    {"Groups", "Groups", kGroupName},
    {"DeliveryRanges", "DeliveryRanges", kRange},
    {"DiscountGroups", "DiscountGroups", kDiscountGroup},
    {"FieldMeasureCriteria", "FieldMeasureCriteria", kCriteria},
    {"OrderTypes", "OrderTypes", kOrderType},
    {"PaymentMethods", "PaymentMethods", kPaymentMethod},
    {"SecurityRoles", "SecurityRoles", kName},
    {"SecurityRoleAccess", "SecurityRoleAccess", kRoleAndActivity, &kRole},
    {"MeasurementRooms", "MeasurementRooms", kRoom},
    {"MeasurementItems", "MeasurementItems", kItemName},
    {"MeasurementMounts", "MeasurementMounts", kMount},
};

}  // namespace

const ImportList* findImportList(std::string_view list) {
    for (const ImportList& row : kLists) {
        if (sameName(row.list, list)) return &row;
    }
    return nullptr;
}

}  // namespace tsln::workbench
