#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "bridge/HostPart.h"

namespace tsln {

class ComboBox;

struct PersonName {
    std::string first, middleInitial, last;
};

/// Lookups and list loaders of the host.
class Common : HostPart {
  public:
    explicit Common(Library& library) : HostPart(library, "Common") {}
    /// Returns true when a row other than `ID` has this value in the column.
    bool RecordExists(std::string_view table, std::string_view column, std::string_view value,
                      std::int32_t ID) const;
    std::string GetDiscountGroupName(std::int32_t ID) const;
    std::string GetEmployeeName(std::int32_t ID) const;
    std::string GetProductNameFromID(std::int32_t ID) const;
    /// The path of a product's file; empty when it has none.
    std::string GetProductFileFromID2(std::int32_t ID) const;
    std::string GetCustomerName(std::int32_t ID) const;
    /// The name of a number that is stored as a vendor's cost method.
    std::string GetVendorCostMethodName(std::int32_t method) const;
    /// The text for a synchronisation state; see SyncState.
    std::string GetFriendlySyncState(std::int32_t state) const;
    /// Splits a person's complete name. A part that the name does not have is empty.
    PersonName ParseCompleteName(std::string_view name) const;
    /// Fills the combo box with the company's phone labels.
    void LoadPhoneLabels(ComboBox& combo) const;
    void LoadEmailLabels(ComboBox& combo) const;
    /// Fills the combo box with the payment terms. An entry's stored number is the terms' `ID`.
    void LoadTerms(ComboBox& combo) const;
    /// Fill the combo box with the records of a list. An entry's stored number is the record's `ID`.
    void LoadCustomerTypes(ComboBox& combo) const;
    void LoadVendors(ComboBox& combo) const;
    void LoadProductTypes(ComboBox& combo) const;
    void LoadTaxGroups(ComboBox& combo) const;
    void LoadSalesAccounts(ComboBox& combo) const;
    void LoadPurchaseAccounts(ComboBox& combo) const;
    // These lists, too, have the keys of their rows as the stored numbers.
    void LoadPriceDiscountGroups(ComboBox& combo) const;
    void LoadCustomerDiscountGroups(ComboBox& combo) const;
    /// Fills the combo box with the active sales representatives.
    void LoadSalesReps(ComboBox& combo) const;
    void LoadInstallers(ComboBox& combo) const;
    void LoadDesigners(ComboBox& combo) const;
    void LoadShippingMethods(ComboBox& combo) const;
    void LoadReferralMethods(ComboBox& combo) const;
    void LoadLocations(ComboBox& combo) const;
    /// Returns the text as it may be stored: protected from being read in the database. Empty for an empty text.
    std::string ComplexEncrypt(std::string_view text) const;
    std::string CreateGUID() const;
    /// Returns the GUID in braces.
    std::string FormatAsGUID(std::string_view guid) const;
    /// Fills the combo box with a query's rows: their `shown` column and, as the stored number, their `stored`
    /// column. With `blankEntry`, an empty entry precedes them.
    void LoadComboFromQuery(ComboBox& combo, std::string_view sql, std::string_view shown,
                            std::string_view stored, bool blankEntry) const;
};

}  // namespace tsln
