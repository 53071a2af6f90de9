#pragma once

#include <vector>

#include "maintenance/RecordDialog.h"
#include "screens/OptionButton.h"
#include "screens/ProgressBar.h"
#include "screens/TabControl.h"

namespace tsln::pricing {

/// Applies one action to many customers or orders, which the host's list has selected. A record that refuses it is
/// written to the event log, and the others are still changed.
class BulkChange : public RecordDialog {
  public:
    /// The kinds of record, as the host passes them.
    enum class Kind : std::int16_t { Customers = 1, Orders = 4 };

    explicit BulkChange(Library& library);

    TabControl TabControl1{*this, "TabControl1", {"Customers", "Orders"}};
    OptionGroup actions;
    OptionButton optC_ChangeExportedStatus{*this, actions, "optC_ChangeExportedStatus",
                                           "Change the &exported status to"};
    ComboBox cboC_ExportedStatus{*this, "cboC_ExportedStatus"};
    OptionButton optC_ChangeTaxGroup{*this, actions, "optC_ChangeTaxGroup", "Change the sales &tax group to"};
    ComboBox cboC_TaxGroup{*this, "cboC_TaxGroup"};
    OptionButton optC_ClearTaxEx{*this, actions, "optC_ClearTaxEx", "&Clear the tax exemption number"};
    OptionButton optC_Delete{*this, actions, "optC_Delete", "&Delete the customers"};
    OptionButton optO_Delete{*this, actions, "optO_Delete", "&Delete the orders"};
    Label lblSelected{*this, "lblSelected", ""};
    ProgressBar ProgressBar1{*this, "ProgressBar1"};

    /// Takes the kind of record and the identifiers of the selected ones, in any form that readIdentifiers() reads. The
    /// kind is 1 or 4; of a plain Boolean, True is the orders and False the customers. Returns false when the dialog must
    /// not be shown; the user has been told why.
    bool initialize(std::int16_t kind, const Variant& selection);

  protected:
    Layout content() override;
    void opened() override;
    bool save() override;

  private:
    struct Action;
    static const Action actionTable[];

    const Action* chosenAction() const;
    std::string statementOf(const Action& action, std::int32_t record) const;
    bool change(const Action& action, std::int32_t record);
    void recordFailure(const Action& action, std::int32_t record);
    void showResult(bool allWell, bool cancelled, std::size_t done);
    std::string nameOf(std::int32_t record) const;
    void showChoices();

    Kind kind_ = Kind::Customers;
    std::vector<std::int32_t> records_;
};

/// Shows the dialog. Returns true when it was cancelled.
bool changeInBulk(Library& library, std::int16_t kind, const Variant& selection);

}  // namespace tsln::pricing
