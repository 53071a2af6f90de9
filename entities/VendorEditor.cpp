#include "entities/VendorEditor.h"

namespace tsln::entities {
namespace {

constexpr std::string_view screenName = "frmEditVendor";
constexpr NumericBounds marginBounds{.minimum = -100'000, .maximum = 10'000};  // percent

const RecordDescription vendorRecord{
    .table = "Vendors",
    .newCaption = "New Vendor",
    .editCaption = "Edit Vendor",
    .fields = fields::join(
        fields::trimmed("txtName", "&Name:", "VendorName", "<name>")
            .required("You must enter a name for this vendor.")
            .lockable(),
        fields::trimmed("txtWebSite", "&Web site:", "WebSite", "<web>").lockable(),
        fields::lockable(fields::phones(3, Rule::Trimmed, true)), fields::lockable(fields::emails(2)),
        fields::check("chkActive", "&Active", "Active", "<active>").ticked().placed(1, 0),
        fields::check("chkExported", "E&xported", "Exported", "<exported>").placed(4, 4),
        fields::address("txtBillToAddress", "Bill-to address", "BillTo",
                       {"<ba1>", "<ba2>", "<by>", "<bs>", "<bz>", "<bc>"})
            .lockable(),
        fields::address("txtShipToAddress", "Ship-to address", "ShipTo",
                       {"<sa1>", "<sa2>", "<sy>", "<ss>", "<sz>", "<sc>"})
            .lockable(),
        fields::validateAddresses().placed(2, 2),
        fields::trimmed("txtAccountNumber", "Account n&umber:", "AccountNumber", "<acct>"),
        fields::trimmed("txtContact", "&Contact:", "Contact", "<contact>"),
        fields::keyOrNull("cboTerms", "&Terms:", "TermsID", "<terms>", &Common::LoadTerms)
            .byDefault({"DefaultTerms", "Vendors", "-1"})
            .orFirst(),
        fields::check("chkSplitPOs", "&Split purchase orders by product", "SplitPOByProduct", "<split>").lockable(),
        fields::check("chkElectronic", "Takes purchase orders &electronically", "OOP_Process", "<electronic>").lockable(),
        fields::trimmed("txtOOPID", "Electronic &order ID:", "OOP_VendorID", "<oopid>").wide(24).lockable(),
        fields::text("txtUniqueID", "Un&ique ID:", "UniqueID", "<uniqueid>").wide(42).lockable(),
        fields::lines("txtNotes", "Notes", "Notes", "<notes>"),
        fields::margin("txtMargin", "&Margin (%):", "Margin", "<margin>", marginBounds).placed(3, 3),
        fields::margin("txtMarginAD", "Margin A&D (%):", "MarginAD", "<marginad>", marginBounds).placed(3, 3)),
    .source = RecordDescription::Source::Recordset,
    .filledBeforeShown = true,
    .safeText = SafeText::ByHost,
    .closingCancels = true,
    .windowValues = WindowValues::PlaceAndState,
    .columnSeparator = ", ",
    .valuesKeyword = "VALUES (",
    // The history entry of a new vendor is stored as customer activity, under the vendor's key (deliberate).
    .history = RecordHistory{.noun = "vendor",
                             .recordAdded = &Activity::RecordCustomerActivity,
                             .recordUpdated = &Activity::RecordVendorActivity,
                             .addedNotice = 6001,
                             .updatedNotice = 6003},
};

}  // namespace

VendorEditor::VendorEditor(Library& library) : RecordDialog(library, std::string(screenName), vendorRecord) {
    imgLocked.accessibleName = "Locked";
    imgLocked.setVisible(false);
    lblLocked.setVisible(false);
}

Layout VendorEditor::content() {
    using namespace tsln::layout;
    const auto one = [this](std::string_view control) { return fieldOf(control).layout(); };
    std::vector<Layout> general{one("txtName"), one("txtContact"), one("txtAccountNumber"), one("txtWebSite")};
    for (const auto& rows : {slots("Phone", 3), slots("Email", 2)})
        general.insert(general.end(), rows.begin(), rows.end());
    general.push_back(row({field("", checkBox("chkActive")), one("chkExported")}));
    return tabs(TabControl1,
                {column({form(std::move(general)), spring()}),
                 row({stretch(framed(grpBillTo, column({fill(textBox("txtBillToAddress"))}))),
                      stretch(framed(grpShipTo,
                                     column({fill(textBox("txtShipToAddress")), item(lblCopyBilling)})))}),
                 column({form({one("cboTerms"), one("txtMargin"), one("txtMarginAD"),
                                             field("", checkBox("chkSplitPOs")),
                                             field("", checkBox("chkElectronic")), one("txtOOPID"),
                                             one("txtUniqueID")}),
                         spring()}),
                 column({fill(textBox("txtNotes"))})});
}

std::vector<Layout> VendorEditor::besideButtons() {
    return {layout::item(imgLocked), layout::item(lblLocked)};
}

void VendorEditor::rowShown(const Row& row) {
    locked_ = row.number("Locked") != 0;
}

void VendorEditor::filled() {
    imgLocked.setVisible(locked_);
    lblLocked.setVisible(locked_);
    textBox("txtUniqueID").setEnabled(isNew());
    if (!locked_) return;
    lockFields();
    setValidateAddresses(true);
}

void VendorEditor::Hyperlink_BillingToShipping() {
    textBox("txtShipToAddress").setText(textBox("txtBillToAddress").text());
}

bool VendorEditor::validate() {
    if (!RecordDialog::validate()) return false;
    const Common common = host().common();
    const std::string& name = textBox("txtName").text();
    // Only a warning: two vendors may have one name.
    if (common.RecordExists(vendorRecord.table, "VendorName", name, ID))
        tell("A vendor with the name '" + name + "' already exists.", MessageIcon::Exclamation);
    if (TextBox& uniqueID = textBox("txtUniqueID"); uniqueID.text().empty())
        uniqueID.setText(common.FormatAsGUID(common.CreateGUID()));
    return true;
}

std::int32_t editVendor(Library& library, std::int32_t ID) {
    return openRecord(library, screenName, [&] { return std::make_shared<VendorEditor>(library); }, ID)->result();
}

}  // namespace tsln::entities
