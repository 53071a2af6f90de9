#include "lists/ListReferences.h"

#include <algorithm>
#include <utility>

namespace tsln::lists {
namespace {

constexpr std::pair<std::string_view, std::string_view> failures[] = {
    {"Customers", "There was a problem moving the customer references."},
    {"GroupedCustomers", "There was a problem moving the customer references."},
    {"Orders", "There was a problem moving the Q/S/O references."},
    {"Products", "There was a problem moving the product references."},
    {"SalesTaxGroupCodes", "There was a problem moving the sales tax group code references."},
    {"ProductVendors", "There was a problem moving the product vendor references."},
    {"AdditionalCharges", "There was a problem moving the additional charge references."},
    {"Vendors", "There was a problem moving the vendor references."},
    {"Payments", "There was a problem moving the payment references."},
    {"Jobs", "There was a problem moving the job references."},
    {"ProductRefreshHistory", "There was a problem moving the product refresh history references."},
    {"PurchaseOrders", "There was a problem moving the PO references."},
};

constexpr Reference toShippingMethods[] = {{"Customers", "ShippingMethodID"},
                                           {"Orders", "ShippingMethodID"},
                                           {"PurchaseOrders", "ShippingMethodID"}};
constexpr Reference toReferralMethods[] = {{"Customers", "ReferralMethodID"}, {"Orders", "ReferralMethodID"}};
constexpr Reference toProductTypes[] = {{"Products", "ProductTypeID"},
                                        {"ProductRefreshHistory", "ProductTypeID"}};
constexpr Reference toManufacturers[] = {{"Products", "ManufacturerID"},
                                         {"ProductRefreshHistory", "ManufacturerID"}};
constexpr Reference toJobTypes[] = {{"Jobs", "JobTypeID"}};
constexpr Reference toOrderTypes[] = {{"Orders", "OrderTypeID"}};
constexpr Reference toDeliveryRanges[] = {{"Orders", "DeliveryRangeID"}};
constexpr Reference toPaymentMethods[] = {{"Payments", "PaymentMethodID"}};
constexpr Reference toTerms[] = {{"Customers", "TermsID"}, {"Vendors", "TermsID"}, {"Orders", "TermsID"}};
constexpr Reference toCustomerTypes[] = {{"Customers", "CustomerTypeID"}};
constexpr Reference toDiscountGroups[] = {{"Customers", "DiscountGroupID"},
                                          {"Customers", "CustomerDiscountGroupID"},
                                          {"ProductVendors", "DiscountGroupID"}};
constexpr Reference toSalesTaxGroups[] = {{"Customers", "SalesTaxGroupID"},
                                          {"Orders", "SalesTaxGroupID"},
                                          {"SalesTaxGroupCodes", "SalesTaxGroupID"}};
constexpr Reference toGroups[] = {{"GroupedCustomers", "GroupID"}};
constexpr Reference toAccounts[] = {{"Products", "SalesAccountID"},
                                    {"Products", "PurchaseAccountID"},
                                    {"AdditionalCharges", "SalesAccountID"},
                                    {"AdditionalCharges", "PurchaseAccountID"}};

constexpr ReferencedList lists[] = {
    {1, "ShippingMethods", "ShippingMethod",
     "Change items that reference the shipping method:", toShippingMethods},
    {2, "ReferralMethods", "ReferralMethod",
     "Change items that reference the referral method:", toReferralMethods, true},
    {3, "ProductTypes", "ProductType", "Change items that reference the product type:", toProductTypes},
    {4, "Manufacturers", "Manufacturer", "Change items that reference the manufacturer:", toManufacturers},
    {5, "JobTypes", "JobType", "Change items that reference the job type:", toJobTypes},
    {6, "OrderTypes", "OrderType", "Change items that reference the order type:", toOrderTypes},
    {7, "DeliveryRanges", "Range", "Change items that reference the delivery range:", toDeliveryRanges, true},
    {8, "PaymentMethods", "PaymentMethod",
     "Change items that reference the payment method:", toPaymentMethods},
    {9, "Terms", "[Terms]", "Change items that reference the terms:", toTerms},
    {10, "CustomerTypes", "Name", "Change items that reference the customer type:", toCustomerTypes},
    {11, "DiscountGroups", "DiscountGroup",
     "Change items that reference the discount group:", toDiscountGroups},
    {12, "SalesTaxGroups", "SalesTaxGroup",
     "Change items that reference the sales tax group:", toSalesTaxGroups},
    {13, "Groups", "GroupName", "Change items that reference the group:", toGroups},
    // "accout" is deliberate.
    {14, "Accounts", "Account", "Change items that reference the linked accout:", toAccounts},
};

}  // namespace

std::string_view Reference::failure() const {
    const auto* found =
        std::ranges::find(failures, table, &std::pair<std::string_view, std::string_view>::first);
    return found == std::end(failures) ? std::string_view() : found->second;
}

const ReferencedList* findReferencedList(std::int16_t code) {
    const auto* found = std::ranges::find(lists, code, &ReferencedList::code);
    return found == std::end(lists) ? nullptr : found;
}

}  // namespace tsln::lists
