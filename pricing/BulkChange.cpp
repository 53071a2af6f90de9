#include "pricing/BulkChange.h"

#include <algorithm>

#include "screens/Job.h"
#include "shared/IdentifierList.h"
#include "shared/modSharedSQL.h"

namespace tsln::pricing {
namespace {

using modSharedSQL::format;

constexpr std::string_view screenName = "frmBulkChange";
constexpr std::int32_t yes = 1;
constexpr std::int32_t no = 0;

std::optional<BulkChange::Kind> kindOf(std::int16_t number) {
    constexpr std::int16_t plainTrue = -1;
    if (number == 0 || number == static_cast<std::int16_t>(BulkChange::Kind::Customers))
        return BulkChange::Kind::Customers;
    if (number == plainTrue || number == static_cast<std::int16_t>(BulkChange::Kind::Orders))
        return BulkChange::Kind::Orders;
    return std::nullopt;
}

}  // namespace

/// One change of many records.
struct BulkChange::Action {
    OptionButton BulkChange::*option;
    ComboBox BulkChange::*choice;   ///< the value to set; null for an action without one
    std::string_view statement;     ///< {0} is the record; with a choice, {0} is the value and {1} the record
    std::string_view failure;       ///< for the event log; {0} is the record's name
    std::string_view without = {};  ///< the statement when nothing is chosen; {0} is the record
};

// The two equal failures and their spelling are deliberate.
// clang-format off: one action per line
const BulkChange::Action BulkChange::actionTable[] = {
    {&BulkChange::optC_Delete, nullptr, "DELETE FROM Customers WHERE ID = {0}",
     "Customer [{0}] could not be deleted via Bulk Change. More information to follow."},
    {&BulkChange::optC_ChangeExportedStatus, &BulkChange::cboC_ExportedStatus,
     "UPDATE Customers SET Exported = {0} WHERE ID = {1}",
     "Customer [{0}] could not have its export status changed via Bulk Change. More information to follow."},
    {&BulkChange::optC_ChangeTaxGroup, &BulkChange::cboC_TaxGroup,
     "UPDATE Customers SET SalesTaxGroupID = {0} WHERE ID = {1}",
     "Customer [{0}] could not have its tax exemtion number cleared via Bulk Change. More information to follow.",
     "UPDATE Customers SET SalesTaxGroupID = NULL WHERE ID = {0}"},
    {&BulkChange::optC_ClearTaxEx, nullptr, "UPDATE Customers SET TaxExNumber = '' WHERE ID = {0}",
     "Customer [{0}] could not have its tax exemtion number cleared via Bulk Change. More information to follow."},
    {&BulkChange::optO_Delete, nullptr, "DELETE FROM Orders WHERE ID = {0}",
     "Order [{0}] could not be deleted via Bulk Change. More information to follow."},
};
// clang-format on

BulkChange::BulkChange(Library& library) : RecordDialog(library, std::string(screenName)) {
    setCaption("Bulk Change");
    cboC_ExportedStatus.accessibleName = "Exported status";
    cboC_ExportedStatus.addItem("Yes", yes);
    cboC_ExportedStatus.addItem("No", no);
    cboC_ExportedStatus.setListIndex(0);
    cboC_TaxGroup.accessibleName = "Sales tax group";
    for (OptionButton* option : actions.buttons())
        option->onClick = [this] { showChoices(); };
    showChoices();
}

Layout BulkChange::content() {
    using namespace tsln::layout;
    return column(
        {item(lblSelected),
         stretch(tabs(TabControl1,
                      {column({row({item(optC_ChangeExportedStatus), spring(), item(cboC_ExportedStatus)}),
                               row({item(optC_ChangeTaxGroup), spring(), item(cboC_TaxGroup)}),
                               item(optC_ClearTaxEx), item(optC_Delete), spring()}),
                       column({item(optO_Delete), spring()})})),
         item(ProgressBar1)});
}

bool BulkChange::initialize(std::int16_t kind, const Variant& selection) {
    const auto known = kindOf(kind);
    if (!known) {
        tell(format("There is no kind of record {0} to change in bulk.", kind), MessageIcon::Exclamation);
        return false;
    }
    kind_ = *known;
    const bool read = handle([&] {
        records_ = readIdentifiers(selection);
        if (kind_ == Kind::Customers) host().common().LoadTaxGroups(cboC_TaxGroup);
    });
    if (!read) return false;
    if (records_.empty()) {
        tell("No records are selected.", MessageIcon::Exclamation);
        return false;
    }
    lblSelected.setCaption(format(
        kind_ == Kind::Customers ? "Selected customers: {0}" : "Selected orders: {0}", records_.size()));
    TabControl1.setPageVisible(0, kind_ == Kind::Customers);
    TabControl1.setPageVisible(1, kind_ == Kind::Orders);
    return true;
}

void BulkChange::opened() {
    setFocus(kind_ == Kind::Customers ? optC_ChangeExportedStatus : optO_Delete);
}

/// The values of an action can be chosen once the action is.
void BulkChange::showChoices() {
    cboC_ExportedStatus.setEnabled(optC_ChangeExportedStatus.selected());
    cboC_TaxGroup.setEnabled(optC_ChangeTaxGroup.selected());
}

const BulkChange::Action* BulkChange::chosenAction() const {
    const auto chosen = std::ranges::find_if(
        actionTable, [this](const Action& action) { return (this->*action.option).selected(); });
    return chosen == std::end(actionTable) ? nullptr : &*chosen;
}

std::string BulkChange::statementOf(const Action& action, std::int32_t record) const {
    if (!action.choice) return format(action.statement, record);
    const std::optional<std::int32_t> value = (this->*action.choice).chosen();
    if (!value && !action.without.empty()) return format(action.without, record);
    return format(action.statement, value.value_or(no), record);
}

bool BulkChange::save() {
    const Action* action = chosenAction();
    if (!action) {
        tell("You have not selected a bulk change to perform.", MessageIcon::Exclamation);
        return false;
    }
    if (!host().AskMessageStyle1(
            "You are about to perform a bulk change on many records. This action cannot be undone. Are you sure you want to continue?",
            "If you have not made a recent backup it is recommended that you do so before you proceed.")) {
        return false;
    }
    std::size_t done = 0;
    bool allWell = true;
    bool cancelled = false;
    {
        Job job(*this, records_.size(), &ProgressBar1, &cmdCancel);
        for (const std::int32_t record : records_) {
            if (!change(*action, record)) {
                allWell = false;
                recordFailure(*action, record);
            }
            ++done;
            if (job.step()) continue;
            cancelled = done < records_.size();
            break;
        }
    }
    // The records are changed, whether or not the result can be shown.
    handle([&] { showResult(allWell, cancelled, done); });
    return true;
}

void BulkChange::showResult(bool allWell, bool cancelled, std::size_t done) {
    if (cancelled) {
        tell(format("The bulk change was cancelled after {0} of {1} records.", done, records_.size()),
             MessageIcon::Information);
    }
    if (!allWell) {
        host().ShowMessageStyle1(
            "Problems were encountered while performing the selected action on one or more of the selected items. Review the Event Log for more details.",
            "");
    } else if (!cancelled) {
        host().ShowMessageStyle1("Bulk change has completed", "");
    }
}

/// A record that no longer exists counts as refused.
bool BulkChange::change(const Action& action, std::int32_t record) {
    try {
        const auto changed = host().companyConnection().ExecuteCounting(statementOf(action, record));
        return !changed || *changed != 0;
    } catch (const std::exception&) {
        return false;
    }
}

void BulkChange::recordFailure(const Action& action, std::int32_t record) {
    try {
        host().RecordEvent(format(action.failure, nameOf(record)));
    } catch (const std::exception&) {
        // The other records are still to be changed, and the closing message tells of the failure.
    }
}

/// The name of a customer or the number of an order; the identifier when there is none.
std::string BulkChange::nameOf(std::int32_t record) const {
    std::string name;
    try {
        name = kind_ == Kind::Customers
                   ? host().common().GetCustomerName(record)
                   : host()
                         .database()
                         .ExecuteScaler(format("SELECT OrderNumber FROM Orders WHERE ID = {0}", record))
                         .toText();
    } catch (const std::exception&) {
        // The identifier names the record.
    }
    return name.empty() ? std::to_string(record) : name;
}

bool changeInBulk(Library& library, std::int16_t kind, const Variant& selection) {
    const auto closed = library.screens().show(
        screenName, [&] { return std::make_shared<BulkChange>(library); },
        [&](BulkChange& screen) { return screen.initialize(kind, selection); });
    return closed->Cancelled;
}

}  // namespace tsln::pricing
