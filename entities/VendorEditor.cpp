#include "entities/VendorEditor.h"

#include "automation/NumericText.h"
#include "entities/SaveWithHistory.h"
#include "shared/modSharedStrings.h"

namespace tsln::entities {
namespace {

constexpr Entity vendorEntity{
    .table = "Vendors",
    .noun = "vendor",
    .insert =
        "INSERT INTO Vendors (VendorName, WebSite, Phone1Label, Phone1, Phone2Label, Phone2, Phone3Label, "
        "Phone3, Email1Label, Email1, Email2Label, Email2, BillToAddress1, BillToAddress2, BillToCity, "
        "BillToState, BillToZip, BillToCountry, ShipToAddress1, ShipToAddress2, ShipToCity, ShipToState, "
        "ShipToZip, ShipToCountry, AccountNumber, Contact, TermsID, SplitPOByProduct, OOP_Process, "
        "OOP_VendorID, UniqueID, Notes, Active, ValidateAddresses, Margin, MarginAD, Exported) VALUES "
        "('<name>', '<web>', '<p1l>', '<p1>', '<p2l>', '<p2>', '<p3l>', '<p3>', '<e1l>', '<e1>', '<e2l>', "
        "'<e2>', '<ba1>', '<ba2>', '<by>', '<bs>', '<bz>', '<bc>', '<sa1>', '<sa2>', '<sy>', '<ss>', '<sz>', "
        "'<sc>', '<acct>', '<contact>', <terms>, <split>, <electronic>, '<oopid>', '<uniqueid>', '<notes>', "
        "<active>, <validateaddresses>, <margin>, <marginad>, <exported>)",
    .update =
        "UPDATE Vendors SET VendorName = '<name>', WebSite = '<web>', Phone1Label = '<p1l>', Phone1 = "
        "'<p1>', "
        "Phone2Label = '<p2l>', Phone2 = '<p2>', Phone3Label = '<p3l>', Phone3 = '<p3>', Email1Label = "
        "'<e1l>', Email1 = '<e1>', Email2Label = '<e2l>', Email2 = '<e2>', Active = <active>, BillToAddress1 "
        "= '<ba1>', BillToAddress2 = '<ba2>', BillToCity = '<by>', BillToState = '<bs>', BillToZip = '<bz>', "
        "BillToCountry = '<bc>', ShipToAddress1 = '<sa1>', ShipToAddress2 = '<sa2>', ShipToCity = '<sy>', "
        "ShipToState = '<ss>', ShipToZip = '<sz>', ShipToCountry = '<sc>', AccountNumber = '<acct>', Contact "
        "= '<contact>', TermsID = <terms>, SplitPOByProduct = <split>, OOP_Process = <electronic>, "
        "OOP_VendorID = '<oopid>', UniqueID = '<uniqueid>', Notes = '<notes>', ValidateAddresses = "
        "<validateaddresses>, Margin = <margin>, MarginAD = <marginad>, Exported = <exported> WHERE ID = "
        "<id>",
    // A new vendor goes into the customers' history under the vendor's key (deliberate).
    .recordAdded = &Activity::RecordCustomerActivity,
    .recordUpdated = &Activity::RecordVendorActivity,
    .addedNotice = 6001,
    .updatedNotice = 6003,
};

/// A plain text of the row.
struct TextField {
    TextBox VendorEditor::*box;
    std::string_view column;
    bool trimmed;
};
constexpr TextField textFields[] = {
    {&VendorEditor::txtName, "VendorName", true},
    {&VendorEditor::txtWebSite, "WebSite", true},
    {&VendorEditor::txtAccountNumber, "AccountNumber", true},
    {&VendorEditor::txtContact, "Contact", true},
    {&VendorEditor::txtOOPID, "OOP_VendorID", true},
    {&VendorEditor::txtUniqueID, "UniqueID", false},
    {&VendorEditor::txtNotes, "Notes", false},
};

struct CheckField {
    CheckBox VendorEditor::*box;
    std::string_view column;
};
constexpr CheckField checkFields[] = {
    {&VendorEditor::chkActive, "Active"},
    {&VendorEditor::chkExported, "Exported"},
    {&VendorEditor::chkSplitPOs, "SplitPOByProduct"},
    {&VendorEditor::chkElectronic, "OOP_Process"},
};

constexpr int shortText = 24;  // characters

}  // namespace

VendorEditor::VendorEditor(Library& library) : EntityEditor(library, std::string(screenName)) {
    keepsEnter(billTo.box, [this] { billTo.left(); });
    keepsEnter(shipTo.box, [this] { shipTo.left(); });
    keepsEnter(txtNotes);
    lblCopyBilling.onLink = [this](const std::string&) { Hyperlink_BillingToShipping(); };
    billTo.box.accessibleName = "Bill-to address";
    shipTo.box.accessibleName = "Ship-to address";
    txtNotes.accessibleName = "Notes";
    imgLocked.accessibleName = "Locked";
    txtOOPID.widthInCharacters = shortText;
    txtUniqueID.widthInCharacters = 42;
    imgLocked.setVisible(false);
    lblLocked.setVisible(false);
}

Layout VendorEditor::content() {
    using namespace tsln::layout;
    std::vector<Layout> general{field("&Name:", txtName), field("&Contact:", txtContact),
                                field("Account n&umber:", txtAccountNumber), field("&Web site:", txtWebSite)};
    for (Layout& slot : contacts.fields())
        general.push_back(std::move(slot));
    general.push_back(row({field("", chkActive), item(chkExported)}));
    return tabs(TabControl1,
                {column({form(std::move(general)), spring()}),
                 row({stretch(framed(grpBillTo, column({fill(billTo.box)}))),
                      stretch(framed(grpShipTo, column({fill(shipTo.box), item(lblCopyBilling)})))}),
                 column({form({field("&Terms:", cboTerms), field("&Margin (%):", margin.box),
                               field("Margin A&D (%):", marginAD.box), field("", chkSplitPOs),
                               field("", chkElectronic), field("Electronic &order ID:", txtOOPID),
                               field("Un&ique ID:", txtUniqueID)}),
                         spring()}),
                 column({fill(txtNotes)})});
}

std::vector<Layout> VendorEditor::besideButtons() {
    return {layout::item(imgLocked), layout::item(lblLocked)};
}

const Entity& VendorEditor::entity() const {
    return vendorEntity;
}

void VendorEditor::loadLists() {
    contacts.loadLabels();
    host().common().LoadTerms(cboTerms);
}

void VendorEditor::showDefaults() {
    contacts.showDefaultLabels();
    std::int32_t terms = -1;
    readNumber(host().options().GetCompanyOption("DefaultTerms", "Vendors", "-1").toText(), terms);
    cboTerms.choose(terms);
    if (cboTerms.listIndex() < 0) cboTerms.setListIndex(0);  // none while the list is empty
    chkActive.setChecked(true);
}

void VendorEditor::showRow(const Recordset& row) {
    for (const TextField& field : textFields)
        (this->*field.box).setText(row.text(field.column));
    for (const CheckField& field : checkFields)
        (this->*field.box).setChecked(row.number(field.column) != 0);
    contacts.show(row);
    billTo.show(row);
    shipTo.show(row);
    validateAddresses_ = row.number("ValidateAddresses") != 0;
    if (!cboTerms.choose(row.number("TermsID"))) cboTerms.setListIndex(-1);
    margin.show(row.single("Margin"));
    marginAD.show(row.single("MarginAD"));
    locked_ = row.number("Locked") != 0;
}

void VendorEditor::filled() {
    imgLocked.setVisible(locked_);
    lblLocked.setVisible(locked_);
    txtUniqueID.setEnabled(ID < 1 && !locked_);
    if (!locked_) return;
    for (Control* kept :
         std::initializer_list<Control*>{&txtName, &txtWebSite, &billTo.box, &shipTo.box, &lblCopyBilling,
                                         &chkSplitPOs, &chkElectronic, &txtOOPID}) {
        kept->setEnabled(false);
    }
    contacts.setEnabled(false);
    validateAddresses_ = true;
}

void VendorEditor::Hyperlink_BillingToShipping() {
    shipTo.box.setText(billTo.box.text());
}

bool VendorEditor::validate() {
    for (const TextField& field : textFields) {
        TextBox& box = this->*field.box;
        if (field.trimmed) box.setText(modSharedStrings::trim(box.text()));
    }
    contacts.trim();
    // OK may be pressed from within the boxes.
    margin.correct();
    marginAD.correct();
    const std::string& name = txtName.text();
    if (name.empty()) {
        tell("You must enter a name for this vendor.", MessageIcon::Exclamation);
        TabControl1.select(0);
        sendTo(txtName);
        return false;
    }
    // No more than a warning: two vendors may bear one name.
    if (host().common().RecordExists(vendorEntity.table, "VendorName", name, ID))
        tell("A vendor with the name '" + name + "' already exists.", MessageIcon::Exclamation);
    if (txtUniqueID.text().empty()) {
        const Common common = host().common();
        txtUniqueID.setText(common.FormatAsGUID(common.CreateGUID()));
    }
    return true;
}

StatementTags VendorEditor::tags() {
    StatementTags tags(host());
    tags.text("<name>", txtName.text());
    tags.text("<web>", txtWebSite.text());
    contacts.addTags(tags);
    tags.plain("<active>", chkActive.checked());
    tags.plain("<exported>", chkExported.checked());
    billTo.addTags(tags);
    shipTo.addTags(tags);
    tags.plain("<validateaddresses>", locked_ || validateAddresses_);
    tags.text("<acct>", txtAccountNumber.text());
    tags.text("<contact>", txtContact.text());
    const std::int32_t terms = cboTerms.chosen().value_or(0);
    tags.plain("<terms>", cboTerms.text().empty() ? "NULL" : std::to_string(terms));
    tags.plain("<split>", chkSplitPOs.checked());
    tags.plain("<electronic>", chkElectronic.checked());
    tags.text("<oopid>", txtOOPID.text());
    tags.text("<uniqueid>", txtUniqueID.text());
    tags.text("<notes>", txtNotes.text());
    tags.plain("<margin>", margin.fraction());
    tags.plain("<marginad>", marginAD.fraction());
    return tags;
}

bool VendorEditor::save() {
    return saveWithHistory(*this, vendorEntity, txtName.text(), ID, tags());
}

std::int32_t editVendor(Library& library, std::int32_t ID) {
    return edit<VendorEditor>(library, VendorEditor::screenName, ID);
}

}  // namespace tsln::entities
