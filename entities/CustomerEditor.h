#pragma once

#include "entities/CopyBillingLink.h"
#include "entities/GroupMemberships.h"
#include "entities/LabelledAddresses.h"
#include "maintenance/RecordDialog.h"
#include "screens/MarkupLabel.h"
#include "screens/TabControl.h"

namespace tsln::entities {

/// The customer editor: the customer's row, its addresses, and the groups to which it belongs.
class CustomerEditor : public RecordDialog {
  public:
    explicit CustomerEditor(Library& library);

    TabControl TabControl1{
        *this, "TabControl1", {"General", "Pricing and terms", "Assignments", "Comments", "Groups"}};
    Frame grpBillTo{*this, "grpBillTo", "Bill-to address"};
    Frame grpShipTo{*this, "grpShipTo", "Ship-to addresses"};
    LabelledAddresses addresses;
    CopyBillingLink lblCopyBilling{*this, [this] { Hyperlink_BillingToShipping(); }};
    GroupMemberships groups{*this};
    MarkupLabel lblEditGroups{
        *this, "lblEditGroups",
        "<TextBlock><Hyperlink Click='Hyperlink_EditGroups'>Edit the list of groups</Hyperlink></TextBlock>"};

    /// Copies the bill-to address, as it is shown, into the chosen ship-to address.
    void Hyperlink_BillingToShipping();
    /// Opens the list of all groups, then shows them as they are now.
    void Hyperlink_EditGroups();

  protected:
    Layout content() override;
    void defaultsShown() override;
    void rowShown(const Row& row) override;
    void filled() override;
    bool validate() override;
    bool save() override;
    void saveFurther() override;

  private:
    void txtCustomerName_Leave();
    bool isDuplicate(std::string_view control, std::string_view noun);
    void resetExported();
    void ensureDefaultAddress();

    bool added_ = false;  // the save in progress adds the customer
};

/// Edits a customer; an `ID` below 1 adds one. Returns the customer's key, 0 when nothing was saved.
std::int32_t editCustomer(Library& library, std::int32_t ID);

}  // namespace tsln::entities
