#pragma once

#include <deque>

#include "entities/CopyBillingLink.h"
#include "entities/LogoBox.h"
#include "maintenance/RecordDialog.h"
#include "screens/TabControl.h"

namespace tsln::entities {

/// The editor of the company's own record: its name and addresses, and what its reports show of it.
class CompanyEditor : public RecordDialog {
  public:
    explicit CompanyEditor(Library& library);

    TabControl TabControl1{*this, "TabControl1", {"General", "Addresses", "Logos"}};
    Frame grpBillTo{*this, "grpBillTo", "Bill-to address"};
    Frame grpShipTo{*this, "grpShipTo", "Ship-to address"};
    CopyBillingLink lblCopyBilling{*this, [this] { Hyperlink_BillingToShipping(); }};
    std::deque<LogoBox> logos;  ///< a deque, because they cannot be moved
    Label lblReportsFolder{*this, "lblReportsFolder", ""};

    /// Opens the company's record, or a new one for a database without a company. Returns false when the dialog must
    /// not be shown; the user has been told why.
    bool openCompany();
    /// Copies the bill-to address, as it is shown, into the ship-to address.
    void Hyperlink_BillingToShipping();

  protected:
    Layout content() override;
    void filled() override;
    bool save() override;
    std::string computed(std::string_view column) const override;

  private:
    void listLogos();
};

/// Edits the company's record. Returns true when the editor was cancelled.
bool editCompany(Library& library);

}  // namespace tsln::entities
