#include "entities/UpdateOrderInformation.h"

#include "maintenance/StatementTags.h"
#include "shared/modSharedStrings.h"

namespace tsln::entities {
namespace {

constexpr std::string_view screenName = "frmUpdateOrderInformation";
constexpr std::string_view readStatement =
    "SELECT CustomerName, SalesRepID, InstallerID, DesignerID, BillToAddress1, BillToAddress2, BillToCity, BillToState, BillToZip, BillToCountry FROM Customers WHERE (ID = <id>)";

/// The orders that are changed. A quote has the state 1; a sale has a higher one, also once it is ordered. The condition
/// ends the statement.
struct Scope {
    std::string_view caption, condition;
};
constexpr Scope scopes[] = {
    {"All quotes", "AND State = 1 "}, {"All sales", "AND State > 1 "}, {"All quotes and sales", ""}};
constexpr int everything = 2;

/// The tags of an address, in the order of its parts. Here <sc> is the city and <sy> the country.
constexpr std::string_view addressTags[] = {"<sa1>", "<sa2>", "<sc>", "<ss>", "<sz>", "<sy>"};

Address readAddress(Record row, std::string_view prefix) {
    Address address;
    for (std::size_t i = 0; i < address.size(); ++i)
        address[i] = modSharedXML::readText(std::string(prefix) + std::string(addressColumns[i]), row);
    return address;
}

using modSharedStrings::asCaption;

/// Nothing for a customer without such an employee.
std::optional<std::int32_t> readKey(std::string_view column, Record row) {
    const std::int32_t ID = modSharedXML::readLong(column, row);
    return ID >= 1 ? std::optional(ID) : std::nullopt;
}

/// A customer without such an employee takes it away from the orders, too.
std::string keyOrNull(const std::optional<std::int32_t>& ID) {
    return ID ? std::to_string(*ID) : "NULL";
}

}  // namespace

UpdateOrderInformation::UpdateOrderInformation(Library& library)
    : RecordDialog(library, std::string(screenName)) {
    setCaption("Update Order Information");
    cboAddress.accessibleName = "Address";
    cboAddress.onClick = [this] { showAddress(); };
    txtAddress.accessibleName = "Chosen address";
    txtAddress.multiLine = true;
    txtAddress.setLocked(true);
    for (const Scope& scope : scopes)
        cboScope.addItem(std::string(scope.caption));
    cboScope.setListIndex(everything);
}

Layout UpdateOrderInformation::content() {
    using namespace tsln::layout;
    return column(
        {item(lblCustomer),
         form({row({item(chkInstallationAddress), fill(cboAddress)}), stretch(column({fill(txtAddress)})),
               row({item(chkSalesRep), item(lblRep)}), row({item(chkInstaller), item(lblInstaller)}),
               row({item(chkDesigner), item(lblDesigner)}), field("&Update:", cboScope), item(chkActive)})});
}

bool UpdateOrderInformation::initialize(std::int32_t customer) {
    ID = customer;
    return handle([this] { readCustomer(); }) && found_;
}

void UpdateOrderInformation::readCustomer() {
    const Database database = host().database();
    const Records customers = database.ExecuteRead(modSharedSQL::fillTags(readStatement, {{"<id>", ID}}));
    const Record customer = customers.first();
    found_ = static_cast<bool>(customer);
    if (!found_) return tell("This customer no longer exists.", MessageIcon::Exclamation);

    lblCustomer.setCaption("Quotes and orders of " +
                           asCaption(modSharedXML::readText("CustomerName", customer)) + ":");
    const auto nameOf = [this](const std::optional<std::int32_t>& employee) {
        return employee ? asCaption(host().common().GetEmployeeName(*employee)) : std::string("(none)");
    };
    salesRep_ = readKey("SalesRepID", customer);
    installer_ = readKey("InstallerID", customer);
    designer_ = readKey("DesignerID", customer);
    lblRep.setCaption(nameOf(salesRep_));
    lblInstaller.setCaption(nameOf(installer_));
    lblDesigner.setCaption(nameOf(designer_));

    offer("Billing Address", readAddress(customer, "BillTo"));
    const Records addresses =
        database.ExecuteRead("SELECT * FROM CustomerAddresses WHERE CustomerID = " + std::to_string(ID));
    for (const Record row : addresses)
        offer(modSharedXML::readText("AddressLabel", row), readAddress(row, ""));
    cboAddress.setListIndex(0);
    showAddress();
}

void UpdateOrderInformation::offer(std::string label, const Address& address) {
    cboAddress.addItem(std::move(label));
    addresses_.push_back(address);
}

void UpdateOrderInformation::showAddress() {
    const auto chosen = static_cast<std::size_t>(cboAddress.listIndex());
    txtAddress.setText({});
    if (chosen < addresses_.size()) txtAddress.setText(host().CombineAddress(addresses_[chosen]));
}

bool UpdateOrderInformation::validate() {
    if (chkInstallationAddress.checked() || chkSalesRep.checked() || chkInstaller.checked() ||
        chkDesigner.checked()) {
        return true;
    }
    tell("You must select something to change.", MessageIcon::Exclamation);
    return false;
}

/// Nothing stands between the customer and the condition of chkActive (deliberate): the database refuses that statement.
std::string UpdateOrderInformation::statement() const {
    std::string sql = "UPDATE Orders SET ";
    if (chkInstallationAddress.checked()) {
        sql +=
            "ShipToAddress1 = <sa1>, ShipToAddress2 = <sa2>, ShipToCity = <sc>, ShipToState = <ss>, ShipToZip = <sz>, ShipToCountry = <sy>, ";
    }
    if (chkSalesRep.checked()) sql += "SalesRepID = <repid>, ";
    if (chkInstaller.checked()) sql += "InstallerID = <installerid>, ";
    if (chkDesigner.checked()) sql += "DesignerID = <designerid>, ";
    sql.resize(sql.size() - 2);
    sql += " WHERE CustomerID = <cid> ";
    if (chkActive.checked()) sql += " Active <> 0 ";
    if (const int scope = cboScope.listIndex(); scope >= 0) sql += scopes[scope].condition;

    StatementTags tags(host(), SafeText::ByHost);
    if (chkInstallationAddress.checked()) {
        const Address& address = addresses_.at(static_cast<std::size_t>(cboAddress.listIndex()));
        for (std::size_t i = 0; i < address.size(); ++i)
            tags.quoted(addressTags[i], address[i]);
    }
    tags.plain("<repid>", keyOrNull(salesRep_));
    tags.plain("<installerid>", keyOrNull(installer_));
    tags.plain("<designerid>", keyOrNull(designer_));
    tags.plain("<cid>", ID);
    return tags.fill(sql);
}

bool UpdateOrderInformation::save() {
    if (host().database().ExecuteNonQuery(statement())) {
        tell("The quotes/orders have been updated.", MessageIcon::Information);
        return true;
    }
    reportDatabaseFailure("The quotes/orders could not be updated.", standardExplanation,
                          &Host::ShowErrorMessage);
    return false;
}

void updateOrderInformation(Library& library, std::int32_t customer) {
    library.screens().show(
        screenName, [&] { return std::make_shared<UpdateOrderInformation>(library); },
        [&](UpdateOrderInformation& screen) { return screen.initialize(customer); });
}

}  // namespace tsln::entities
