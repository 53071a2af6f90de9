#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "maintenance/FieldDescription.h"

namespace tsln::pricing {

/// The kinds of rule in the table of charges, as they are stored.
enum class ChargeType : std::int16_t {
    VendorPromotion = 1,
    CustomerPromotion = 2,
    ItemPriceAdjustment = 4,
    AdditionalCharge = 8,
    ItemCostAdjustment = 256,
};

/// How order entry computes a charge, as it is stored.
enum class ChargeMethod : std::int32_t {
    FlatRate = 1,
    Percent = 2,
    AddPriceLine = 3,
    SubtractPriceLine = 4,
    BeforeDiscountCost = 5,
    BeforeDiscountPrice = 6,
    AfterDiscountCost = 7,
    AfterDiscountPrice = 8,
    BeforeAdjustmentCost = 9,
    BeforeAdjustmentPrice = 10,
    PerProduct = 11,
    PercentPerProduct = 12,
    PerSquareFoot = 15,
    PerLinearFoot = 16,
};

struct ChargeMethodInfo {
    /// What the value is.
    enum class Value { Amount, Percent, PriceLine };

    ChargeMethod method;
    std::string_view caption;
    std::string_view help;           ///< how order entry applies it
    std::string_view before, after;  ///< the list's summary, with the value between the two
    Value value;
};
/// Returns null for a number that is no method.
const ChargeMethodInfo* findChargeMethod(std::int32_t number);

/// The texts by which the screens of a charge type differ, and what they offer.
struct ChargeTypeInfo {
    ChargeType type;
    std::string_view listCaption;
    std::string_view dialogCaption;
    std::int16_t listKind;             ///< for import and export
    std::string_view defaultsPackage;  ///< empty: the type has no default rows
    bool ofOrders;                     ///< is a line of an order, not an adjustment of an item
    int sign;                          ///< of a value: 1 never below zero, -1 never above, 0 any

    /// The methods in the order of the choice.
    std::span<const ChargeMethod> methods() const;
};
std::span<const ChargeTypeInfo> chargeTypes();
/// Returns null for a number that is no type.
const ChargeTypeInfo* findChargeType(std::int32_t number);

/// The categories of a charge.
std::span<const Choice> chargeCategories();

/// The list's summary of a charge: how its value is applied, and its criteria when it has any. A value that is no number
/// is shown as it is.
std::string chargeSummary(std::int32_t method, std::string_view value, std::string_view criteria);

}  // namespace tsln::pricing
