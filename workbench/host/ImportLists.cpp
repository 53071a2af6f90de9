#include "workbench/host/ImportLists.h"

#include "automation/Object.h"

namespace tsln::workbench {
namespace {

constexpr ImportReference role{"SecurityRole", "SecurityRoles", "Name", "SecurityRoleID"};

constexpr ImportList importLists[] = {
    {"Manufacturers", {"Manufacturer"}},
    {"ProductTypes", {"ProductType"}},
    {"Terms", {"Terms"}},
    {"PhoneLabels", {"Label"}},
    {"EmailLabels", {"Label"}},
    {"CustomerTypes", {"Name"}},
    {"RequireDepositCriteria", {"Criteria"}},
    {"ShippingMethods", {"ShippingMethod"}},
    {"ReferralMethods", {"ReferralMethod"}},
    {"JobTypes", {"JobType"}},
    {"Groups", {"GroupName"}},
    {"DeliveryRanges", {"Range"}},
    // A price group and a cost group may have the same name.
    {"DiscountGroups", {"DiscountGroup", "DiscountGroupType"}},
    {"FieldMeasureCriteria", {"Criteria"}},
    {"OrderTypes", {"OrderType"}},
    {"PaymentMethods", {"PaymentMethod"}},
    {"SecurityRoles", {"Name"}},
    {"SecurityRoleAccess", {"SecurityRoleID", "Activity"}, &role},
    {"MeasurementRooms", {"Room"}},
    {"MeasurementItems", {"ItemName"}},
    {"MeasurementMounts", {"Mount"}},
};

}  // namespace

const ImportList* findImportList(std::string_view name) {
    for (const ImportList& row : importLists) {
        if (sameName(row.name, name)) return &row;
    }
    return nullptr;
}

}  // namespace tsln::workbench
