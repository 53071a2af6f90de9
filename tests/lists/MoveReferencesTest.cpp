#include "lists/MoveListReferences.h"
#include "tests/lists/Acts.h"

namespace tsln::test {
namespace {

using lists::MoveListReferences;

/// The expected queries, updates and messages when the references of entry 7 are moved to entry 9.
struct Case {
    std::int16_t code;
    std::string name, choices, heading;
    std::vector<std::string> updates;
    std::vector<std::string> failures;  ///< one per update
    bool blankAllowed = false;
};

const std::string customersFailed = "There was a problem moving the customer references.";
const std::string ordersFailed = "There was a problem moving the Q/S/O references.";
const std::string productsFailed = "There was a problem moving the product references.";
const std::string historyFailed = "There was a problem moving the product refresh history references.";
const std::string chargesFailed = "There was a problem moving the additional charge references.";

const Case cases[] = {
    {1,
     "SELECT ShippingMethod FROM ShippingMethods WHERE ID = 7",
     "SELECT ID, ShippingMethod FROM ShippingMethods WHERE ID <> 7, ShippingMethod, ID",
     "Change items that reference the shipping method:",
     {"UPDATE Customers SET ShippingMethodID = 9 WHERE ShippingMethodID = 7",
      "UPDATE Orders SET ShippingMethodID = 9 WHERE ShippingMethodID = 7",
      "UPDATE PurchaseOrders SET ShippingMethodID = 9 WHERE ShippingMethodID = 7"},
     {customersFailed, ordersFailed, "There was a problem moving the PO references."}},
    {2,
     "SELECT ReferralMethod FROM ReferralMethods WHERE ID = 7",
     "SELECT ID, ReferralMethod FROM ReferralMethods WHERE ID <> 7, ReferralMethod, ID",
     "Change items that reference the referral method:",
     {"UPDATE Customers SET ReferralMethodID = 9 WHERE ReferralMethodID = 7",
      "UPDATE Orders SET ReferralMethodID = 9 WHERE ReferralMethodID = 7"},
     {customersFailed, ordersFailed},
     true},
    {3,
     "SELECT ProductType FROM ProductTypes WHERE ID = 7",
     "SELECT ID, ProductType FROM ProductTypes WHERE ID <> 7, ProductType, ID",
     "Change items that reference the product type:",
     {"UPDATE Products SET ProductTypeID = 9 WHERE ProductTypeID = 7",
      "UPDATE ProductRefreshHistory SET ProductTypeID = 9 WHERE ProductTypeID = 7"},
     {productsFailed, historyFailed}},
    {4,
     "SELECT Manufacturer FROM Manufacturers WHERE ID = 7",
     "SELECT ID, Manufacturer FROM Manufacturers WHERE ID <> 7, Manufacturer, ID",
     "Change items that reference the manufacturer:",
     {"UPDATE Products SET ManufacturerID = 9 WHERE ManufacturerID = 7",
      "UPDATE ProductRefreshHistory SET ManufacturerID = 9 WHERE ManufacturerID = 7"},
     {productsFailed, historyFailed}},
    {5,
     "SELECT JobType FROM JobTypes WHERE ID = 7",
     "SELECT ID, JobType FROM JobTypes WHERE ID <> 7, JobType, ID",
     "Change items that reference the job type:",
     {"UPDATE Jobs SET JobTypeID = 9 WHERE JobTypeID = 7"},
     {"There was a problem moving the job references."}},
    {6,
     "SELECT OrderType FROM OrderTypes WHERE ID = 7",
     "SELECT ID, OrderType FROM OrderTypes WHERE ID <> 7, OrderType, ID",
     "Change items that reference the order type:",
     {"UPDATE Orders SET OrderTypeID = 9 WHERE OrderTypeID = 7"},
     {ordersFailed}},
    {7,
     "SELECT Range FROM DeliveryRanges WHERE ID = 7",
     "SELECT ID, Range FROM DeliveryRanges WHERE ID <> 7, Range, ID",
     "Change items that reference the delivery range:",
     {"UPDATE Orders SET DeliveryRangeID = 9 WHERE DeliveryRangeID = 7"},
     {ordersFailed},
     true},
    {8,
     "SELECT PaymentMethod FROM PaymentMethods WHERE ID = 7",
     "SELECT ID, PaymentMethod FROM PaymentMethods WHERE ID <> 7, PaymentMethod, ID",
     "Change items that reference the payment method:",
     {"UPDATE Payments SET PaymentMethodID = 9 WHERE PaymentMethodID = 7"},
     {"There was a problem moving the payment references."}},
    {9,
     "SELECT [Terms] FROM Terms WHERE ID = 7",
     "SELECT ID, [Terms] FROM Terms WHERE ID <> 7, Terms, ID",
     "Change items that reference the terms:",
     {"UPDATE Customers SET TermsID = 9 WHERE TermsID = 7",
      "UPDATE Vendors SET TermsID = 9 WHERE TermsID = 7", "UPDATE Orders SET TermsID = 9 WHERE TermsID = 7"},
     {customersFailed, "There was a problem moving the vendor references.", ordersFailed}},
    {10,
     "SELECT Name FROM CustomerTypes WHERE ID = 7",
     "SELECT ID, Name FROM CustomerTypes WHERE ID <> 7, Name, ID",
     "Change items that reference the customer type:",
     {"UPDATE Customers SET CustomerTypeID = 9 WHERE CustomerTypeID = 7"},
     {customersFailed}},
    {11,
     "SELECT DiscountGroup FROM DiscountGroups WHERE ID = 7",
     "SELECT ID, DiscountGroup FROM DiscountGroups WHERE ID <> 7, DiscountGroup, ID",
     "Change items that reference the discount group:",
     {"UPDATE Customers SET DiscountGroupID = 9 WHERE DiscountGroupID = 7",
      "UPDATE Customers SET CustomerDiscountGroupID = 9 WHERE CustomerDiscountGroupID = 7",
      "UPDATE ProductVendors SET DiscountGroupID = 9 WHERE DiscountGroupID = 7"},
     {customersFailed, customersFailed, "There was a problem moving the product vendor references."}},
    {12,
     "SELECT SalesTaxGroup FROM SalesTaxGroups WHERE ID = 7",
     "SELECT ID, SalesTaxGroup FROM SalesTaxGroups WHERE ID <> 7, SalesTaxGroup, ID",
     "Change items that reference the sales tax group:",
     {"UPDATE Customers SET SalesTaxGroupID = 9 WHERE SalesTaxGroupID = 7",
      "UPDATE Orders SET SalesTaxGroupID = 9 WHERE SalesTaxGroupID = 7",
      "UPDATE SalesTaxGroupCodes SET SalesTaxGroupID = 9 WHERE SalesTaxGroupID = 7"},
     {customersFailed, ordersFailed, "There was a problem moving the sales tax group code references."}},
    {13,
     "SELECT GroupName FROM Groups WHERE ID = 7",
     "SELECT ID, GroupName FROM Groups WHERE ID <> 7, GroupName, ID",
     "Change items that reference the group:",
     {"UPDATE GroupedCustomers SET GroupID = 9 WHERE GroupID = 7"},
     {customersFailed}},
    {14,
     "SELECT Account FROM Accounts WHERE ID = 7",
     "SELECT ID, Account FROM Accounts WHERE ID <> 7, Account, ID",
     "Change items that reference the linked accout:",
     {"UPDATE Products SET SalesAccountID = 9 WHERE SalesAccountID = 7",
      "UPDATE Products SET PurchaseAccountID = 9 WHERE PurchaseAccountID = 7",
      "UPDATE AdditionalCharges SET SalesAccountID = 9 WHERE SalesAccountID = 7",
      "UPDATE AdditionalCharges SET PurchaseAccountID = 9 WHERE PurchaseAccountID = 7"},
     {productsFailed, productsFailed, chargesFailed, chargesFailed}},
};

/// A company with the entries 7, "Old", and 9, "New". Every column has 4 references.
void fill(Stage& stage, const Case& c) {
    const std::string query = c.choices.substr(0, c.choices.find(", ", c.choices.find("FROM")));
    std::string column = c.choices.substr(query.size() + 2);
    column.resize(column.find(','));
    stage.host->rows(query,
                     "<Records><Record><ID>9</ID><" + column + ">New</" + column + "></Record></Records>");
    stage.host->on("Database.ExecuteScaler", [name = c.name](Arguments a) {
        return a[0].toText() == name ? Variant("Old") : Variant(4);
    });
}

void moveToNew(MoveListReferences& screen) {
    enter(screen, "cboReplacement", "New");
    screen.cmdOK.userPress();
}

TEST(MoveReferences, CountsAndUpdatesTheReferencesOfEveryList) {
    for (const Case& c : cases) {
        SCOPED_TRACE(c.code);
        Stage stage;
        fill(stage, c);
        stage.desktop.user<MoveListReferences>("frmMoveListReferences", [&](MoveListReferences& screen) {
            EXPECT_EQ(screen.lblHeading.caption(), c.heading);
            EXPECT_EQ(screen.txtName.text(), "Old");
            screen.cmdOK.userPress();  // a blank reference
            EXPECT_TRUE(screen.shown());
            moveToNew(screen);
            EXPECT_FALSE(screen.shown());
        });
        EXPECT_FALSE(stage.library->ShowMoveReferences(c.code, 7));
        EXPECT_THAT(stage.host->callsOf("Common.LoadComboFromQuery"),
                    ElementsAre("object, " + c.choices + (c.blankAllowed ? ", True" : ", False")));
        EXPECT_EQ(stage.executed(), c.updates);
        const Box blank = c.blankAllowed ? question("Are you sure you want to change to a blank reference?")
                                         : exclamation("You cannot have a blank reference");
        const std::string total = std::to_string(4 * c.updates.size());
        EXPECT_THAT(stage.desktop.boxes,
                    ElementsAre(blank, information("Update complete. A total of " + total +
                                                   " references where updated.")));
    }
}

TEST(MoveReferences, StopsAtTheFirstFailureAndCanBeRepeated) {
    for (const Case& c : cases) {
        for (std::size_t failing = 0; failing < c.updates.size(); ++failing) {
            SCOPED_TRACE(std::to_string(c.code) + " update " + std::to_string(failing));
            Stage stage;
            fill(stage, c);
            bool fails = true;
            stage.host->on("Database.ExecuteNonQuery", [&](Arguments a) {
                return Variant(!fails || a[0].toText() != c.updates[failing]);
            });
            std::vector<std::string> sent(c.updates.begin(),
                                          c.updates.begin() + static_cast<std::ptrdiff_t>(failing + 1));
            stage.desktop.user<MoveListReferences>("frmMoveListReferences", [&](MoveListReferences& screen) {
                moveToNew(screen);
                EXPECT_TRUE(screen.shown());
                EXPECT_EQ(stage.executed(), sent);
                fails = false;
                screen.cmdOK.userPress();
            });
            EXPECT_FALSE(stage.library->ShowMoveReferences(c.code, 7));
            EXPECT_THAT(stage.failures(), ElementsAre(explained(c.failures[failing])));
        }
    }
}

TEST(MoveReferences, BlankReferencesUnknownListsAndCancelling) {
    Stage stage;
    fill(stage, cases[1]);
    stage.desktop.answers = {MessageAnswer::Yes};
    stage.desktop.user<MoveListReferences>("frmMoveListReferences",
                                           [](MoveListReferences& screen) { screen.cmdOK.userPress(); });
    EXPECT_FALSE(stage.library->ShowMoveReferences(2, 7));
    EXPECT_THAT(stage.executed(),
                ElementsAre("UPDATE Customers SET ReferralMethodID = NULL WHERE ReferralMethodID = 7",
                            "UPDATE Orders SET ReferralMethodID = NULL WHERE ReferralMethodID = 7"));

    stage.host->forget();
    stage.desktop.user<MoveListReferences>("frmMoveListReferences",
                                           [](MoveListReferences& screen) { screen.cmdCancel.userPress(); });
    EXPECT_TRUE(stage.library->ShowMoveReferences(2, 7));
    EXPECT_TRUE(stage.library->ShowMoveReferences(2, 7)) << "the close box";
    EXPECT_THAT(stage.executed(), IsEmpty());

    stage.desktop.shown.clear();
    EXPECT_TRUE(stage.library->ShowMoveReferences(15, 7));
    EXPECT_THAT(stage.desktop.shown, IsEmpty());
    EXPECT_EQ(stage.desktop.boxes.back().text, "There is no list with the code 15.");
    EXPECT_TRUE(stage.library->screens().empty());
}

}  // namespace
}  // namespace tsln::test
