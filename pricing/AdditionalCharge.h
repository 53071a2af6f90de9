#pragma once

#include "maintenance/RecordDialog.h"
#include "pricing/ChargeTypes.h"
#include "screens/MarkupLabel.h"
#include "screens/TabControl.h"

namespace tsln::pricing {

/// The dialog of one charge, promotion or adjustment. Its title, methods and pages depend on the charge type.
class AdditionalChargeDialog : public RecordDialog {
  public:
    /// `newType` is the type of a new charge; a stored one has its own.
    AdditionalChargeDialog(Library& library, std::int16_t newType);

    TabControl TabControl1{*this, "TabControl1", {"General", "Rules", "Accounting", "Notes"}};
    Label lblChargeCode{*this, "lblChargeCode", "Code:"};
    TextBox txtChargeCode{*this, "txtChargeCode"};
    Label lblCost{*this, "lblCost", "C&ost:"};
    MarkupLabel lblMethodHelp{*this, "lblMethodHelp", ""};
    CheckBox chkCustomerType{*this, "chkCustomerType", "Only for customers of &type"};
    CheckBox chkVendor{*this, "chkVendor", "Only for &vendor"};
    Button cmdChange{*this, "cmdChange", "Change c&riteria..."};
    Button cmdAssignSales{*this, "cmdAssignSales", "&Assign..."};
    Button cmdAssignPurchase{*this, "cmdAssignPurchase", "Ass&ign..."};
    Button cmdHelp{*this, "cmdHelp", "&Help"};

  protected:
    Layout content() override;
    std::vector<Layout> besideButtons() override;
    void filling() override;
    void rowShown(const Row& row) override;
    void filled() override;
    void opened() override;
    bool validate() override;
    bool save() override;
    void addTags(StatementTags& tags) override;
    void Form_Help() override;

  private:
    struct AccountKind;

    const ChargeTypeInfo* type() const { return findChargeType(type_); }
    const ChargeMethodInfo* method();
    bool takesPriceLine();
    void keepStored(std::string_view combo, const Row& row);
    void showMethodHelp();
    void enableLimits();
    void setSign();
    void correctCost();
    void changeCriteria();
    bool confirm(std::string_view question, Control& concerned);
    bool validateDate(std::string_view name);
    bool validateAmounts();
    void assignAccount(const AccountKind& kind);

    std::int32_t type_;
    std::string storedValue_;  ///< as the row has it; not changed unless the user changes it
};

/// Edits a charge; an `ID` below 1 adds one of the type. Returns the charge's key, 0 when nothing was saved.
std::int32_t editAdditionalCharge(Library& library, std::int32_t ID, std::int16_t newType);

}  // namespace tsln::pricing
