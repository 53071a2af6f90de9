#include "doubles/Stage.h"
#include "pricing/MoveProducts.h"
#include "pricing/VendorCostMethods.h"
#include "shared/Markup.h"

namespace tsln::test {
namespace {

using pricing::MoveProductsToVendor;
using pricing::VendorCostMethods;

constexpr auto moveStatement = "UPDATE ProductVendors SET VendorID = 5 WHERE VendorID = 3 AND IsDefault <> 0";

/// Vendor 3, with 4 products, and vendor 5, with 6, which the search selects.
void furnishVendors(Stage& stage) {
    stage.host->on("TSLNSQL.ExecuteScaler", [](Arguments a) -> Variant {
        const std::string sql = a[0].toText();
        if (sql == "SELECT VendorName FROM Vendors WHERE ID = 3") return "A <Bold>&</Bold> Co";
        if (sql == "SELECT VendorName FROM Vendors WHERE ID = 5") return "Everley";
        if (sql == "SELECT COUNT(*) AS theCount FROM ProductVendors WHERE VendorID = 3 AND IsDefault <> 0")
            return 4;
        if (sql == "SELECT COUNT(*) AS theCount FROM ProductVendors WHERE VendorID = 5 AND IsDefault <> 0")
            return 6;
        return {};
    });
    stage.host->on("ShowSelectBySearch", Variant(5));
}

TEST(MoveProductsToVendor, ShowsWhatMovesAndMovesIt) {
    Stage stage;
    furnishVendors(stage);
    stage.desktop.user<MoveProductsToVendor>("frmMoveProductsToVendor", [&](MoveProductsToVendor& screen) {
        EXPECT_FALSE(screen.cmdOK.enabled());
        screen.cmdSelect.userPress();
        const std::pair<MarkupLabel*, const char*> lines[] = {
            {&screen.lblFrom, "Move products with a default vendor of: A <Bold>&</Bold> Co"},
            {&screen.lblTo, "To the vendor: Everley"},
            {&screen.lblFromCount, "Current vendor has 4 default products"},
            {&screen.lblToCount, "The new vendor currently has 6 default products"},
            {&screen.lblAfter, "After the move the new vendor will have 10 default products"}};
        for (const auto& [label, text] : lines)
            EXPECT_EQ(plainText(label->caption()), text);
        EXPECT_THAT(screen.lblAfter.caption(), HasSubstr("<TextBlock TextWrapping='Wrap'>"));
        screen.cmdOK.userPress();
    });
    EXPECT_FALSE(stage.library->ShowMoveProductsToVendor(3));
    EXPECT_THAT(stage.executed(), ElementsAre(moveStatement));
    EXPECT_THAT(stage.desktop.boxes, ElementsAre(information("The products have been moved.")));
    EXPECT_THAT(stage.host->callsOf("ShowSelectBySearch"), ElementsAre("Vendors, Select Vendor"));
    EXPECT_EQ(stage.host->callsOf("TSLNSQL.PreTerminate").size(), 2U);
}

TEST(MoveProductsToVendor, AFailedMoveIsReportedAndCanBeRepeated) {
    Stage stage;
    furnishVendors(stage);
    int tries = 0;
    stage.host->on("Database.ExecuteNonQuery", [&](Arguments) { return Variant(++tries > 1); });
    stage.desktop.user<MoveProductsToVendor>("frmMoveProductsToVendor", [&](MoveProductsToVendor& screen) {
        screen.cmdSelect.userPress();
        screen.cmdOK.userPress();
        EXPECT_TRUE(screen.shown());
        screen.cmdOK.userPress();
    });
    EXPECT_FALSE(stage.library->ShowMoveProductsToVendor(3));
    EXPECT_THAT(stage.failures(), ElementsAre(explained("The products could not be moved.")));

    // The second vendor may come as any value that converts.
    EXPECT_FALSE(stage.library->call("MoveProductsToVendor", 3, "5").toBoolean());
    EXPECT_EQ(stage.executed().back(), moveStatement);
    EXPECT_TRUE(stage.library->MoveProductsToVendor(3, 0)) << "there is no vendor 0";
    EXPECT_EQ(tries, 3);
}

TEST(MoveProductsToVendor, NeedsAnotherVendorThatExists) {
    Stage stage;
    furnishVendors(stage);
    EXPECT_TRUE(stage.library->ShowMoveProductsToVendor(77));
    EXPECT_EQ(stage.desktop.boxes.size(), 1U);
    EXPECT_THAT(stage.desktop.shown, IsEmpty());
    for (const int selected : {0, 3, -1}) {
        stage.host->on("ShowSelectBySearch", Variant(selected));
        stage.desktop.user<MoveProductsToVendor>("frmMoveProductsToVendor", [](MoveProductsToVendor& screen) {
            screen.cmdSelect.userPress();
            EXPECT_FALSE(screen.cmdOK.enabled());
            EXPECT_EQ(screen.lblTo.caption(), "");
        });
        EXPECT_TRUE(stage.library->ShowMoveProductsToVendor(3));
    }
}

constexpr auto readVendors =
    "SELECT ID, VendorName, CostMethod FROM Vendors WHERE VendorName <> '(None)' ORDER BY VendorName";

/// Four vendors; "Dull" has a method that the host does not know.
void furnishMethods(Stage& stage) {
    stage.host->rows(
        readVendors,
        "<Records><Record><ID>1</ID><VendorName>A'l</VendorName><CostMethod>1</CostMethod></Record>"
        "<Record><ID>2</ID><VendorName>Bo</VendorName><CostMethod>3</CostMethod></Record>"
        "<Record><ID>3</ID><VendorName>Cy</VendorName><CostMethod>1</CostMethod></Record>"
        "<Record><ID>4</ID><VendorName>Dull</VendorName><CostMethod>0</CostMethod></Record></Records>");
    stage.host->on("Common.GetVendorCostMethodName", [](Arguments a) {
        const char* names[] = {"", "% of MSRP", "Cost from Product", "Price from Product"};
        return Variant(names[a[0].toLong()]);
    });
}

TEST(VendorCostMethods, OnlyChangedRowsAreWritten) {
    Stage stage;
    furnishMethods(stage);
    stage.desktop.user<VendorCostMethods>("frmVendorCostMethods", [](VendorCostMethods& screen) {
        ReportControl& grid = screen.rptItems;
        EXPECT_EQ(grid.columns[0].caption, "Vendor");
        EXPECT_EQ(grid.columns[1].caption, "Cost Method");
        EXPECT_EQ(grid.rowText(1, 1), "Price from Product");
        EXPECT_EQ(grid.rowText(3, 1), "");
        grid.userEdit(0, 1, "Cost from Product");
        grid.userEdit(1, 1, "% of MSRP");
        grid.userEdit(1, 1, "Price from Product");  // back again
        grid.userEdit(2, 1, "Made up");             // not offered
        grid.userEdit(3, 1, "Price from Product");
        screen.cmdOK.userPress();
    });
    EXPECT_FALSE(stage.library->ShowVendorCostMethods());
    EXPECT_THAT(stage.host->callsOf("CurrentCompanyConn.Execute"),
                ElementsAre("UPDATE Vendors SET CostMethod = 2 WHERE ID = 1",
                            "UPDATE Vendors SET CostMethod = 3 WHERE ID = 4"));
    EXPECT_THAT(stage.host->callsOf("Common.GetVendorCostMethodName"), ElementsAre("1", "3", "0"))
        << "each name is asked once";

    stage.host->forget();
    stage.desktop.user<VendorCostMethods>("frmVendorCostMethods", [](VendorCostMethods& screen) {
        screen.rptItems.userEdit(0, 1, "Cost from Product");
        screen.cmdCancel.userPress();
    });
    EXPECT_TRUE(stage.library->ShowVendorCostMethods());
    EXPECT_THAT(stage.host->callsOf("CurrentCompanyConn.Execute"), IsEmpty());
}

TEST(VendorCostMethods, AFailureIsShownAndTheNextOKWritesTheRest) {
    Stage stage;
    furnishMethods(stage);
    stage.host->failStatement = "UPDATE Vendors SET CostMethod = 2 WHERE ID = 2";
    stage.desktop.user<VendorCostMethods>("frmVendorCostMethods", [&](VendorCostMethods& screen) {
        for (const std::size_t row : {0, 1, 2})
            screen.rptItems.userEdit(row, 1, "Cost from Product");
        screen.cmdOK.userPress();
        EXPECT_TRUE(screen.shown());
        EXPECT_EQ(screen.rptItems.rowText(1, 1), "Cost from Product");
        stage.host->failStatement.clear();
        screen.cmdOK.userPress();
    });
    EXPECT_FALSE(stage.library->ShowVendorCostMethods());
    EXPECT_THAT(stage.host->callsOf("ShowADOErrorMessage"),
                ElementsAre("Payment method 'Bo' could not be saved. (3738), " + std::string(explanation) +
                            ", object"));
    EXPECT_THAT(stage.host->callsOf("CurrentCompanyConn.Execute"),
                ElementsAre("UPDATE Vendors SET CostMethod = 2 WHERE ID = 1",
                            "UPDATE Vendors SET CostMethod = 2 WHERE ID = 2",
                            "UPDATE Vendors SET CostMethod = 2 WHERE ID = 2",
                            "UPDATE Vendors SET CostMethod = 2 WHERE ID = 3"));
}

TEST(VendorTools, EveryHostFaultIsReported) {
    sweepFaults([](Stage& stage) {
        furnishVendors(stage);
        stage.desktop.user<MoveProductsToVendor>("frmMoveProductsToVendor",
                                                 [&](MoveProductsToVendor& screen) {
                                                     screen.cmdSelect.userPress();
                                                     screen.cmdOK.userPress();
                                                     if (screen.shown() && screen.cmdOK.enabled()) {
                                                         EXPECT_TRUE(stage.told());
                                                     }
                                                 });
        stage.library->ShowMoveProductsToVendor(3);
    });
    sweepFaults([](Stage& stage) {
        furnishMethods(stage);
        stage.desktop.user<VendorCostMethods>("frmVendorCostMethods", [&](VendorCostMethods& screen) {
            if (screen.rptItems.rowCount() == 0) return;
            screen.rptItems.userEdit(0, 1, "Cost from Product");
            screen.cmdOK.userPress();
            if (screen.shown()) {
                EXPECT_TRUE(stage.told());
                EXPECT_EQ(screen.rptItems.rowText(0, 1), "Cost from Product");
            }
        });
        stage.library->ShowVendorCostMethods();
    });
}

}  // namespace
}  // namespace tsln::test
