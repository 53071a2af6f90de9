#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/toplevel.h>
#include <wx/utils.h>

#include "doubles/RecordingHost.h"
#include "module/Module.h"
#include "pricing/AdditionalCharge.h"
#include "pricing/AdditionalCharges.h"
#include "pricing/BulkChange.h"
#include "pricing/MoveProducts.h"
#include "pricing/VendorCostMethods.h"
#include "screens/Job.h"
#include "tests/desktop/Robot.h"

namespace tsln::desktop::test {
namespace {

using namespace pricing;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using tsln::test::RecordingHost;

/// A library between real windows and a recording host.
class PricingWindows : public testing::Test {
  protected:
    PricingWindows() {
        plugInModule(library);
        library.Initialize(host->sharedCode());
    }
    static void untilMessage(Robot& user) {
        user.until("a message", [&user] { return user.dialog() && !user.dialog()->IsActive(); }).pause();
    }

    std::shared_ptr<RecordingHost> host = RecordingHost::make();
    WxDesktop desktop{[this](std::string_view programId) { return host->component(programId); }, ""};
    Library library{desktop};
};

TEST_F(PricingWindows, APromotionEnteredAsFiveIsStoredAsMinusFive) {
    AdditionalChargeDialog dialog(library, 2);
    ASSERT_TRUE(dialog.open(0));
    dialog.load();
    Robot user(dialog);
    const auto untilFocused = [&](Control& control) {
        user.until("focus on " + control.name(), [&user, &control] { return user.focused() == &control; });
    };
    untilFocused(dialog.textBox("txtName"));
    user.type("Spring").key('O', wxMOD_ALT);
    untilFocused(dialog.textBox("txtCost"));
    user.type("2").key('M', wxMOD_ALT);
    untilFocused(dialog.comboBox("cboChargeMethod"));
    user.key(WXK_DOWN).until("a method", [&] { return dialog.comboBox("cboChargeMethod").chosen() == 1; });
    user.key('V', wxMOD_ALT);
    untilFocused(dialog.textBox("txtValue"));
    user.type("7").key(WXK_TAB).until("the sign", [&] { return dialog.textBox("txtValue").text() == "-7"; });
    user.key('V', wxMOD_ALT);
    untilFocused(dialog.textBox("txtValue"));
    user.key('A', wxMOD_CONTROL).type("5").key(WXK_RETURN);  // OK, with the focus still in the box
    untilMessage(user);                                      // a negative value is not taxable
    user.key(WXK_ESCAPE);
    untilFocused(dialog.textBox("txtValue"));
    user.key('T', wxMOD_ALT).until("taxable", [&] { return dialog.checkBox("chkTaxable").checked(); });
    user.key(WXK_PAGEDOWN, wxMOD_CONTROL).until("rules", [&] { return dialog.TabControl1.selected() == 1; });
    user.key('T', wxMOD_ALT).until("limited", [&] { return dialog.comboBox("cboCustomerType").enabled(); });
    user.key(WXK_RETURN).show();
    EXPECT_FALSE(dialog.Cancelled);
    EXPECT_THAT(host->callsOf("Database.ExecuteNonQueryWithID"),
                ElementsAre(HasSubstr("'Spring', '', '2', 1, '-5', 1, ")));
}

TEST_F(PricingWindows, TheSearchForAFreeNameTakesCancelAndKeepsDrawing) {
    host->rows("SELECT * FROM AdditionalCharges WHERE ChargeType = 8 ORDER BY GroupName,Sequence,ChargeName",
               "<Records><Record><ID>1</ID><GroupName>Lifts</GroupName><ChargeName>Lift</ChargeName>"
               "<ChargeMethod>1</ChargeMethod><Value>5</Value><Enabled>1</Enabled></Record></Records>");
    host->rows("SELECT * FROM AdditionalCharges WHERE ID = 1",
               "<Records><Record><ChargeName>Lift</ChargeName></Record></Records>");
    host->on("Database.ExecuteScaler", Variant(1));  // every name is taken
    AdditionalChargesScreen list(library, chargesList(ChargeType::AdditionalCharge),
                                 ChargeType::AdditionalCharge);
    list.load();
    Robot user(list);
    user.until("the rows", [&] { return list.rptItems.rowCount() == 2; });
    user.until("the list has the keyboard", [&] { return user.focused() == &list.rptItems; });
    user.key(WXK_END).until("the charge", [&] { return list.selectedID() == 1; });
    for (const bool byEsc : {true, false}) {
        user.key('U', wxMOD_ALT).until("the search runs", [&] { return list.job() != nullptr; });
        user.until("Cancel is drawn", [&] { return user.windowOf(list.cmdCancelSearch)->IsShownOnScreen(); });
        if (byEsc) {
            user.key(WXK_ESCAPE);
        } else {
            user.click(list.cmdCancelSearch);
        }
        user.until("the search has ended", [&] { return !list.job(); });
        user.until("Cancel is gone", [&] { return !user.windowOf(list.cmdCancelSearch)->IsShownOnScreen(); });
    }
    user.key(WXK_ESCAPE).show();
    EXPECT_TRUE(list.closedByClose);
    EXPECT_GT(host->callsOf("Database.ExecuteScaler").size(), 10U);
    EXPECT_THAT(host->callsOf("Database.ExecuteNonQueryWithID"), IsEmpty());
}

TEST_F(PricingWindows, ABulkChangeShowsItsProgressAndCanBeCancelled) {
    host->on("ShowMessageStyle1", Variant(6));  // Yes
    int done = 0;
    host->on("CurrentCompanyConn.Execute", [&](Arguments a) -> Variant {
        wxMilliSleep(5);
        if (++done % 60 == 0) throw HostError(code::fail, "Connection", "in use");
        a.assign(1, 1);
        return ObjectPtr();
    });
    std::string selection = "1";
    for (int i = 2; i <= 200; ++i)
        selection += "," + std::to_string(i);
    for (const bool cancels : {false, true}) {
        done = 0;
        host->forget();
        BulkChange screen(library);
        ASSERT_TRUE(screen.initialize(1, selection));
        screen.load();
        Robot user(screen);
        user.until("focus", [&] { return user.focused() == &screen.optC_ChangeExportedStatus; });
        user.key('C', wxMOD_ALT).until("an action", [&] { return screen.optC_ClearTaxEx.selected(); });
        user.key(WXK_RETURN).until("progress", [&] { return done > 20; });
        if (cancels) user.key(WXK_ESCAPE);
        if (cancels) untilMessage(user);
        if (cancels) user.key(WXK_RETURN);
        user.show();
        EXPECT_FALSE(screen.Cancelled);
        if (cancels) {
            EXPECT_LT(done, 200);
        } else {
            EXPECT_EQ(done, 200);
            EXPECT_EQ(host->callsOf("RecordEvent").size(), 3U);
            EXPECT_THAT(host->callsOf("ShowMessageStyle1").back(),
                        testing::StartsWith("Problems were encountered"));
        }
    }
}

TEST_F(PricingWindows, TheGridOfCostMethodsIsEditedByTheKeyboard) {
    host->rows(
        "SELECT ID, VendorName, CostMethod FROM Vendors WHERE VendorName <> '(None)' ORDER BY VendorName",
        "<Records><Record><ID>1</ID><VendorName>Alder</VendorName><CostMethod>1</CostMethod></Record>"
        "<Record><ID>2</ID><VendorName>Bright</VendorName><CostMethod>1</CostMethod></Record></Records>");
    host->on("Common.GetVendorCostMethodName", Variant("% of MSRP"));
    VendorCostMethods screen(library);
    screen.load();
    Robot user(screen);
    user.until("the rows", [&] { return screen.rptItems.rowCount() == 2; });
    user.until("the grid has the keyboard", [&] { return user.focused() == &screen.rptItems; });
    user.key(WXK_END).key(WXK_F2).pause().key(WXK_DOWN).key(WXK_RETURN);
    user.until("edited", [&] { return screen.rptItems.rowText(1, 1) == "Cost from Product"; });
    user.click(screen.cmdOK).show();
    EXPECT_FALSE(screen.Cancelled);
    EXPECT_THAT(host->callsOf("CurrentCompanyConn.Execute"),
                ElementsAre("UPDATE Vendors SET CostMethod = 2 WHERE ID = 2"));
}

TEST_F(PricingWindows, ProductsMoveToTheVendorThatTheSearchSelects) {
    host->on("TSLNSQL.ExecuteScaler", [](Arguments a) {
        return a[0].toText().find("COUNT") == std::string::npos ? Variant("Alder") : Variant(3);
    });
    host->on("ShowSelectBySearch", Variant(5));
    MoveProductsToVendor screen(library);
    ASSERT_TRUE(screen.initialize(2));
    screen.load();
    Robot user(screen);
    user.until("focus", [&] { return user.focused() == &screen.cmdSelect; });
    user.key('S', wxMOD_ALT).until("selected", [&] { return screen.cmdOK.enabled(); });
    user.then([&] { EXPECT_TRUE(user.windowOf(screen.lblAfter)->GetSize().y > 5); });
    user.key(WXK_RETURN);
    untilMessage(user);
    user.key(WXK_RETURN).show();
    EXPECT_FALSE(screen.Cancelled);
    EXPECT_THAT(host->callsOf("Database.ExecuteNonQuery"),
                ElementsAre("UPDATE ProductVendors SET VendorID = 5 WHERE VendorID = 2 AND IsDefault <> 0"));
}

}  // namespace
}  // namespace tsln::desktop::test
