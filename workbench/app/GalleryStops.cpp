#include "workbench/app/GalleryStops.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

#include <wx/defs.h>

#include "workbench/app/OperationGroups.h"

namespace tsln::workbench {
namespace {

using enum Operation;

/// Arguments of operations for which the first row of their table, or nothing, says little.
const GalleryStop particulars[] = {
    {"ShowMoveReferences", ShowMoveReferences, {"1", "1"}},
    {"ShowGetReplacementDiscountGroup", ShowGetReplacementDiscountGroup, {"4"}},
    {"ShowDeleteDiscountGroup", ShowDeleteDiscountGroup, {"4"}},
    {"ShowEditDiscountGroups", ShowEditDiscountGroups, {"4"}},
    {"ShowEditPortfiolioTag", ShowEditPortfiolioTag, {"Kitchen"}},
    {"ShowEditVendor", ShowEditVendor, {"3"}},
    {"ShowEditCustomer", ShowEditCustomer, {"5"}},
    {"ShowProductTags", ShowProductTags, {"3"}},
    {"ShowEditProductTags", ShowEditProductTags, {"3"}},
};

constexpr std::string_view moreMenu = "Alt+m";

/// What a call alone does not show.
const GalleryStop further[] = {
    {"list-several-selected", ShowManufacturers, {}, "Home Shift+Down Shift+Down *"},
    {"list-more-commands", ShowTerms, {}, moreMenu},
    {"list-help", ShowTerms, {}, "F1"},
    {"list-print-preview", ShowTerms, {}, "Alt+m Down Down Down Enter ..."},
    {"list-export", ShowTerms, {}, "Alt+m Down Down Enter"},
    {"list-import", ShowTerms, {}, "Alt+m Down Enter"},
    {"list-save", ShowTerms, {}, "Alt+m Down Down Down Down Enter"},
    {"defaults-installed", ShowMeasurementRooms, {}, "Enter ... *"},
    {"message-required", ShowEditTerms, {"0"}, "Enter"},
    {"message-duplicate", ShowEditPaymentMethods, {"0"}, "=Cash Enter"},
    {"message-referenced", ShowShippingMethods, {}, "Home Delete"},
    {"message-required-group", ShowEditDiscountGroups, {"1"}},
    {"message-last-of-its-kind",
     ShowCustomerTypes,
     {},
     "Home Delete",
     "UPDATE Customers SET CustomerTypeID = 1;DELETE FROM CustomerTypes WHERE ID > 1;"
     "UPDATE Customers SET CustomerTypeID = 0"},
    {"message-save-failed", ShowEditLocation, {"0"}, "=New_showroom Enter"},
    {"message-export-note", ShowDiscountGroups, {}, "Alt+m Down Down Enter"},
    {"message-moved", ShowMoveReferences, {"1", "1"}, "Down Enter"},
    {"delete-discount-group", ShowDeleteDiscountGroup, {"4"}, "Enter"},
    {"expression-editor", ShowEditDiscountGroups, {"4"}, "Alt+x"},
    {"expression-fault", ShowEditDiscountGroups, {"4"}, "Alt+x =_(Width_>_96 *"},
    {"first-tax-codes",
     ShowSalesTaxGroups,
     {},
     "Enter Enter Insert =STATE Tab =5 Enter Escape Enter =State_only Enter Enter",
     "DELETE FROM SalesTaxGroupCodes;DELETE FROM SalesTaxCodes;DELETE FROM SalesTaxGroups"},
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
            return "0";
        default:
            return {};
    }
}

std::vector<std::string> usualArguments(const OperationInfo& row) {
    const auto particular = std::ranges::find(particulars, row.operation, &GalleryStop::operation);
    if (particular != std::end(particulars)) return particular->arguments;
    std::vector<std::string> arguments;
    for (const OperationArgument& argument : row.arguments())
        arguments.push_back(usual(argument));
    return arguments;
}

struct NamedKey {
    std::string_view name;
    int key;
};
constexpr NamedKey namedKeys[] = {
    {"Enter", WXK_RETURN}, {"Escape", WXK_ESCAPE}, {"Tab", WXK_TAB},     {"Down", WXK_DOWN},
    {"Up", WXK_UP},        {"Home", WXK_HOME},     {"End", WXK_END},     {"Insert", WXK_INSERT},
    {"F1", WXK_F1},        {"Delete", WXK_DELETE}, {"Space", WXK_SPACE},
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
    for (const NamedKey& modifier : modifierKeys) {
        if (!rest.starts_with(modifier.name)) continue;
        stroke.modifiers |= modifier.key;
        rest.remove_prefix(modifier.name.size());
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
        for (const Operation operation : group.operations) {
            const OperationInfo& row = info(operation);
            if (!opensScreen(row)) continue;
            GalleryStop stop{std::string(row.name), operation, usualArguments(row)};
            if (editsRow(row)) {
                GalleryStop forNew = stop;
                forNew.name += "-new";
                forNew.arguments.front() = "0";
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
