#include "pricing/ChargeTypes.h"

#include <algorithm>

#include "automation/NumericText.h"
#include "automation/UnicodeText.h"
#include "shared/ValueText.h"
#include "shared/modSharedStrings.h"

namespace tsln::pricing {
namespace {

using enum ChargeMethod;
using Value = ChargeMethodInfo::Value;

// "doller" and the blank after the name of a price line are deliberate.
// clang-format off: one method per line
constexpr ChargeMethodInfo methods[] = {
    {FlatRate, "Flat Rate", "The dollar value entered will be added once to the order.", "Flat rate of ", ".",
     Value::Amount},
    {PerProduct, "Per Product",
     "The dollar value entered will be added once for each product (changes with quantity).", "Rate of ",
     " per product.", Value::Amount},
    {Percent, "Percent",
     "A percent of the total price of item(s) you select during order entry will be added to the order.", "",
     " percent of selected items.", Value::Percent},
    {PercentPerProduct, "Percent per Product",
     "A percent of the total price of all product items will be added to the order.", "",
     " percent of all product items.", Value::Percent},
    {PerSquareFoot, "Rate per Total Sqr Feet",
     "The doller value entered per the total square feet of all product items will be added to the order.",
     "Rate of ", " per total square feet of all product items.", Value::Amount},
    {PerLinearFoot, "Rate per Total Linear Feet",
     "The doller value entered per the total linear feet of all product items will be added to the order.",
     "Rate of ", " per total linear feet of all product items.", Value::Amount},
    {AddPriceLine, "Add Price Line", "The value of the entered price line will be added to the item price.",
     "Add the value of the price line '", " '", Value::PriceLine},
    {SubtractPriceLine, "Subtract Price Line",
     "The value of the entered price line will be subtracted from the item price.",
     "Subtract the value of the price line '", " '", Value::PriceLine},
    {BeforeDiscountCost, "Percent of Before Discount Cost",
     "A percent of the before discount cost will be added to the item cost.", "",
     " percent of before discount cost.", Value::Percent},
    {BeforeDiscountPrice, "Percent of Before Discount Price",
     "A percent of the before discount price will be added to the item price.", "",
     " percent of before discount price.", Value::Percent},
    {AfterDiscountCost, "Percent of After Discount Cost",
     "A percent of the after discount cost will be added to the item cost.", "",
     " percent of after discount cost.", Value::Percent},
    {AfterDiscountPrice, "Percent of After Discount Price",
     "A percent of the after discount price will be added to the item price.", "",
     " percent of after discount price.", Value::Percent},
    {BeforeAdjustmentCost, "Percent of Before Price Adjustment Cost",
     "A percent of the before price adjustment cost will be added to the item cost.", "",
     " percent of before price adjustment cost.", Value::Percent},
    {BeforeAdjustmentPrice, "Percent of Before Price Adjustment Price",
     "A percent of the before price adjustment price will be added to the item price.", "",
     " percent of before price adjustment price.", Value::Percent},
};

constexpr ChargeTypeInfo types[] = {
    {ChargeType::VendorPromotion, "Vendor Promotions", "Edit Vendor Promotion", 22, {}, true, -1},
    {ChargeType::CustomerPromotion, "Customer Promotions", "Edit Customer Promotion", 23,
     "TSLN50_CustomerPromotions", true, -1},
    {ChargeType::ItemPriceAdjustment,
     "Item Price Adjustments",
     "Edit Item Price Adjustment",
     25,
     {},
     false,
     0},
    {ChargeType::AdditionalCharge, "Additional Charges", "Edit Additional Charge", 24,
     "TSLN50_AdditionalCharges", true, 1},
    {ChargeType::ItemCostAdjustment, "Item Cost Adjustments", "Edit Item Cost Adjustment", 26, {}, false, 0},
};
// clang-format on

constexpr ChargeMethod orderMethods[] = {FlatRate,      PerProduct,    Percent,      PercentPerProduct,
                                         PerSquareFoot, PerLinearFoot, AddPriceLine, SubtractPriceLine};
constexpr ChargeMethod itemMethods[] = {
    FlatRate,           BeforeDiscountCost,   BeforeDiscountPrice,  AfterDiscountCost,
    AfterDiscountPrice, BeforeAdjustmentCost, BeforeAdjustmentPrice};

constexpr Choice categories[] = {{1, "Installation"}, {2, "Shipping"}, {3, "Other"}};

constexpr std::size_t mostCriteria = 128;  // characters

/// The text, cut after its first characters, with "..." in place of the rest.
std::string shortened(const std::string& text, std::size_t characters) {
    std::size_t at = 0;
    for (std::size_t i = 0; i < characters; ++i) {
        if (at >= text.size()) return text;
        nextCodePoint(text, at);
    }
    return at < text.size() ? text.substr(0, at) + "..." : text;
}

std::string methodSummary(std::int32_t method, std::string_view value) {
    const ChargeMethodInfo* info = findChargeMethod(method);
    if (!info) return "Unknown charge";
    std::string shown = modSharedStrings::trim(value);
    if (info->value == Value::Amount) {
        if (const auto amount = parseNumber(shown)) shown = currencyText(*amount);
    }
    return std::string(info->before) + shown + std::string(info->after);
}

}  // namespace

const ChargeMethodInfo* findChargeMethod(std::int32_t number) {
    const auto found =
        std::ranges::find(methods, static_cast<ChargeMethod>(number), &ChargeMethodInfo::method);
    return found == std::end(methods) ? nullptr : found;
}

std::span<const ChargeMethod> ChargeTypeInfo::methods() const {
    return ofOrders ? std::span<const ChargeMethod>(orderMethods) : itemMethods;
}

std::span<const ChargeTypeInfo> chargeTypes() {
    return types;
}

const ChargeTypeInfo* findChargeType(std::int32_t number) {
    const auto found = std::ranges::find(
        types, number, [](const ChargeTypeInfo& type) { return static_cast<std::int32_t>(type.type); });
    return found == std::end(types) ? nullptr : found;
}

std::span<const Choice> chargeCategories() {
    return categories;
}

std::string chargeSummary(std::int32_t method, std::string_view value, std::string_view criteria) {
    std::string summary = methodSummary(method, value);
    const std::string condition = modSharedStrings::trim(criteria);
    if (!condition.empty()) summary += "; Criteria: " + shortened(condition, mostCriteria);
    return summary;
}

}  // namespace tsln::pricing
