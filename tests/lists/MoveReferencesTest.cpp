#include "lists/MoveListReferences.h"
#include "tests/lists/Acts.h"

namespace tsln::test {
namespace {

using lists::MoveListReferences;

/// A list and what refers to it, each with the word for it in messages.
struct Case {
    std::int16_t code;
    std::string table, column, noun;
    struct Reference {
        std::string table, column, noun;
        std::string update(const std::string& to = "9") const {
            return "UPDATE " + table + " SET " + column + " = " + to + " WHERE " + column + " = 7";
        }
        std::string failure() const { return "There was a problem moving the " + noun + " references."; }
    };
    std::vector<Reference> references;
    bool blankAllowed = false;

    std::vector<std::string> updates(const std::string& to = "9") const {
        std::vector<std::string> all;
        for (const Reference& reference : references)
            all.push_back(reference.update(to));
        return all;
    }
    std::string readName() const { return "SELECT " + column + " FROM " + table + " WHERE ID = 7"; }
    std::string readChoices() const { return "SELECT ID, " + column + " FROM " + table + " WHERE ID <> 7"; }
    /// The column's name without brackets.
    std::string choiceColumn() const {
        return column[0] == '[' ? column.substr(1, column.size() - 2) : column;
    }
};

const Case cases[] = {
    {1,
     "ShippingMethods",
     "ShippingMethod",
     "shipping method",
     {{"Customers", "ShippingMethodID", "customer"},
      {"Orders", "ShippingMethodID", "Q/S/O"},
      {"PurchaseOrders", "ShippingMethodID", "PO"}}},
    {2,
     "ReferralMethods",
     "ReferralMethod",
     "referral method",
     {{"Customers", "ReferralMethodID", "customer"}, {"Orders", "ReferralMethodID", "Q/S/O"}},
     true},
    {3,
     "ProductTypes",
     "ProductType",
     "product type",
     {{"Products", "ProductTypeID", "product"},
      {"ProductRefreshHistory", "ProductTypeID", "product refresh history"}}},
    {4,
     "Manufacturers",
     "Manufacturer",
     "manufacturer",
     {{"Products", "ManufacturerID", "product"},
      {"ProductRefreshHistory", "ManufacturerID", "product refresh history"}}},
    {5, "JobTypes", "JobType", "job type", {{"Jobs", "JobTypeID", "job"}}},
    {6, "OrderTypes", "OrderType", "order type", {{"Orders", "OrderTypeID", "Q/S/O"}}},
    {7, "DeliveryRanges", "Range", "delivery range", {{"Orders", "DeliveryRangeID", "Q/S/O"}}, true},
    {8, "PaymentMethods", "PaymentMethod", "payment method", {{"Payments", "PaymentMethodID", "payment"}}},
    {9,
     "Terms",
     "[Terms]",
     "terms",
     {{"Customers", "TermsID", "customer"},
      {"Vendors", "TermsID", "vendor"},
      {"Orders", "TermsID", "Q/S/O"}}},
    {10, "CustomerTypes", "Name", "customer type", {{"Customers", "CustomerTypeID", "customer"}}},
    {11,
     "DiscountGroups",
     "DiscountGroup",
     "discount group",
     {{"Customers", "DiscountGroupID", "customer"},
      {"Customers", "CustomerDiscountGroupID", "customer"},
      {"ProductVendors", "DiscountGroupID", "product vendor"}}},
    {12,
     "SalesTaxGroups",
     "SalesTaxGroup",
     "sales tax group",
     {{"Customers", "SalesTaxGroupID", "customer"},
      {"Orders", "SalesTaxGroupID", "Q/S/O"},
      {"SalesTaxGroupCodes", "SalesTaxGroupID", "sales tax group code"}}},
    {13, "Groups", "GroupName", "group", {{"GroupedCustomers", "GroupID", "customer"}}},
    {14,
     "Accounts",
     "Account",
     "linked accout",
     {{"Products", "SalesAccountID", "product"},
      {"Products", "PurchaseAccountID", "product"},
      {"AdditionalCharges", "SalesAccountID", "additional charge"},
      {"AdditionalCharges", "PurchaseAccountID", "additional charge"}}},
};

/// A company with the entries 7, "Old", and 9, "New". Every column has 4 references.
void fill(Stage& stage, const Case& c) {
    const std::string column = c.choiceColumn();
    stage.host->rows(c.readChoices(),
                     "<Records><Record><ID>9</ID><" + column + ">New</" + column + "></Record></Records>");
    stage.host->on("Database.ExecuteScaler", [name = c.readName()](Arguments a) {
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
            EXPECT_EQ(screen.lblHeading.caption(), "Change items that reference the " + c.noun + ":");
            EXPECT_EQ(screen.txtName.text(), "Old");
            screen.cmdOK.userPress();  // a blank reference
            EXPECT_TRUE(screen.shown());
            moveToNew(screen);
            EXPECT_FALSE(screen.shown());
        });
        EXPECT_FALSE(stage.library->ShowMoveReferences(c.code, 7));
        EXPECT_THAT(stage.host->callsOf("Common.LoadComboFromQuery"),
                    ElementsAre("object, " + c.readChoices() + ", " + c.choiceColumn() + ", ID" +
                                (c.blankAllowed ? ", True" : ", False")));
        EXPECT_EQ(stage.executed(), c.updates());
        const Box blank = c.blankAllowed ? question("Are you sure you want to change to a blank reference?")
                                         : exclamation("You cannot have a blank reference");
        const std::string total = std::to_string(4 * c.references.size());
        EXPECT_THAT(
            stage.desktop.boxes,
            ElementsAre(blank, Box{"Update complete. A total of " + total + " references where updated.",
                                   MessageButtons::Ok, MessageIcon::Information}));
    }
}

TEST(MoveReferences, StopsAtTheFirstFailureAndCanBeRepeated) {
    for (const Case& c : cases) {
        const std::vector<std::string> updates = c.updates();
        for (std::size_t failing = 0; failing < updates.size(); ++failing) {
            SCOPED_TRACE(std::to_string(c.code) + " update " + std::to_string(failing));
            Stage stage;
            fill(stage, c);
            bool fails = true;
            stage.host->on("Database.ExecuteNonQuery",
                           [&](Arguments a) { return Variant(!fails || a[0].toText() != updates[failing]); });
            std::vector<std::string> sent(updates.begin(),
                                          updates.begin() + static_cast<std::ptrdiff_t>(failing + 1));
            stage.desktop.user<MoveListReferences>("frmMoveListReferences", [&](MoveListReferences& screen) {
                moveToNew(screen);
                EXPECT_TRUE(screen.shown());
                EXPECT_EQ(stage.executed(), sent);
                fails = false;
                screen.cmdOK.userPress();
            });
            EXPECT_FALSE(stage.library->ShowMoveReferences(c.code, 7));
            EXPECT_THAT(stage.failures(), ElementsAre(explained(c.references[failing].failure())));
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
    EXPECT_EQ(stage.executed(), cases[1].updates("NULL"));

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
