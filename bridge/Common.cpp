#include "bridge/Common.h"

#include "screens/Controls.h"

namespace tsln {
namespace {

/// The types of discount groups, as LoadDiscountGroups takes them.
constexpr std::int32_t priceGroups = 0;
constexpr std::int32_t customerGroups = 2;

}  // namespace

bool Common::RecordExists(std::string_view table, std::string_view column, std::string_view value,
                          std::int32_t ID) const {
    return call("RecordExists", table, column, value, ID).toBoolean();
}

std::string Common::GetDiscountGroupName(std::int32_t ID) const {
    return call("GetDiscountGroupName", ID).toText();
}

std::string Common::GetEmployeeName(std::int32_t ID) const {
    return call("GetEmployeeName", ID).toText();
}

std::string Common::GetProductNameFromID(std::int32_t ID) const {
    return call("GetProductNameFromID", ID).toText();
}

std::string Common::GetProductFileFromID2(std::int32_t ID) const {
    return textOf(call("GetProductFileFromID2", ID), "GetProductFileFromID2");
}

std::string Common::GetCustomerName(std::int32_t ID) const {
    return call("GetCustomerName", ID).toText();
}

std::string Common::GetVendorCostMethodName(std::int32_t method) const {
    return textOf(call("GetVendorCostMethodName", method), "GetVendorCostMethodName");
}

std::string Common::GetFriendlySyncState(std::int32_t state) const {
    return textOf(call("GetFriendlySyncState", state), "GetFriendlySyncState");
}

void Common::LoadPhoneLabels(ComboBox& combo) const {
    call("LoadPhoneLabels", combo.automation());
}

void Common::LoadEmailLabels(ComboBox& combo) const {
    call("LoadEmailLabels", combo.automation());
}

void Common::LoadTerms(ComboBox& combo) const {
    call("LoadTerms", combo.automation());
}

void Common::LoadVendors(ComboBox& combo) const {
    call("LoadVendors", combo.automation());
}

void Common::LoadProductTypes(ComboBox& combo) const {
    call("LoadProductTypes", combo.automation());
}

PersonName Common::ParseCompleteName(std::string_view name) const {
    Variant first(""), middleInitial(""), last("");
    call("ParseCompleteName", name, Argument::byReference(first), Argument::byReference(middleInitial),
         Argument::byReference(last));
    return {.first = textOf(first, "ParseCompleteName"),
            .middleInitial = textOf(middleInitial, "ParseCompleteName"),
            .last = textOf(last, "ParseCompleteName")};
}

void Common::LoadPriceDiscountGroups(ComboBox& combo) const {
    call("LoadDiscountGroups", combo.automation(), priceGroups);
}

void Common::LoadCustomerDiscountGroups(ComboBox& combo) const {
    call("LoadDiscountGroups", combo.automation(), customerGroups);
}

void Common::LoadSalesReps(ComboBox& combo) const {
    constexpr bool withInactive = false;
    call("LoadSalesReps", combo.automation(), withInactive);
}

void Common::LoadTaxGroups(ComboBox& combo) const {
    call("LoadTaxGroups", combo.automation());
}

void Common::LoadSalesAccounts(ComboBox& combo) const {
    call("LoadSalesAccounts", combo.automation());
}

void Common::LoadPurchaseAccounts(ComboBox& combo) const {
    call("LoadPurchaseAccounts", combo.automation());
}

void Common::LoadCustomerTypes(ComboBox& combo) const {
    call("LoadCustomerTypes", combo.automation());
}

void Common::LoadInstallers(ComboBox& combo) const {
    call("LoadInstallers", combo.automation());
}

void Common::LoadDesigners(ComboBox& combo) const {
    call("LoadDesigners", combo.automation());
}

void Common::LoadShippingMethods(ComboBox& combo) const {
    call("LoadShippingMethods", combo.automation());
}

void Common::LoadReferralMethods(ComboBox& combo) const {
    call("LoadReferralMethods", combo.automation());
}

void Common::LoadLocations(ComboBox& combo) const {
    call("LoadLocations", combo.automation());
}

std::string Common::ComplexEncrypt(std::string_view text) const {
    if (text.empty()) return {};
    std::string stored = textOf(call("ComplexEncrypt", text), "ComplexEncrypt");
    // An empty answer must not erase the user's text.
    if (stored.empty()) throw HostError(code::fail, "ComplexEncrypt", "The text cannot be protected.");
    return stored;
}

std::string Common::CreateGUID() const {
    return textOf(call("CreateGUID"), "CreateGUID");
}

std::string Common::FormatAsGUID(std::string_view guid) const {
    return textOf(call("FormatAsGUID", guid), "FormatAsGUID");
}

void Common::LoadComboFromQuery(ComboBox& combo, std::string_view sql, std::string_view shown,
                                std::string_view stored, bool blankEntry) const {
    call("LoadComboFromQuery", combo.automation(), sql, shown, stored, blankEntry);
}

}  // namespace tsln
