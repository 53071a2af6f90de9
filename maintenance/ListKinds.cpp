#include "maintenance/ListKinds.h"

#include <algorithm>

#include "bridge/Component.h"
#include "shared/modSharedSQL.h"
#include "shared/modSharedStrings.h"

namespace tsln {
namespace {

using modSharedSQL::format;

struct KindRow {
    std::int16_t kind;
    std::string_view displayName;
    std::string_view listName;
    std::string_view view;
    std::int32_t chargeType = 0;  ///< limits the rows to one charge type
};

// The view of the manufacturers has no underscore in its name.
constexpr KindRow kindRows[] = {
    {1, "Manufacturers", "Manufacturers", "vwExportingManufacturers"},
    {2, "Product Types", "ProductTypes", "vwExporting_ProductTypes"},
    {3, "Terms", "Terms", "vwExporting_Terms"},
    {4, "Option Details", "OptionDetailSettings", "vwExporting_OptionDetailSettings"},
    {5, "Option Defaults", "OptionDefaults", "vwExporting_OptionDefaults"},
    {6, "Phone Labels", "PhoneLabels", "vwExporting_PhoneLabels"},
    {7, "Email Labels", "EmailLabels", "vwExporting_EmailLabels"},
    {8, "Customer Types", "CustomerTypes", "vwExporting_CustomerTypes"},
    {9, "Deposit Criteria", "RequireDepositCriteria", "vwExporting_RequireDepositCriteria"},
    {10, "Shipping Methods", "ShippingMethods", "vwExporting_ShippingMethods"},
    {11, "Referral Methods", "ReferralMethods", "vwExporting_ReferralMethods"},
    {12, "Job Types", "JobTypes", "vwExporting_JobTypes"},
    {13, "Groups", "Groups", "vwExporting_Groups"},
    {14, "Delivery Ranges", "DeliveryRanges", "vwExporting_DeliveryRanges"},
    {15, "Discount Groups", "DiscountGroups", "vwExporting_DiscountGroups"},
    {16, "Field Measure Criteria", "FieldMeasureCriteria", "vwExporting_FieldMeasureCriteria"},
    {17, "Order Types", "OrderTypes", "vwExporting_OrderTypes"},
    {18, "Payment Methods", "PaymentMethods", "vwExporting_PaymentMethods"},
    {20, "Sales Tax Codes", "SalesTaxCodes", "vwExporting_SalesTaxCodes"},
    {21, "Sales Tax Groups", "SalesTaxGroups", "vwExporting_SalesTaxGroups"},
    {22, "Vendor Promotions", "AdditionalCharges", "vwExporting_AdditionalCharges", 1},
    {23, "Customer Promotions", "AdditionalCharges", "vwExporting_AdditionalCharges", 2},
    {24, "Additional Charges", "AdditionalCharges", "vwExporting_AdditionalCharges", 8},
    {25, "Item Price Adjustments", "AdditionalCharges", "vwExporting_AdditionalCharges", 4},
    {26, "Item Cost Adjustments", "AdditionalCharges", "vwExporting_AdditionalCharges", 256},
    {27, "Email Templates", "EmailTemplates", "vwExporting_EmailTemplates"},
    {28, "Customer Measurements", "CustomerMeasurements", "vwExporting_CustomerMeasurements"},
    {29, "Option Callouts", "OptionCallouts", "vwExporting_OptionCallouts"},
    {30, "Discounts", "Discounts", "vwExporting_Discounts"},
    {31, "Security Roles", "SecurityRoles", "vwExporting_SecurityRoles"},
    {32, "Security Role Access", "SecurityRoleAccess", "vwExporting_SecurityRoleAccess"},
    {33, "Measurement Rooms", "MeasurementRooms", "vwExporting_MeasurementRooms"},
    {34, "Measurement Items", "MeasurementItems", "vwExporting_MeasurementItems"},
    {35, "Measurement Mounts", "MeasurementMounts", "vwExporting_MeasurementMounts"},
    {36, "Accounts", "Accounts", "vwExporting_Accounts"},
};

const FileFilter fileFilters[] = {{"XML Files", "*.xml"}, {"Text Files", "*.txt"}, {"All Files", "*.*"}};

/// Runs the work. Returns false when it raises an error.
template <class Work>
bool succeeded(Work work) {
    try {
        return work().toBoolean();
    } catch (const std::exception&) {
        return false;
    }
}

bool portableExport(Desktop& desktop) {
    const auto setting = desktop.readSetting(settingsKey, "PortableExport");
    return setting && succeeded([&] { return Variant(*setting); });
}

}  // namespace

ListKind findListKind(std::int16_t kind) {
    const auto row = std::ranges::find(kindRows, kind, &KindRow::kind);
    if (row == std::end(kindRows)) return {};
    std::string query = "SELECT * FROM " + std::string(row->view);
    if (row->chargeType != 0) query = format(query + " WHERE ChargeType = {0}", row->chargeType);
    return {row->displayName, row->listName, std::move(query)};
}

void importList(HostScreen& screen, std::int16_t kind) {
    const ListKind list = findListKind(kind);
    if (list.listName.empty()) return;
    const auto file = screen.desktop().openFile(screen, "Open", fileFilters);
    if (!file || file->empty()) return;
    const bool imported = succeeded([&] {
        const Component engine(screen.desktop().createObject("tslniee5.Engine"), screen.host());
        return engine->call("ImportFile", *file, list.listName);
    });
    const std::string name = modSharedStrings::toLower(list.displayName);
    if (imported) {
        screen.tell(format("The {0} were imported.", name), MessageIcon::Information);
    } else {
        screen.tell(format("The {0} could not be imported.", name), MessageIcon::Exclamation);
    }
}

std::optional<bool> exportParts(HostScreen& screen, std::span<const ExportPart> parts,
                                std::string& proposed) {
    const auto file = screen.desktop().saveFile(screen, "Save As", fileFilters, proposed);
    if (!file || file->empty()) return std::nullopt;
    proposed = *file;
    return succeeded([&] {
        const Component engine(screen.desktop().createObject("tslniee5.Engine"), screen.host());
        engine->put("SimpleExport", portableExport(screen.desktop()));
        for (const ExportPart& part : parts)
            engine->call("AddToExport", part.listName, part.query);
        return engine->call("DoExport", *file);
    });
}

void exportList(HostScreen& screen, std::int16_t kind, std::string& proposed) {
    const ListKind list = findListKind(kind);
    if (list.listName.empty()) return;
    const ExportPart parts[] = {{list.listName, list.exportQuery}};
    const auto exported = exportParts(screen, parts, proposed);
    if (!exported) return;
    const std::string name = modSharedStrings::toLower(list.displayName);
    if (*exported) {
        screen.tell(format("The {0} were exported to '{1}'", name, proposed), MessageIcon::Information);
    } else {
        screen.tell(format("The {0} could not be exported.", name), MessageIcon::Exclamation);
    }
}

}  // namespace tsln
