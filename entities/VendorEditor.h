#pragma once

#include "entities/AddressBlock.h"
#include "entities/ContactSlots.h"
#include "entities/EntityEditor.h"
#include "entities/MarginBox.h"
#include "screens/MarkupLabel.h"
#include "screens/Picture.h"
#include "screens/TabControl.h"

namespace tsln::entities {

/// The vendor editor. Of a locked vendor, whose data others keep, only what is the company's own can be
/// changed.
class VendorEditor : public EntityEditor {
  public:
    static constexpr std::string_view screenName = "frmEditVendor";
    explicit VendorEditor(Library& library);

    Picture imgLocked{*this, "imgLocked", Picture::Kind::Lock};
    Label lblLocked{*this, "lblLocked", "This vendor is locked. Some of it cannot be changed."};
    TabControl TabControl1{*this, "TabControl1", {"General", "Addresses", "Purchasing", "Notes"}};

    TextBox txtName{*this, "txtName"};
    TextBox txtContact{*this, "txtContact"};
    TextBox txtAccountNumber{*this, "txtAccountNumber"};
    TextBox txtWebSite{*this, "txtWebSite"};
    ContactSlots contacts{*this, 3, 2};
    CheckBox chkActive{*this, "chkActive", "&Active"};
    CheckBox chkExported{*this, "chkExported", "E&xported"};

  private:
    bool validateAddresses_ = false;  // the blocks below hold on to it

  public:
    Frame grpBillTo{*this, "grpBillTo", "Bill-to address"};
    AddressBlock billTo{*this, billToNames, validateAddresses_};
    Frame grpShipTo{*this, "grpShipTo", "Ship-to address"};
    AddressBlock shipTo{*this, shipToNames, validateAddresses_};
    MarkupLabel lblCopyBilling{*this, "lblCopyBilling",
                               "<TextBlock><Hyperlink Click='Hyperlink_BillingToShipping'>Copy the bill-to "
                               "address</Hyperlink></TextBlock>"};

    ComboBox cboTerms{*this, "cboTerms"};
    MarginBox margin{*this, "txtMargin"};
    MarginBox marginAD{*this, "txtMarginAD"};
    CheckBox chkSplitPOs{*this, "chkSplitPOs", "&Split purchase orders by product"};
    CheckBox chkElectronic{*this, "chkElectronic", "Takes purchase orders &electronically"};
    TextBox txtOOPID{*this, "txtOOPID"};
    TextBox txtUniqueID{*this, "txtUniqueID"};
    TextBox txtNotes{*this, "txtNotes"};

    /// Copies the bill-to address as it stands into the ship-to address.
    void Hyperlink_BillingToShipping();

  protected:
    Layout content() override;
    std::vector<Layout> besideButtons() override;
    const Entity& entity() const override;
    void loadLists() override;
    void showDefaults() override;
    void showRow(const Recordset& row) override;
    void filled() override;
    bool validate() override;
    bool save() override;

  private:
    StatementTags tags();

    bool locked_ = false;
};

/// Edits a vendor, a new one for a number below 1. The vendor's key, 0 when nothing was saved.
std::int32_t editVendor(Library& library, std::int32_t ID);

}  // namespace tsln::entities
