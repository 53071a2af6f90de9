#include "lists/Locations.h"

#include "lists/Lists.h"
#include "lists/modSharedReportControl.h"

namespace tsln::lists {
namespace {

using Kind = EditField::Kind;
using modSharedSQL::doubleQuotes;

/// The parts of an address as its columns end, and their tags.
constexpr std::string_view addressParts[] = {"Address1", "Address2", "City", "State", "Zip", "Country"};
constexpr std::string_view addressTags[] = {"<sa1>", "<sa2>", "<sy>", "<ss>", "<sz>", "<sc>"};

Address readAddress(const std::string& prefix, const Record& row) {
    Address address;
    for (std::size_t i = 0; i < address.size(); ++i)
        address[i] = modSharedXML::readText(prefix + std::string(addressParts[i]), row);
    return address;
}

}  // namespace

const ListDescription locationsList{
    .open = Operation::ShowLocations,
    .edit = Operation::ShowEditLocation,
    .screenName = "frmLocations",
    .caption = "Locations",
    .table = "Locations",
    .orderBy = "LocationName",
    .columns = {{"Location", 180, "LocationName"},
                {"City", 130, "ShipToCity"},
                {"Phone", 130, "Phone1"},
                {"Store", 60, "StoreNumber"},
                {"Region", 90, "Region"}},
    .securityArea = 112,
    .deletionChecks = {referencedByCustomers("location", "LocationID"),
                       referencedByOrders("location", "LocationID")},
    .deleteFailure = "There was a problem deleting one or more locations.",
    .busyState = true,
    .dialog = {
        .newCaption = "New Location",
        .editCaption = "Edit Location",
        .fields = {{Kind::Name, "txtName", "&Name:", "LocationName", "<name>"},
                   {Kind::Text, "txtEmail", "&Email:", "Email", "<email>"},
                   {Kind::Text, "txtWebSite", "&Web site:", "WebSite", "<web>"},
                   {Kind::PhoneLabel, "cboPhone1Label", "Phone &1:", "Phone1Label", "<p1l>"},
                   {Kind::Text, "txtPhone1", "Phone 1", "Phone1", "<p1>"},
                   {Kind::PhoneLabel, "cboPhone2Label", "Phone &2:", "Phone2Label", "<p2l>"},
                   {Kind::Text, "txtPhone2", "Phone 2", "Phone2", "<p2>"},
                   {Kind::PhoneLabel, "cboPhone3Label", "Phone &3:", "Phone3Label", "<p3l>"},
                   {Kind::Text, "txtPhone3", "Phone 3", "Phone3", "<p3>"},
                   {Kind::PhoneLabel, "cboPhone4Label", "Phone &4:", "Phone4Label", "<p4l>"},
                   {Kind::Text, "txtPhone4", "Phone 4", "Phone4", "<p4>"},
                   {Kind::Memo, "txtShipToAddress", "Ship-to &address:", "ShipTo", {}},
                   {Kind::Text, "txtStoreNumber", "&Store number:", "StoreNumber", "<sno>"},
                   {Kind::Text, "txtMarketNumber", "&Market number:", "MarketNumber", "<mno>"},
                   {Kind::Text, "txtMarketName", "Mar&ket name:", "MarketName", "<mname>"},
                   {Kind::Text, "txtRegion", "&Region:", "Region", "<reg>"}},
        .required = "You must enter a name for this location.",
        .saveFailure = "There was a problem saving this location.",
        .saveExplanation = saveAgainExplanation,
        // The doubled MarketName here, and below that ValidateAddresses is not updated, are deliberate.
        .insert =
            "INSERT INTO Locations (LocationName,Email,WebSite,Phone1Label,Phone1,Phone2Label,Phone2,"
            "Phone3Label,Phone3,Phone4Label,Phone4,ShipToAddress1,ShipToAddress2,ShipToCity,ShipToState,"
            "ShipToZip,ShipToCountry,ValidateAddresses,StoreNumber,MarketName,MarketName,Region) "
            "VALUES('<name>','<email>','<web>','<p1l>','<p1>','<p2l>','<p2>','<p3l>','<p3>','<p4l>',"
            "'<p4>','<sa1>','<sa2>','<sy>','<ss>','<sz>','<sc>',<validateaddresses>,'<sno>','<mno>',"
            "'<mname>','<reg>')",
        .update = "UPDATE Locations SET LocationName = '<name>', Email = '<email>', WebSite = '<web>', "
                  "Phone1Label = '<p1l>', Phone1 = '<p1>', Phone2Label = '<p2l>', Phone2 = '<p2>', "
                  "Phone3Label = '<p3l>', Phone3 = '<p3>', Phone4Label = '<p4l>', Phone4 = '<p4>', "
                  "ShipToAddress1 = '<sa1>', ShipToAddress2 = '<sa2>', ShipToCity = '<sy>', "
                  "ShipToState = '<ss>', ShipToZip = '<sz>', ShipToCountry = '<sc>', StoreNumber = '<sno>', "
                  "MarketNumber = '<mno>' , MarketName = '<mname>' , Region = '<reg>'  WHERE ID = <id>",
    }};

// The list ------------------------------------------------------------------------------------------------

void LocationsScreen::cmdNew_Click() {
    if (!library().ShowEditLocation(0)) loadList();
}

void LocationsScreen::cmdEdit_Click() {
    const auto record = modSharedReportControl::focusedRecord(rptItems);
    if (!record) return;
    const std::int32_t ID = rptItems.id(*record);
    if (!library().ShowEditLocation(ID)) showSaved(ID, record);
}

// The dialog ----------------------------------------------------------------------------------------------

LocationDialog::LocationDialog(Library& library, const ListDescription& description)
    : EditDialog(library, description) {
    address().onLeave = [this] { address_Leave(); };
    cmdCopyAddress.onClick = [this] { cmdCopyAddress_Click(); };
}

Layout LocationDialog::phone(int number) {
    const std::string n = std::to_string(number);
    const FieldControl& label = field("cboPhone" + n + "Label");
    TextBox& box = field("txtPhone" + n).text();
    box.accessibleName = "Phone " + n;
    box.widthInCharacters = 20;
    return layout::row({label.layout(), layout::fill(box)});
}

Layout LocationDialog::fieldLayout() {
    using namespace tsln::layout;
    const auto fields = [this](std::initializer_list<std::string_view> controls) {
        std::vector<Layout> rows;
        for (const std::string_view control : controls)
            rows.push_back(field(control).layout());
        return form(std::move(rows));
    };
    return row({
        stretch(column({fields({"txtName", "txtEmail", "txtWebSite"}),
                        framed(grpPhones, form({phone(1), phone(2), phone(3), phone(4)})), spring()})),
        stretch(form({stretch(field("txtShipToAddress").layout()), row({spring(), item(cmdCopyAddress)}),
                      field("txtStoreNumber").layout(), field("txtMarketNumber").layout(),
                      field("txtMarketName").layout(), field("txtRegion").layout()})),
    });
}

void LocationDialog::showField(FieldControl& field, const Record& row) {
    if (field.description().control != "txtShipToAddress") return field.show(row);
    field.text().setText(host().CombineAddress(readAddress("ShipTo", row)));
    validateAddresses_ = modSharedXML::readBoolean("ValidateAddresses", row);
}

void LocationDialog::addTags(FieldControl& field, std::vector<modSharedSQL::Tag>& tags) {
    if (field.description().control != "txtShipToAddress") return EditDialog::addTags(field, tags);
    const Address parts = parseAddress();
    for (std::size_t i = 0; i < parts.size(); ++i)
        tags.emplace_back(addressTags[i], doubleQuotes(parts[i]));
    tags.emplace_back("<validateaddresses>", validateAddresses_);
}

/// The parts of the address box, which shows the address as the host has put it right.
Address LocationDialog::parseAddress() {
    std::string text = address().text();
    Address parts = host().ParseAddress(text, validateAddresses_);
    address().setText(std::move(text));
    return parts;
}

void LocationDialog::address_Leave() {
    if (address().text().empty()) validateAddresses_ = true;
    parseAddress();
}

void LocationDialog::cmdCopyAddress_Click() {
    const Records company = host().database().ExecuteRead(
        "SELECT TOP 1 BillToAddress1, BillToAddress2, BillToCity, BillToState, BillToZip, BillToCountry FROM "
        "Company");
    if (company.empty()) return;  // what stands in the box is not thrown away for nothing
    address().setText(host().CombineAddress(readAddress("BillTo", company.first())));
    address().setFocus();
}

}  // namespace tsln::lists
