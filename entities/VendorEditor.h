#pragma once

#include "entities/CopyBillingLink.h"
#include "maintenance/RecordDialog.h"
#include "screens/Picture.h"
#include "screens/TabControl.h"

namespace tsln::entities {

/// The vendor editor. Others maintain the data of a locked vendor: only the company's own fields can be changed then.
class VendorEditor : public RecordDialog {
  public:
    explicit VendorEditor(Library& library);

    Picture imgLocked{*this, "imgLocked", Picture::Kind::Lock};
    Label lblLocked{*this, "lblLocked", "This vendor is locked. Some of it cannot be changed."};
    TabControl TabControl1{*this, "TabControl1", {"General", "Addresses", "Purchasing", "Notes"}};
    Frame grpBillTo{*this, "grpBillTo", "Bill-to address"};
    Frame grpShipTo{*this, "grpShipTo", "Ship-to address"};
    CopyBillingLink lblCopyBilling{*this, [this] { Hyperlink_BillingToShipping(); }};

    /// Copies the bill-to address, as it is shown, into the ship-to address.
    void Hyperlink_BillingToShipping();

  protected:
    Layout content() override;
    std::vector<Layout> besideButtons() override;
    void rowShown(const Row& row) override;
    void filled() override;
    bool validate() override;
    bool validateAddresses() const override { return locked_ || RecordDialog::validateAddresses(); }

  private:
    bool locked_ = false;
};

/// Edits a vendor; an `ID` below 1 adds one. Returns the vendor's key, 0 when nothing was saved.
std::int32_t editVendor(Library& library, std::int32_t ID);

}  // namespace tsln::entities
