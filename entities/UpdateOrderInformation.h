#pragma once

#include <optional>
#include <string>
#include <vector>

#include "maintenance/RecordDialog.h"

namespace tsln::entities {

/// Copies a customer's current sales rep, installer, designer or one of the customer's addresses into the customer's
/// quotes and orders.
class UpdateOrderInformation : public RecordDialog {
  public:
    explicit UpdateOrderInformation(Library& library);

    Label lblCustomer{*this, "lblCustomer", ""};
    CheckBox chkInstallationAddress{*this, "chkInstallationAddress", "&Installation address:"};
    ComboBox cboAddress{*this, "cboAddress"};
    TextBox txtAddress{*this, "txtAddress"};
    CheckBox chkSalesRep{*this, "chkSalesRep", "&Sales rep:"};
    Label lblRep{*this, "lblRep", ""};
    CheckBox chkInstaller{*this, "chkInstaller", "I&nstaller:"};
    Label lblInstaller{*this, "lblInstaller", ""};
    CheckBox chkDesigner{*this, "chkDesigner", "&Designer:"};
    Label lblDesigner{*this, "lblDesigner", ""};
    ComboBox cboScope{*this, "cboScope"};
    CheckBox chkActive{*this, "chkActive", "Only ac&tive quotes and sales"};

    /// Reads the customer. Returns false when the screen must not be shown; the user has been told why.
    bool initialize(std::int32_t customer);

  protected:
    Layout content() override;
    bool validate() override;
    bool save() override;

  private:
    void readCustomer();
    void offer(std::string label, const Address& address);
    void showAddress();
    std::string statement() const;

    bool found_ = false;
    std::vector<Address> addresses_;  // as in cboAddress
    std::optional<std::int32_t> salesRep_, installer_, designer_;
};

/// Opens the screen for a customer.
void updateOrderInformation(Library& library, std::int32_t customer);

}  // namespace tsln::entities
