#include "doubles/Stage.h"
#include "entities/UpdateOrderInformation.h"

namespace tsln::test {
namespace {

using entities::UpdateOrderInformation;

constexpr auto screenName = "frmUpdateOrderInformation";

struct OrderStage : Stage {
    OrderStage() {
        host->rows(
            "SELECT CustomerName, SalesRepID, InstallerID, DesignerID, BillToAddress1, BillToAddress2, BillToCity, BillToState, BillToZip, BillToCountry FROM Customers WHERE (ID = 7)",
            "<Records><Record><CustomerName>Cinder &amp; Ash</CustomerName><SalesRepID>3</SalesRepID><InstallerID>4</InstallerID>"
            "<BillToAddress1>1 O'Mill</BillToAddress1><BillToAddress2>b2</BillToAddress2><BillToCity>Reno</BillToCity>"
            "<BillToState>NV</BillToState><BillToZip>89501</BillToZip><BillToCountry>USA</BillToCountry></Record></Records>");
        host->rows("SELECT * FROM CustomerAddresses WHERE CustomerID = 7",
                   "<Records><Record><ID>1</ID><AddressLabel>Dock</AddressLabel><Address1>Dock 2</Address1>"
                   "<City>Elko</City></Record></Records>");
        host->on("Common.GetEmployeeName", [](Arguments a) { return Variant("Employee " + a[0].toText()); });
    }
    template <class Act>
    void update(Act act) {
        desktop.user<UpdateOrderInformation>(screenName, act);
        library->ShowUpdateOrderInformation(7);
    }
};

TEST(UpdateOrderInformation, ShowsWhatTheCustomerHasNow) {
    OrderStage stage;
    stage.update([](UpdateOrderInformation& screen) {
        EXPECT_EQ(screen.lblCustomer.caption(), "Quotes and orders of Cinder && Ash:");
        EXPECT_EQ(screen.lblRep.caption(), "Employee 3");
        EXPECT_EQ(screen.lblInstaller.caption(), "Employee 4");
        EXPECT_EQ(screen.lblDesigner.caption(), "(none)");
        EXPECT_EQ(screen.cboAddress.text(), "Billing Address");
        EXPECT_EQ(screen.txtAddress.text(), "1 O'Mill\r\nb2\r\nReno\r\nNV\r\n89501\r\nUSA");
        screen.cboAddress.userChoose(1);
        EXPECT_EQ(screen.txtAddress.text(), "Dock 2\r\nElko");
        std::string scopes;
        for (const ComboBox::Entry& scope : screen.cboScope.entries())
            scopes += scope.text + ";";
        EXPECT_EQ(scopes, "All quotes;All sales;All quotes and sales;");
    });
    EXPECT_THAT(stage.executed(), IsEmpty());
}

TEST(UpdateOrderInformation, TheStatementIsJoinedFromTheTickedParts) {
    using Screen = UpdateOrderInformation;
    const std::pair<std::function<void(Screen&)>, const char*> cases[] = {
        {[](Screen& s) { s.chkInstallationAddress.userCheck(true); },
         "UPDATE Orders SET ShipToAddress1 = '1 O''Mill', ShipToAddress2 = 'b2', ShipToCity = 'Reno', ShipToState = 'NV', ShipToZip = '89501', ShipToCountry = 'USA' WHERE CustomerID = 7 "},
        {[](Screen& s) {
             s.chkInstallationAddress.userCheck(true);
             s.cboAddress.userChoose(1);
             s.chkSalesRep.userCheck(true);
         },
         "UPDATE Orders SET ShipToAddress1 = 'Dock 2', ShipToAddress2 = '', ShipToCity = 'Elko', ShipToState = '', ShipToZip = '', ShipToCountry = '', SalesRepID = 3 WHERE CustomerID = 7 "},
        {[](Screen& s) {
             s.chkSalesRep.userCheck(true);
             s.chkInstaller.userCheck(true);
             s.chkDesigner.userCheck(true);
             s.chkActive.userCheck(true);
         },
         "UPDATE Orders SET SalesRepID = 3, InstallerID = 4, DesignerID = NULL WHERE CustomerID = 7  Active <> 0 "},
        {[](Screen& s) {
             s.chkInstaller.userCheck(true);
             s.cboScope.userChoose(0);
         },
         "UPDATE Orders SET InstallerID = 4 WHERE CustomerID = 7 AND State = 1 "},
        {[](Screen& s) {
             s.chkInstaller.userCheck(true);
             s.cboScope.userChoose(1);
         },
         "UPDATE Orders SET InstallerID = 4 WHERE CustomerID = 7 AND State > 1 "},
    };
    for (const auto& [choose, expected] : cases) {
        OrderStage stage;
        stage.update([&](Screen& screen) {
            choose(screen);
            screen.cmdOK.userPress();
            EXPECT_FALSE(screen.shown());
        });
        EXPECT_THAT(stage.executed(), ElementsAre(expected));
        EXPECT_THAT(stage.desktop.boxes, ElementsAre(information("The quotes/orders have been updated.")));
    }
}

TEST(UpdateOrderInformation, NothingToChangeAndARefusedStatementAreToldAndTheScreenStays) {
    OrderStage stage;
    stage.host->on("Database.ExecuteNonQuery", Variant(false));
    stage.update([&](UpdateOrderInformation& screen) {
        screen.cmdOK.userPress();
        EXPECT_THAT(stage.executed(), IsEmpty());
        screen.chkDesigner.userCheck(true);
        screen.cmdOK.userPress();
        EXPECT_TRUE(screen.shown());
        EXPECT_TRUE(screen.chkDesigner.checked());
    });
    EXPECT_THAT(stage.desktop.boxes, ElementsAre(exclamation("You must select something to change.")));
    EXPECT_THAT(stage.host->callsOf("ShowErrorMessage"),
                ElementsAre(explained("The quotes/orders could not be updated.")));
}

TEST(UpdateOrderInformation, ACustomerThatIsGoneIsToldOf) {
    Stage stage;
    stage.library->ShowUpdateOrderInformation(8);
    EXPECT_THAT(stage.desktop.shown, IsEmpty());
    EXPECT_THAT(stage.desktop.boxes, ElementsAre(exclamation("This customer no longer exists.")));
}

}  // namespace
}  // namespace tsln::test
