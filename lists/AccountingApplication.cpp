#include "lists/AccountingApplication.h"

namespace tsln::lists {
namespace {

constexpr std::string_view option = "Application";
constexpr std::string_view section = "Accounting";

}  // namespace

AccountingApplication::AccountingApplication(Library& library)
    : RecordDialog(library, "frmChooseAccountingApplication") {
    setCaption("Choose Accounting Application");
    cboApp.addItem("", 0);
    cboApp.addItem("QuickBooks Desktop", 1);
    cboApp.setListIndex(0);
}

Layout AccountingApplication::content() {
    return layout::form({layout::field("&Accounting application:", cboApp)});
}

void AccountingApplication::Form_Load() {
    RecordDialog::Form_Load();
    cmdOK.setEnabled(false);  // an option that could not be read must not be overwritten
    const Variant stored = host().options().GetCompanyOption(option, section, 0);
    if (stored.isNumeric()) cboApp.choose(stored.toLong());
    cmdOK.setEnabled(true);
}

bool AccountingApplication::save() {
    host().options().SetCompanyOption(option, section, cboApp.chosen().value_or(0));
    return true;
}

bool chooseAccountingApplication(Library& library) {
    return library.screens()
        .show(
            "frmChooseAccountingApplication",
            [&] { return std::make_shared<AccountingApplication>(library); }, [](AccountingApplication&) {})
        ->Cancelled;
}

}  // namespace tsln::lists
