#include "entities/CustomerEditor.h"

#include "automation/NumericText.h"
#include "shared/modSharedSQL.h"

namespace tsln::entities {
namespace {

using modSharedSQL::format;

constexpr std::string_view screenName = "frmEditCustomer";
constexpr std::string_view section = "Customers";  // of the company's options
constexpr std::int32_t locationsFeature = 1;
/// In this mode of the host, users enter their own customers.
constexpr std::int32_t ownCustomersMode = 2;

/// The company option with the key of a new customer's entry. Without the option or the entry, the first is selected.
constexpr FieldDescription byOption(const FieldDescription& field, std::string_view option) {
    return field.byDefault({option, section, "-1"}).orFirst();
}

const RecordDescription customerRecord{
    .table = "Customers",
    .newCaption = "New Customer",
    .editCaption = "Edit Customer",
    // The fields are in the order of their tags in the INSERT.
    .fields = fields::join(
        fields::trimmed("txtCustomerName", "&Name:", "CustomerName", "<custname>").wide(22),
        fields::trimmedOrNull("txtAccountNumber", "Account n&umber:", "AccountNumber", "<account>").wide(22),
        fields::trimmed("txtCompanyName", "C&ompany:", "CompanyName", "<company>").wide(22),
        fields::trimmed("txtContact", "&Contact:", "Contact", "<contact>").wide(22),
        fields::trimmed("txtFirstName", "&First name:", "FirstName", "<fname>").wide(22),
        fields::trimmed("txtLastName", "&Last name:", "LastName", "<lname>").wide(22),
        fields::trimmed("txtMiddleInitial", "M&iddle:", "MiddleInitial", "<mi>").wide(6),
        fields::phones(3, Rule::Trimmed, true),
        fields::emails(2),
        fields::address("txtBillToAddress", "Bill-to address", "BillTo",
                       {"<baddress1>", "<baddress2>", "<bcity>", "<bstate>", "<bzip>", "<bcountry>"}),
        byOption(fields::keyOrNull("cboTaxGroup", "Sales ta&x group:", "SalesTaxGroupID", "<taxgroupid>", &Common::LoadTaxGroups), "DefaultTaxGroup"),
        fields::text("txtResaleNo", "&Resale number:", "ResaleNumber", "<resale>"),
        fields::text("txtTaxExNo", "Tax exempt&ion number:", "TaxExNumber", "<pstex>"),
        byOption(fields::key("cboDiscountGroup", "&Price discount group:", "DiscountGroupID", "<discountgroupid>", &Common::LoadPriceDiscountGroups), "DefaultPriceDiscountGroup"),
        byOption(fields::key("cboCustomerType", "Customer t&ype:", "CustomerTypeID", "<customertypeid>", &Common::LoadCustomerTypes), "DefaultCustomerType"),
        byOption(fields::keyOrNull("cboTerms", "&Terms:", "TermsID", "<termsid>", &Common::LoadTerms), "DefaultTerms"),
        byOption(fields::keyOrNull("cboSalesRep", "&Sales rep:", "SalesRepID", "<salesrepid>", &Common::LoadSalesReps), "DefaultSalesRep"),
        byOption(fields::keyOrNull("cboInstaller", "&Installer:", "InstallerID", "<installerid>", &Common::LoadInstallers), "DefaultInstaller"),
        byOption(fields::keyOrNull("cboDesigner", "&Designer:", "DesignerID", "<designerid>", &Common::LoadDesigners), "DefaultDesigner"),
        byOption(fields::keyOrNull("cboShippingMethod", "S&hipping method:", "ShippingMethodID", "<shippingid>", &Common::LoadShippingMethods), "DefaultShippingMethod"),
        byOption(fields::keyOrNull("cboReferralMethod", "&Referral method:", "ReferralMethodID", "<referralid>", &Common::LoadReferralMethods), "DefaultReferralMethod"),
        fields::text("txtSalesAccount", "S&ales account:", "SalesAccount", "<salesacct>"),
        fields::check("chkCreditHold", "Credit &hold", "CreditHold", "<credithold>"),
        fields::lines("txtOrderEntryComment", "&Order entry comment:", "OrderEntryComment", "<oecomment>"),
        fields::lines("txtCSRMessage", "&Message to customer service:", "CSRMessage", "<csrmessage>"),
        fields::lines("txtNotes", "&Notes:", "Notes", "<notes>"),
        fields::check("chkActive", "Acti&ve", "Active", "<active>").ticked(),
        fields::validateAddresses(),
        fields::keyOrNull("cboLocation", "&Location:", "LocationID", "<locid>", &Common::LoadLocations),
        fields::amount("txtCreditLimit", "Credit &limit:", "CreditLimit", "<credlimit>"),
        byOption(fields::keyOrNull("cboCustomerDiscountGroup", "&Customer discount group:", "CustomerDiscountGroupID", "<cdiscountgroupid>", &Common::LoadCustomerDiscountGroups), "DefaultCustomerDiscountGroup"),
        fields::check("chkExported", "Exporte&d", "Exported", "<exported>")),
    .source = RecordDescription::Source::Recordset,
    .filledBeforeShown = true,
    .safeText = SafeText::ByHost,
    .closingCancels = true,
    .windowValues = WindowValues::PlaceAndState,
    .insert =
        "INSERT INTO Customers (CustomerName, AccountNumber, CompanyName, Contact, FirstName, LastName, MiddleInitial, Phone1Label, Phone1, Phone2Label, Phone2, Phone3Label, Phone3, Email1Label, Email1, Email2Label, Email2, BillToAddress1, BillToAddress2, BillToCity, BillToState, BillToZip, BillToCountry, SalesTaxGroupID, ResaleNumber, TaxExNumber, DiscountGroupID, CustomerTypeiD, TermsID, SalesRepID, InstallerID, DesignerID, ShippingMethodID, ReferralMethodID, SalesAccount, CreditHold, OrderEntryComment, CSRMessage, Notes, Active, ValidateAddresses, LocationID, CreditLimit, CustomerDiscountGroupID, Exported) VALUES ('<custname>', <account>, '<company>', '<contact>', '<fname>', '<lname>', '<mi>', '<p1l>', '<p1>', '<p2l>', '<p2>', '<p3l>','<p3>', '<e1l>', '<e1>', '<e2l>', '<e2>', "
        " '<baddress1>', '<baddress2>', '<bcity>', '<bstate>', '<bzip>', '<bcountry>', <taxgroupid>, '<resale>', '<pstex>', <discountgroupid>, <customertypeid>, <termsid>, <salesrepid>, <installerid>, <designerid>, <shippingid>, <referralid>, '<salesacct>', <credithold>, '<oecomment>', '<csrmessage>', '<notes>', <active>, <validateaddresses>, <locid>, <credlimit>, <cdiscountgroupid>, <exported>)",
    .update =
        "UPDATE Customers SET CustomerName = '<custname>', AccountNumber = <account>, CompanyName = '<company>', Contact = '<contact>',  FirstName = '<fname>', LastName = '<lname>', MiddleInitial = '<mi>', Phone1Label = '<p1l>', Phone1 = '<p1>', Phone2Label = '<p2l>', Phone2 = '<p2>', Phone3Label = '<p3l>', Phone3 = '<p3>', Email1Label = '<e1l>', Email1 = '<e1>', Email2Label = '<e2l>', Email2 = '<e2>', "
        " BillToAddress1 = '<baddress1>', BillToAddress2 = '<baddress2>', BillToCity = '<bcity>', BillToState = '<bstate>', BillToZip = '<bzip>', BillToCountry = '<bcountry>', SalesTaxGroupID = <taxgroupid>, ResaleNumber = '<resale>', TaxExNumber = '<pstex>', DiscountGroupID = <discountgroupid>, CustomerTypeID = <customertypeid>, TermsID = <termsid>, SalesRepID = <salesrepid>, InstallerID = <installerid>, DesignerID = <designerid>, ShippingMethodID = <shippingid>, ReferralMethodID = <referralid>, SalesAccount = '<salesacct>', CreditHold = <credithold>, OrderEntryComment = '<oecomment>', CSRMessage = '<csrmessage>', Notes = '<notes>', Active = <active>, ValidateAddresses = <validateaddresses>, LocationID = <locid>, CreditLimit = <credlimit>, CustomerDiscountGroupID = <cdiscountgroupid>, Exported = <exported> WHERE ID = <id>",
    .history = RecordHistory{.noun = "customer",
                             .recordAdded = &Activity::RecordCustomerActivity,
                             .recordUpdated = &Activity::RecordCustomerActivity,
                             .addedNotice = 3001,
                             .updatedNotice = 3003},
};

constexpr AddressTable customerAddresses{
    .read = "SELECT * FROM CustomerAddresses WHERE CustomerID = ",
    .insert = "INSERT INTO CustomerAddresses (CustomerID, AddressLabel, Address1, Address2, City, State, Zip, Country, isDefault) VALUES(<cid>, '<al>', '<a1>', '<a2>', '<y>', '<s>', '<z>', '<c>', <d>)",
    .update = "UPDATE CustomerAddresses SET AddressLabel = '<al>', Address1 = '<a1>', Address2 = '<a2>', City = '<y>', State = '<s>', Zip = '<z>', Country = '<c>', isDefault = <d> WHERE ID = <id>",
    .remove = "DELETE FROM CustomerAddresses WHERE ID = <id>",
    .ownerTag = "<cid>",
    .hasDefault = true,
};

constexpr AddressBlock addressBlock{
    .table = customerAddresses,
    .defaultLabel = {"AddressLabel", section, "Home"},
};

}  // namespace

CustomerEditor::CustomerEditor(Library& library)
    : RecordDialog(library, std::string(screenName), customerRecord),
      addresses(*this, addressBlock, validateAddressesFlag()) {
    textBox("txtCustomerName").onLeave = [this] { txtCustomerName_Leave(); };
    keepsEnter(addresses.txtShipToAddress, [this] { addresses.left(); });
    lblEditGroups.onLink = [this](const std::string&) { Hyperlink_EditGroups(); };
}

Layout CustomerEditor::content() {
    using namespace tsln::layout;
    const auto one = [this](std::string_view control) { return fieldOf(control).layout(); };
    std::vector<Layout> general{one("txtCustomerName"), one("txtCompanyName"),
                                one("txtContact"),      row({one("txtFirstName"), one("txtMiddleInitial")}),
                                one("txtLastName"),     one("txtAccountNumber")};
    for (const auto& rows : {slots("Phone", 3), slots("Email", 2)})
        general.insert(general.end(), rows.begin(), rows.end());
    general.push_back(row({field("", checkBox("chkActive")), one("chkExported")}));
    const Layout billTo = framed(grpBillTo, column({fill(textBox("txtBillToAddress"))}));
    const Layout shipTo = framed(
        grpShipTo,
        column({row({field("Add&ress:", addresses.cboAddressLabel), item(addresses.lblDefaultAddress)}),
                fill(addresses.txtShipToAddress),
                row({item(lblCopyBilling), fill(addresses.lblAddressLinks)})}));
    return tabs(
        TabControl1,
        {row({stretch(column({form(std::move(general)), spring()})),
              stretch(column({stretch(billTo), stretch(shipTo)}))}),
         column({form({one("cboDiscountGroup"), one("cboCustomerDiscountGroup"), one("cboCustomerType"),
                       one("cboTaxGroup"), one("txtTaxExNo"), one("txtResaleNo"), one("cboTerms"),
                       one("txtCreditLimit"), field("", checkBox("chkCreditHold")), one("txtSalesAccount")}),
                 spring()}),
         column({formOf({"cboSalesRep", "cboInstaller", "cboDesigner", "cboShippingMethod",
                         "cboReferralMethod", "cboLocation"}),
                 spring()}),
         formOf({"txtOrderEntryComment", "txtCSRMessage", "txtNotes"}),
         column({fill(groups.rptGroups), item(lblEditGroups)})});
}

// Filling ---------------------------------------------------------------------------------------------

void CustomerEditor::defaultsShown() {
    if (host().OperatingMode() != ownCustomersMode) return;
    const std::int32_t user = host().security().UserId();
    const Variant count = host().database().ExecuteScaler(
        format("SELECT COUNT(*) AS theCount FROM Employees WHERE ID = {0} AND SalesRep <> 0 ", user));
    if (count.toLong() == 1) comboBox("cboSalesRep").choose(user);
}

void CustomerEditor::rowShown([[maybe_unused]] const Row& row) {
    addresses.read(ID);
}

void CustomerEditor::filled() {
    comboBox("cboLocation").setVisible(host().security().CompanyFeatureEnabled(locationsFeature));
    // Without the groups, the customer's other data can still be edited.
    const bool listed = handle([this] { groups.read(ID); });
    if (listed && isNew())
        groups.tick(host().options().GetCompanyOption("DefaultGroups", section, "").toText());
}

void CustomerEditor::txtCustomerName_Leave() {
    const std::string& name = textBox("txtCustomerName").text();
    if (!isNew() || name.empty()) return;
    const PersonName parts = host().common().ParseCompleteName(name);
    const std::pair<std::string_view, const std::string&> boxes[] = {
        {"txtFirstName", parts.first},
        {"txtMiddleInitial", parts.middleInitial},
        {"txtLastName", parts.last}};
    for (const auto& [box, part] : boxes) {
        if (!part.empty()) textBox(box).setText(part);
    }
}

void CustomerEditor::Hyperlink_BillingToShipping() {
    addresses.setText(textBox("txtBillToAddress").text());
}

void CustomerEditor::Hyperlink_EditGroups() {
    library().ShowGroups(false);
    groups.readGroups(ID);
}

// OK --------------------------------------------------------------------------------------------------

bool CustomerEditor::isDuplicate(std::string_view control, std::string_view noun) {
    const Field& field = fieldOf(control);
    const std::string& value = field.text().text();
    if (!host().common().RecordExists(customerRecord.table, field.description().column, value, ID))
        return false;
    refuse(format("A customer with the {0} '", noun) + value + "' already exists.", field.control());
    return true;
}

/// A changed customer is exported again, if the company wants that.
void CustomerEditor::resetExported() {
    CheckBox& exported = checkBox("chkExported");
    std::int32_t way = 0;
    readNumber(host().options().GetCompanyOption("ResetCustomerExported", section, "0").toText(), way);
    if (way == 2) exported.setChecked(false);
    if (way == 1 && exported.checked() &&
        ask("This customer has been exported. Do you want to clear the exported flag so that it gets exported again.")) {
        exported.setChecked(false);
    }
}

bool CustomerEditor::validate() {
    normalizeFields();
    if (isDuplicate("txtCustomerName", "name")) return false;
    if (!textBox("txtAccountNumber").text().empty() && isDuplicate("txtAccountNumber", "account number"))
        return false;
    resetExported();
    constexpr std::pair<std::string_view, std::string_view> required[] = {
        {"cboDiscountGroup", "You must select a price discount group."},
        {"cboCustomerDiscountGroup", "You must select a customer discount group."},
        {"cboCustomerType", "You must select a customer type."}};
    for (const auto& [control, message] : required) {
        if (comboBox(control).chosen()) continue;
        refuse(message, &comboBox(control));
        return false;
    }
    if (!comboBox("cboSalesRep").chosen() &&
        !ask(
            "You have not selected a sales rep for this customer. You will be required to select a sales rep when you create a quote or sale for this customer. Are you sure you want to continue without selecting a sales rep?")) {
        goTo(comboBox("cboSalesRep"));
        return false;
    }
    return true;
}

bool CustomerEditor::save() {
    addresses.finish();
    added_ = isNew();
    const bool saved = RecordDialog::save();
    // Also after a failed update: the addresses in the database may still lack a default.
    if (!isNew()) handle([this] { ensureDefaultAddress(); });
    return saved;
}

void CustomerEditor::saveFurther() {
    addresses.save(ID);
    groups.save(ID, added_);
}

void CustomerEditor::ensureDefaultAddress() {
    if (!host().database().ExecuteNonQuery(format("EXEC EnsureCustomerDefaultAddress {0}", ID)))
        reportDatabaseFailure("The customer's default address could not be set.");
}

std::int32_t editCustomer(Library& library, std::int32_t ID) {
    return openRecord(
               library, screenName, [&] { return std::make_shared<CustomerEditor>(library); }, ID)
        ->result();
}

}  // namespace tsln::entities
