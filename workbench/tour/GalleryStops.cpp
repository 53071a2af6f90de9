#include "workbench/tour/GalleryStops.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

#include <wx/defs.h>

#include "workbench/tour/OperationGroups.h"

namespace tsln::workbench {
namespace {

using enum Operation;

/// The arguments of an operation that needs other than the usual ones.
struct Particular {
    Operation operation;
    std::vector<std::string> arguments;
    std::string_view prepare = {};
    bool makesRows = true;  ///< for an operation that edits rows: 0 adds a row
};
const Particular particulars[] = {
    {ShowMoveReferences, {"1", "1"}},
    {ShowGetReplacementDiscountGroup, {"4"}},
    {ShowDeleteDiscountGroup, {"4"}},
    {ShowEditDiscountGroups, {"4"}},
    {ShowEditPortfiolioTag, {"Kitchen"}},
    {ShowEditVendor, {"3"}},
    {ShowEditAdditionalCharge, {"5", "2"}},
    {ShowBulkChange, {"1", "5,6,7"}},
    {ShowMoveProductsToVendor, {"2"}, {}, false},
    {ShowOptionCallouts, {"0"}},
    {ShowEditOptionCallout, {"3"}},
    {ShowOptionDefaults, {"7"}},
    {ShowEditOptionDefault, {"5", "7"}},
    {ShowEditCustomer, {"5"}},
    {ShowEditEmployee, {"6"}},
    {ShowEditSecurityRole, {"3"}},
    {ShowCustomerMeasurements, {"11"}},
    {ShowEditCustomerMeasurement, {"1", "11", ""}},
    {SelectCustomerMeasurementsLocation, {"11", "0"}},
    {ShowProductTags, {"3"}},
    {ShowEditProductTags, {"3"}, {}, false},
    {ShowEditMeasurementRoom, {"1"}, "INSERT INTO MeasurementRooms (Room) VALUES ('Sun porch')"},
    {ShowEditMeasurementItem, {"1"}, "INSERT INTO MeasurementItems (ItemName) VALUES ('Transom')"},
    {ShowEditMeasurementMount, {"1"}, "INSERT INTO MeasurementMounts (Mount) VALUES ('Ceiling')"},
};

/// Stops that need keys or prepared data.
const GalleryStop further[] = {
    {"list-several-selected", ShowManufacturers, {}, "Shift+Down Shift+Down *"},
    {"list-more-commands", ShowTerms, {}, "Alt+m"},
    {"list-help", ShowTerms, {}, "F1"},
    {"list-print-preview", ShowTerms, {}, "Alt+m Down Down Down Enter ..."},
    {"list-export", ShowTerms, {}, "Alt+m Down Down Enter"},
    {"list-import", ShowTerms, {}, "Alt+m Down Enter"},
    {"list-save", ShowTerms, {}, "Alt+m Down Down Down Down Enter"},
    {"defaults-installed", ShowMeasurementRooms, {}, "Enter ... *", "DELETE FROM MeasurementRooms"},
    {"message-required", ShowEditTerms, {"0"}, "Enter"},
    {"message-duplicate", ShowEditPaymentMethods, {"0"}, "=Cash Enter"},
    {"message-referenced", ShowShippingMethods, {}, "End Alt+d"},
    {"message-delete", ShowTerms, {}, "Home Delete"},
    {"message-required-group", ShowEditDiscountGroups, {"1"}},
    {"message-last-of-its-kind",
     ShowCustomerTypes,
     {},
     "Alt+d",
     "UPDATE Customers SET CustomerTypeID = 1;DELETE FROM CustomerTypes WHERE ID > 1;"
     "UPDATE Customers SET CustomerTypeID = 0"},
    {"message-save-failed", ShowEditLocation, {"0"}, "=New_showroom Enter"},
    {"measurement-without-size", ShowEditCustomerMeasurement, {"0", "11", ""}, "=House Enter"},
    {"message-no-measurements", SelectCustomerMeasurementsLocation, {"1", "0"}},
    {"templates-of-one-type", ShowEmailTemplates, {"1"}},
    {"message-delete-template", ShowEmailTemplates, {"0"}, "Down Alt+d"},
    {"template-of-orders", ShowEditEmailTemplate, {"2"}},
    {"send-email", ShowEditEmailTemplate, {"2"}, "Alt+w =10006 Enter"},
    {"sent-messages-menu", ShowSentMessages, {}, "Home Alt+m"},
    {"workstations-delete", ShowRoamingWorkstations, {}, "Home Alt+d"},
    {"workstations-reset-date", ShowRoamingWorkstations, {}, "Home Alt+r"},
    {"workstations-options",
     ShowRoamingWorkstations,
     {},
     "Alt+c Enter",
     "UPDATE CompanyOptions SET OptionValue = '0' WHERE OptionName = 'EnableSync'"},
    {"workstation-identity-code", ShowEditRoamingWorkstation, {"4"}, "Enter"},
    {"identity-invalid", ShowRoamingWorkstationIdentity, {}, "=0f8fad5b Enter"},
    {"initial-sync-question", ShowRoamingWorkstationInitial, {}, "Alt+r"},
    {"initial-sync-files", ShowRoamingWorkstationInitial, {}, "Alt+f"},
    {"manager-reset", ShowRoamingWorkstationManager, {}, "Alt+r Enter"},
    {"message-export-note", ShowDiscountGroups, {}, "Alt+m Down Down Enter"},
    {"message-moved", ShowMoveReferences, {"1", "1"}, "Down Enter"},
    {"delete-discount-group", ShowDeleteDiscountGroup, {"4"}, "Enter"},
    {"expression-editor", ShowEditDiscountGroups, {"4"}, "Alt+x"},
    {"expression-fault", ShowEditDiscountGroups, {"4"}, "Alt+x =_(Width_>_96 *"},
    {"charges-customer-promotions", ShowAdditionalCharges, {"2"}},
    {"charges-price-adjustments", ShowAdditionalCharges, {"4"}},
    {"charges-context-menu", ShowAdditionalCharges, {"8"}, "Down Shift+F10"},
    {"charge-pages", ShowEditAdditionalCharge, {"5", "2"}, "Ctrl+PageDown * Ctrl+PageDown * Ctrl+PageDown *"},
    {"charge-long-help", ShowEditAdditionalCharge, {"0", "8"}, "Alt+m Down Down Down Down Down Down *"},
    {"charge-of-item", ShowEditAdditionalCharge, {"7", "4"}},
    {"charge-assign-account", ShowEditAdditionalCharge, {"5", "2"}, "Ctrl+PageDown Ctrl+PageDown Alt+a"},
    {"charge-zero-cost", ShowEditAdditionalCharge, {"5", "2"}, "Enter"},
    {"charge-search-for-name",
     ShowAdditionalCharges,
     {"8"},
     "Home Down Alt+u *",
     "INSERT INTO AdditionalCharges (ChargeType, ChargeName) VALUES (4, 'Trip charge 1')"},
    {"charges-defaults",
     ShowAdditionalCharges,
     {"2"},
     "Enter ... *",
     "DELETE FROM AdditionalCharges WHERE ChargeType = 2"},
    {"bulk-change-question", ShowBulkChange, {"1", "5,6,7"}, "Space Enter"},
    {"bulk-change-orders", ShowBulkChange, {"4", "1,2,3"}},
    {"move-products-chosen", ShowMoveProductsToVendor, {"2"}, "Alt+s =Ever * Enter *"},
    {"option-details-menu", ShowOptionDetailSettings, {}, "Home Alt+m"},
    {"option-details-new", ShowOptionDetailSettings, {}, "Alt+n ... =Motor"},
    {"option-details-second", ShowOptionDetailSettings, {}, "Alt+s"},
    {"callout-products", ShowEditOptionCallout, {"4"}},
    {"callout-refused-product",
     ShowEditOptionCallout,
     {"2"},
     "",
     "UPDATE OptionCallouts SET ProductID = (SELECT ID FROM Products WHERE ProductFile = 'GLO-HARDWARE') WHERE ID = 2"},
    {"properties-further", ShowDatabaseProperties, {}, "... PageDown PageDown *"},
    {"option-default-wrong", ShowOptionDefaults, {"7"}, "Alt+m v Enter ..."},
    {"customer-pages",
     ShowEditCustomer,
     {"5"},
     "Ctrl+PageDown * Ctrl+PageDown * Ctrl+PageDown * Ctrl+PageDown *"},
    {"customer-new-address", ShowEditCustomer, {"5"}, "Alt+r Tab Enter"},
    {"customer-duplicate", ShowEditCustomer, {"0"}, "=Sallow,_Adela Enter"},
    {"company-pages", ShowEditCompany, {}, "Ctrl+PageDown * Ctrl+PageDown *"},
    {"role-permissions", ShowEditSecurityRole, {"3"}, "Tab Tab Home Down Down Down Alt+p Alt+l *"},
    {"message-role-in-use", ShowSecurityRoles, {}, "Home Alt+d"},
    {"message-role-copy-taken",
     ShowSecurityRoles,
     {},
     "Home Alt+y",
     "INSERT INTO SecurityRoles (Name) VALUES ('Administrator Copy')"},
    {"roles-context-menu", ShowSecurityRoles, {}, "Home Shift+F10"},
    {"employee-pages", ShowEditEmployee, {"1"}, "Ctrl+PageDown * Ctrl+PageDown * Ctrl+PageDown *"},
    {"employee-mail-server", ShowEditEmployee, {"1"}, "Ctrl+PageDown Ctrl+PageDown Alt+s *"},
    {"employee-without-method", ShowEditEmployee, {"0"}, "=Ada Alt+s Enter Enter"},
    {"orders-active-refused", ShowUpdateOrderInformation, {"8"}, "Alt+s Alt+t Enter"},
    {"first-tax-codes",
     ShowSalesTaxGroups,
     {},
     "Enter Enter Insert =STATE Tab =5 Enter Escape Enter =State_only Enter Enter",
     "DELETE FROM SalesTaxGroupCodes;DELETE FROM SalesTaxCodes;DELETE FROM SalesTaxGroups"},
    {"migration-no-company", Perform42Migration, {"/no such company", "1"}},
    // Last, because it fills the company.
    {"migration", Perform42Migration, {std::string(oldCompanyArgument), "2"}},
};

bool opensScreen(const OperationInfo& row) {
    return row.visibility == Visibility::Public &&
           (row.name.starts_with("Show") || row.name.starts_with("Select"));
}

bool editsRow(const OperationInfo& row) {
    return row.name.find("Edit") != row.name.npos && row.argumentCount > 0 &&
           row.argumentRow[0].type == ValueType::Long;
}

std::string usual(const OperationArgument& argument) {
    switch (argument.type) {
        case ValueType::Integer:
        case ValueType::Long:
            return "1";
        case ValueType::Boolean:
        case ValueType::Flag:
            return "0";
        default:
            return {};
    }
}

GalleryStop stopAt(const OperationInfo& row, const Particular* particular) {
    GalleryStop stop{std::string(row.name), row.operation};
    if (particular) {
        stop.arguments = particular->arguments;
        stop.prepare = particular->prepare;
    } else {
        for (const OperationArgument& argument : row.arguments())
            stop.arguments.push_back(usual(argument));
    }
    return stop;
}

struct NamedKey {
    std::string_view name;
    int key;
};
constexpr NamedKey namedKeys[] = {
    {"Enter", WXK_RETURN}, {"Escape", WXK_ESCAPE}, {"Tab", WXK_TAB},     {"Down", WXK_DOWN},
    {"Up", WXK_UP},        {"Home", WXK_HOME},     {"End", WXK_END},     {"Insert", WXK_INSERT},
    {"F1", WXK_F1},        {"Delete", WXK_DELETE}, {"Space", WXK_SPACE}, {"PageDown", WXK_PAGEDOWN},
    {"F10", WXK_F10},
};
constexpr NamedKey modifierKeys[] = {{"Shift+", wxMOD_SHIFT}, {"Alt+", wxMOD_ALT}, {"Ctrl+", wxMOD_CONTROL}};

Keystroke readKey(const std::string& word) {
    if (word == "*") return {.kind = Keystroke::Kind::Picture};
    if (word == "...") return {.kind = Keystroke::Kind::Wait};
    if (word.starts_with("=")) {
        std::string text = word.substr(1);
        std::ranges::replace(text, '_', ' ');
        return {.kind = Keystroke::Kind::Type, .text = text};
    }
    Keystroke stroke;
    std::string_view rest = word;
    for (bool more = true; more;) {
        const auto modifier = std::ranges::find_if(
            modifierKeys, [&](const NamedKey& key) { return rest.starts_with(key.name); });
        more = modifier != std::end(modifierKeys);
        if (!more) continue;
        stroke.modifiers |= modifier->key;
        rest.remove_prefix(modifier->name.size());
    }
    const auto named = std::ranges::find(namedKeys, rest, &NamedKey::name);
    if (named != std::end(namedKeys)) {
        stroke.key = named->key;
    } else if (rest.size() == 1) {
        stroke.key = static_cast<unsigned char>(rest.front());
    } else {
        throw std::invalid_argument("There is no key " + word + ".");
    }
    return stroke;
}

}  // namespace

std::vector<GalleryStop> galleryStops() {
    std::vector<GalleryStop> stops;
    for (const OperationGroup& group : operationGroups()) {
        for (const auto& [operation, caption] : group.operations) {
            const OperationInfo& row = info(operation);
            if (!opensScreen(row)) continue;
            const auto found = std::ranges::find(particulars, operation, &Particular::operation);
            const Particular* particular = found == std::end(particulars) ? nullptr : &*found;
            GalleryStop stop = stopAt(row, particular);
            if (editsRow(row) && (!particular || particular->makesRows)) {
                GalleryStop forNew = stop;
                forNew.name += "-new";
                forNew.arguments.front().assign(1, '0');
                forNew.prepare = {};
                stops.push_back(std::move(forNew));
            }
            stops.push_back(std::move(stop));
        }
    }
    std::ranges::copy(further, std::back_inserter(stops));
    return stops;
}

std::vector<Keystroke> readKeys(std::string_view keys) {
    std::vector<Keystroke> strokes;
    std::istringstream words{std::string(keys)};
    for (std::string word; words >> word;)
        strokes.push_back(readKey(word));
    return strokes;
}

}  // namespace tsln::workbench
