#include "lists/Locations.h"

#include "lists/Lists.h"

namespace tsln::lists {
namespace {

constexpr std::string_view addressBox = "txtShipToAddress";

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
        .fields = fields::join(
            fields::name("txtName", "&Name:", "LocationName", "<name>",
                        "You must enter a name for this location."),
            fields::text("txtEmail", "&Email:", "Email", "<email>"),
            fields::text("txtWebSite", "&Web site:", "WebSite", "<web>"), fields::phones(4, Rule::Text, false),
            fields::address(addressBox, "Ship-to &address:", "ShipTo",
                           {"<sa1>", "<sa2>", "<sy>", "<ss>", "<sz>", "<sc>"}),
            fields::validateAddresses(),
            fields::text("txtStoreNumber", "&Store number:", "StoreNumber", "<sno>"),
            fields::text("txtMarketNumber", "&Market number:", "MarketNumber", "<mno>"),
            fields::text("txtMarketName", "Mar&ket name:", "MarketName", "<mname>"),
            fields::text("txtRegion", "&Region:", "Region", "<reg>")),
        .saveFailure = "There was a problem saving this location.",
        .saveExplanation = saveAgainExplanation,
        // Two deviations are deliberate: the INSERT names MarketName twice, the UPDATE does not write
        // ValidateAddresses.
        .insert =
            "INSERT INTO Locations (LocationName,Email,WebSite,Phone1Label,Phone1,Phone2Label,Phone2,Phone3Label,"
            "Phone3,Phone4Label,Phone4,ShipToAddress1,ShipToAddress2,ShipToCity,ShipToState,ShipToZip,ShipToCountry,"
            "ValidateAddresses,StoreNumber,MarketName,MarketName,Region) "
            "VALUES('<name>','<email>','<web>','<p1l>','<p1>','<p2l>','<p2>','<p3l>','<p3>','<p4l>','<p4>','<sa1>',"
            "'<sa2>','<sy>','<ss>','<sz>','<sc>',<validateaddresses>,'<sno>','<mno>','<mname>','<reg>')",
        .update = "UPDATE Locations SET LocationName = '<name>', Email = '<email>', WebSite = '<web>', "
                  "Phone1Label = '<p1l>', Phone1 = '<p1>', Phone2Label = '<p2l>', Phone2 = '<p2>', Phone3Label = '<p3l>', "
                  "Phone3 = '<p3>', Phone4Label = '<p4l>', Phone4 = '<p4>', ShipToAddress1 = '<sa1>', "
                  "ShipToAddress2 = '<sa2>', ShipToCity = '<sy>', ShipToState = '<ss>', ShipToZip = '<sz>', "
                  "ShipToCountry = '<sc>', StoreNumber = '<sno>', MarketNumber = '<mno>' , MarketName = '<mname>' , "
                  "Region = '<reg>'  WHERE ID = <id>",
    }};

// The list ------------------------------------------------------------------------------------------------

void LocationsScreen::cmdNew_Click() {
    if (!library().ShowEditLocation(0)) loadList();
}

void LocationsScreen::cmdEdit_Click() {
    const std::int32_t ID = selectedID();
    if (ID > 0 && !library().ShowEditLocation(ID)) showChanged(ID);
}

// The dialog ----------------------------------------------------------------------------------------------

LocationDialog::LocationDialog(Library& library, const ListDescription& description)
    : RecordDialog(library, description) {
    setValidateAddresses(true);  // the default of a new location
    cmdCopyAddress.onClick = [this] { cmdCopyAddress_Click(); };
}

Layout LocationDialog::content() {
    using namespace tsln::layout;
    return row({
        stretch(column({formOf({"txtName", "txtEmail", "txtWebSite"}),
                        framed(grpPhones, form(slots("Phone", 4))), spring()})),
        stretch(form(
            {stretch(fieldOf(addressBox).layout()), row({spring(), item(cmdCopyAddress)}),
             fieldOf("txtStoreNumber").layout(), fieldOf("txtMarketNumber").layout(),
             fieldOf("txtMarketName").layout(), fieldOf("txtRegion").layout()})),
    });
}

void LocationDialog::cmdCopyAddress_Click() {
    const Records company = host().database().ExecuteRead(
        "SELECT TOP 1 BillToAddress1, BillToAddress2, BillToCity, BillToState, BillToZip, BillToCountry FROM Company");
    if (company.empty()) return;  // the address in the box is kept
    Address address;
    for (std::size_t i = 0; i < address.size(); ++i)
        address[i] = modSharedXML::readText("BillTo" + std::string(addressColumns[i]), company.first());
    textBox(addressBox).setText(host().CombineAddress(address));
    textBox(addressBox).setFocus();
}

}  // namespace tsln::lists
