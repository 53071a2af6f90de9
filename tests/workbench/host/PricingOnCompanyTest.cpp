#include <gmock/gmock.h>

#include "doubles/HexPattern.h"
#include "pricing/AdditionalCharge.h"
#include "pricing/AdditionalCharges.h"
#include "pricing/BulkChange.h"
#include "pricing/MoveProducts.h"
#include "pricing/VendorCostMethods.h"
#include "shared/Markup.h"
#include "tests/workbench/host/HostStage.h"

namespace tsln::workbench {
namespace {

using pricing::AdditionalChargeDialog;
using pricing::AdditionalChargesScreen;
using pricing::BulkChange;
using pricing::MoveProductsToVendor;
using pricing::VendorCostMethods;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto listName = "frmAdditionalCharges";
constexpr auto dialogName = "frmAdditionalCharges_Edit";

void select(ReportControl& items, std::int32_t ID) {
    const std::size_t row = *items.findRow(*items.findRecord(ID));
    items.userSelect(std::array{row}, row);
}

void pressDuplicate(AdditionalChargesScreen& list) {
    dynamic_cast<Button&>(*list.control("cmdDuplicate")).userPress();
}

TEST(PricingOnCompany, APromotionIsStoredListedDuplicatedDisabledAndDeleted) {
    ModuleStage stage;
    stage.desktop.answers.assign(9, MessageAnswer::Yes);
    stage.ui.edited = "Width > 96 and Product = 'Roller'";
    const auto column = [&](std::int32_t ID, const std::string& name) {
        return stage.value("SELECT " + name + " FROM AdditionalCharges WHERE ID = " + std::to_string(ID));
    };
    std::int32_t added = 0;
    stage.desktop.user<AdditionalChargeDialog>(dialogName, [](AdditionalChargeDialog& dialog) {
        EXPECT_GT(dialog.comboBox("cboCustomerType").entries().size(), 1U);
        EXPECT_GT(dialog.comboBox("cboSales").entries().size(), 1U);
        dialog.textBox("txtName").userType("Mother's day");
        dialog.textBox("txtCost").userType("1,000.50");
        dialog.comboBox("cboChargeMethod").choose(1);
        dialog.textBox("txtValue").userType("5");
        dialog.comboBox("cboGroup").userType("Spring");
        dialog.fieldOf("txtStart").date().userType("5/12/2030");
        dialog.fieldOf("txtEnd").date().userType("2030-05-01");
        dialog.cmdChange.userPress();
        dialog.chkVendor.userCheck(true);
        dialog.comboBox("cboVendor").userChoose(1);
        dialog.textBox("txtSequence").userType("2.4");
        dialog.cmdOK.userPress();
    });
    stage.desktop.user<AdditionalChargesScreen>(listName, [&](AdditionalChargesScreen& list) {
        list.cmdNew.userPress();
        added = list.selectedID();
        ASSERT_GT(added, 0);
        const std::size_t record = *list.rptItems.findRecord(added);
        EXPECT_EQ(list.rptItems.cell(record, 2),
                  "Flat rate of ($5.00).; Criteria: Width > 96 and Product = 'Roller'");
        EXPECT_EQ(list.rptItems.cell(record, 3), "5/12/2030");
        EXPECT_EQ(list.rptItems.cell(record, 4), "5/1/2030") << "an end before the start is shown as it is";

        pressDuplicate(list);
        const std::int32_t copy = list.selectedID();
        EXPECT_NE(copy, added);
        EXPECT_EQ(column(copy, "ChargeName"), "Mother's day 1");
        EXPECT_EQ(column(copy, "Value"), "-5");
        EXPECT_EQ(column(copy, "StartsOn"), column(added, "StartsOn"));
        EXPECT_NE(column(copy, "ChargeCode"), column(added, "ChargeCode"));
        EXPECT_EQ(column(copy, "Sequence"), "0") << "is not copied";

        stage.desktop.popupChoices = {28311};
        select(list.rptItems, copy);
        list.rptItems.userContextMenu(*list.rptItems.focusedRow());
        EXPECT_EQ(column(copy, "Enabled"), "0");
        list.cmdDelete.userPress();
        EXPECT_EQ(column(copy, "Enabled"), "-");
    });
    stage.library->ShowAdditionalCharges(2);
    const std::pair<const char*, const char*> stored[] = {{"ChargeType", "2"},
                                                          {"ChargeName", "Mother's day"},
                                                          {"Cost", "1000.5"},
                                                          {"Value", "-5"},
                                                          {"Enabled", "1"},
                                                          {"GroupName", "Spring"},
                                                          {"Category", "1"},
                                                          {"Sequence", "2"},
                                                          {"Criteria", "Width > 96 and Product = 'Roller'"},
                                                          {"CustomerTypeID", "-"},
                                                          {"SalesAccountID", "-"}};
    for (const auto& [name, value] : stored)
        EXPECT_EQ(column(added, name), value) << name;
    EXPECT_NE(column(added, "VendorID"), "-");
    EXPECT_EQ(stage.lastEvent(), "Additional charge 'Mother's day' was added.");
    EXPECT_THAT(stage.ui.shown, IsEmpty());
}

TEST(PricingOnCompany, ARefusedChargeKeepsItsInput) {
    ModuleStage stage;
    stage.desktop.user<AdditionalChargeDialog>(dialogName, [](AdditionalChargeDialog& dialog) {
        dialog.textBox("txtName").userType("N");
        dialog.textBox("txtCost").userType("much");  // an item price adjustment is not asked about its cost
        dialog.comboBox("cboChargeMethod").choose(1);
        dialog.textBox("txtValue").userType("5");
        dialog.cmdOK.userPress();
        EXPECT_TRUE(dialog.shown());
        EXPECT_EQ(dialog.textBox("txtCost").text(), "much");
    });
    EXPECT_EQ(stage.library->ShowEditAdditionalCharge(0, 4), 0);
    ASSERT_EQ(stage.ui.shown.size(), 1U);
    EXPECT_EQ(stage.ui.shown[0].text, "The additional charge 'N' could not be added.");
}

/// Makes customers with identifiers from 1001.
void addCustomers(ModuleStage& stage, int count) {
    std::string insert = "INSERT INTO Customers (ID, CustomerName, TaxExNumber) VALUES ";
    for (int i = 1; i <= count; ++i)
        insert += (i == 1 ? "(" : ", (") + std::to_string(1000 + i) + ", 'Customer " + std::to_string(i) +
                  "', 'X')";
    stage.run(insert);
}

TEST(PricingOnCompany, OfTwoHundredCustomersThreeRefuseABulkChange) {
    ModuleStage stage;
    addCustomers(stage, 199);  // the last one selected is gone
    stage.refuse("UPDATE ON Customers WHEN OLD.ID IN (1003, 1100)");
    std::string selection;
    for (int i = 1; i <= 200; ++i)
        selection += (i == 1 ? "" : ",") + std::to_string(1000 + i);
    stage.ui.replies = {{.answer = MessageAnswer::Yes}};
    stage.desktop.user<BulkChange>("frmBulkChange", [](BulkChange& screen) {
        screen.optC_ClearTaxEx.userSelect();
        screen.cmdOK.userPress();
    });
    EXPECT_FALSE(stage.library->ShowBulkChange(1, selection));
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM Customers WHERE ID > 1000 AND TaxExNumber = ''"), "197");
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM Customers WHERE ID IN (1003, 1100) AND TaxExNumber = 'X'"),
              "2");
    const std::string rest =
        "] could not have its tax exemtion number cleared via Bulk Change. More information to follow.";
    EXPECT_THAT(stage.events(), ElementsAre("Customer [Customer 3" + rest, "Customer [Customer 100" + rest,
                                            "Customer [1200" + rest));
    ASSERT_EQ(stage.ui.shown.size(), 2U);
    EXPECT_EQ(stage.ui.shown[0].buttons, MessageButtons::YesNo);
    EXPECT_TRUE(stage.ui.shown[1].text.starts_with("Problems were encountered"));
}

TEST(PricingOnCompany, BulkChangesSetTaxGroupsAndDeleteOrders) {
    ModuleStage stage;
    addCustomers(stage, 2);
    stage.run("INSERT INTO Orders (ID, OrderNumber) VALUES (2001, 77)");
    const auto change = [&](int kind, const char* selection, const std::function<void(BulkChange&)>& choose) {
        stage.ui.replies = {{.answer = MessageAnswer::Yes}};
        stage.desktop.user<BulkChange>("frmBulkChange", [&](BulkChange& screen) {
            choose(screen);
            screen.cmdOK.userPress();
        });
        EXPECT_FALSE(stage.library->ShowBulkChange(kind, selection));
        EXPECT_EQ(stage.ui.shown.back().text, "Bulk change has completed");
    };
    change(1, "1001,1002", [](BulkChange& screen) {
        screen.optC_ChangeTaxGroup.userSelect();
        screen.cboC_TaxGroup.userChoose(0);
    });
    EXPECT_NE(stage.value("SELECT SalesTaxGroupID FROM Customers WHERE ID = 1002"), "-");
    change(1, "1002", [](BulkChange& screen) { screen.optC_ChangeTaxGroup.userSelect(); });
    EXPECT_EQ(stage.value("SELECT SalesTaxGroupID FROM Customers WHERE ID = 1002"), "-");
    change(1, "1001", [](BulkChange& screen) { screen.optC_ChangeExportedStatus.userSelect(); });
    EXPECT_EQ(stage.value("SELECT Exported FROM Customers WHERE ID = 1001"), "1");
    change(4, "2001", [](BulkChange& screen) { screen.optO_Delete.userSelect(); });
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM Orders WHERE ID = 2001"), "0");
}

TEST(PricingOnCompany, ProductsMoveWithRightCounts) {
    ModuleStage stage;
    stage.run("DELETE FROM ProductVendors");
    stage.run(
        "INSERT INTO ProductVendors (ProductID, VendorID, IsDefault) VALUES "
        "(1, 2, 1), (2, 2, 1), (3, 2, 0), (3, 4, 1), (4, 4, 1), (5, 4, 1)");
    stage.ui.searched = 4;
    stage.desktop.user<MoveProductsToVendor>("frmMoveProductsToVendor", [](MoveProductsToVendor& screen) {
        screen.cmdSelect.userPress();
        EXPECT_EQ(plainText(screen.lblFromCount.caption()), "Current vendor has 2 default products");
        EXPECT_EQ(plainText(screen.lblToCount.caption()), "The new vendor currently has 3 default products");
        EXPECT_EQ(plainText(screen.lblAfter.caption()),
                  "After the move the new vendor will have 5 default products");
        screen.cmdOK.userPress();
    });
    EXPECT_FALSE(stage.library->ShowMoveProductsToVendor(2));
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM ProductVendors WHERE VendorID = 4 AND IsDefault <> 0"), "5");
    EXPECT_EQ(stage.value("SELECT ProductID FROM ProductVendors WHERE VendorID = 2"), "3")
        << "not its default";
    ASSERT_EQ(stage.ui.searches.size(), 1U);
    EXPECT_EQ(stage.ui.searches[0].title, "Select Vendor");
    for (const ListedRecord& vendor : stage.ui.searches[0].records)
        EXPECT_NE(vendor.cells[0], "(None)");
}

TEST(PricingOnCompany, TheCostMethodsOfVendorsAreSet) {
    ModuleStage stage;
    stage.desktop.user<VendorCostMethods>("frmVendorCostMethods", [](VendorCostMethods& screen) {
        for (std::size_t row = 0; row < screen.rptItems.rowCount(); ++row)
            EXPECT_NE(screen.rptItems.rowText(row, 0), "(None)");
        EXPECT_EQ(screen.rptItems.rowText(0, 1), "Price from Product");
        screen.rptItems.userEdit(0, 1, "Cost from Product");
        screen.cmdOK.userPress();
    });
    const std::string others = stage.value("SELECT SUM(CostMethod) FROM Vendors WHERE ID <> 2");
    EXPECT_FALSE(stage.library->ShowVendorCostMethods());
    EXPECT_EQ(stage.value("SELECT VendorName FROM Vendors WHERE ID = 2 AND CostMethod = 2"),
              "Aldermoor Blind Works");
    EXPECT_EQ(stage.value("SELECT SUM(CostMethod) FROM Vendors WHERE ID <> 2"), others);

    // A refusal is shown with the database's words.
    stage.refuse("UPDATE ON Vendors");
    stage.desktop.user<VendorCostMethods>("frmVendorCostMethods", [](VendorCostMethods& screen) {
        screen.rptItems.userEdit(0, 1, "% of MSRP");
        screen.cmdOK.userPress();
        EXPECT_TRUE(screen.shown());
    });
    EXPECT_TRUE(stage.library->ShowVendorCostMethods());
    ASSERT_EQ(stage.ui.shown.size(), 1U);
    EXPECT_EQ(stage.ui.shown[0].text, "Payment method 'Aldermoor Blind Works' could not be saved. (3738)");
    EXPECT_EQ(stage.ui.shown[0].detail, "Refused");
}

}  // namespace
}  // namespace tsln::workbench
