#include "workbench/host/ImportLists.h"

#include "automation/Object.h"

namespace tsln::workbench {
namespace {

constexpr std::string_view manufacturer[] = {"Manufacturer"};
constexpr std::string_view productType[] = {"ProductType"};
constexpr std::string_view terms[] = {"Terms"};
constexpr std::string_view label[] = {"Label"};
constexpr std::string_view name[] = {"Name"};
constexpr std::string_view criteria[] = {"Criteria"};
constexpr std::string_view shippingMethod[] = {"ShippingMethod"};
constexpr std::string_view referralMethod[] = {"ReferralMethod"};
constexpr std::string_view jobType[] = {"JobType"};
constexpr std::string_view orderType[] = {"OrderType"};
constexpr std::string_view groupName[] = {"GroupName"};
constexpr std::string_view range[] = {"Range"};
// A price group and a cost group may have the same name.
constexpr std::string_view discountGroup[] = {"DiscountGroup", "DiscountGroupType"};
constexpr std::string_view paymentMethod[] = {"PaymentMethod"};
constexpr std::string_view room[] = {"Room"};
constexpr std::string_view itemName[] = {"ItemName"};
constexpr std::string_view mount[] = {"Mount"};
constexpr std::string_view roleAndActivity[] = {"SecurityRoleID", "Activity"};

constexpr ImportReference role{"SecurityRole", "SecurityRoles", "Name", "SecurityRoleID"};

constexpr ImportList importLists[] = {
    {"Manufacturers", "Manufacturers", manufacturer},
    {"ProductTypes", "ProductTypes", productType},
    {"Terms", "Terms", terms},
    {"PhoneLabels", "PhoneLabels", label},
    {"EmailLabels", "EmailLabels", label},
    {"CustomerTypes", "CustomerTypes", name},
    {"RequireDepositCriteria", "RequireDepositCriteria", criteria},
    {"ShippingMethods", "ShippingMethods", shippingMethod},
    {"ReferralMethods", "ReferralMethods", referralMethod},
    {"JobTypes", "JobTypes", jobType},
    {"Groups", "Groups", groupName},
    {"DeliveryRanges", "DeliveryRanges", range},
    {"DiscountGroups", "DiscountGroups", discountGroup},
    {"FieldMeasureCriteria", "FieldMeasureCriteria", criteria},
    {"OrderTypes", "OrderTypes", orderType},
    {"PaymentMethods", "PaymentMethods", paymentMethod},
    {"SecurityRoles", "SecurityRoles", name},
    {"SecurityRoleAccess", "SecurityRoleAccess", roleAndActivity, &role},
    {"MeasurementRooms", "MeasurementRooms", room},
    {"MeasurementItems", "MeasurementItems", itemName},
    {"MeasurementMounts", "MeasurementMounts", mount},
};

}  // namespace

const ImportList* findImportList(std::string_view list) {
    for (const ImportList& row : importLists) {
        if (sameName(row.list, list)) return &row;
    }
    return nullptr;
}

}  // namespace tsln::workbench
