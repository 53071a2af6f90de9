#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/utils.h>

#include "doubles/RecordingHost.h"
#include "module/Module.h"
#include "options/DetailSettings.h"
#include "options/OptionCallouts.h"
#include "options/ScanProducts.h"
#include "screens/Job.h"
#include "tests/desktop/Robot.h"

namespace tsln::desktop::test {
namespace {

using options::DetailList;
using options::DetailSettings;
using options::OptionCalloutDialog;
using options::ScanProducts;
using testing::ElementsAre;
using testing::StartsWith;
using tsln::test::makeDocument;
using tsln::test::RecordingHost;

/// A library between real windows and a recording host.
class OptionWindows : public testing::Test {
  protected:
    OptionWindows() {
        plugInModule(library);
        library.Initialize(host->sharedCode());
    }

    std::shared_ptr<RecordingHost> host = RecordingHost::make();
    WxDesktop desktop{[this](std::string_view programId) { return host->component(programId); }, ""};
    Library library{desktop};
};

TEST_F(OptionWindows, SettingsAreFilteredEditedSequencedAndSavedByTheKeyboard) {
    host->rows(
        "SELECT * FROM OptionDetailSettings WHERE Location = 0 ORDER BY Sequence, OptionName",
        "<Records><Record><ID>1</ID><OptionName>Room Location</OptionName><Prefix>Room</Prefix>"
        "<Sequence>1</Sequence><Show>1</Show></Record>"
        "<Record><ID>2</ID><OptionName>Lift</OptionName><Sequence>9999</Sequence><Show>0</Show></Record>"
        "</Records>");
    DetailSettings screen(library);
    ReportControl& items = screen.current().rptItems;
    screen.load();
    Robot user(screen);
    user.until("the rows", [&] { return items.rowCount() == 2; });
    user.until("the list has the keyboard", [&] { return user.focused() == &items; });
    user.key(WXK_HOME).until("the first row", [&] { return items.focusedRow() == 0; });
    user.key(WXK_F2).pause().type("Rm").key(WXK_RETURN);  // F2 skips the box and the name
    user.until("a prefix", [&] { return items.cell(0, DetailList::Prefix) == "Rm"; });
    // The toolkit's list takes the first arrow key after an edit for itself.
    user.pause().key(WXK_DOWN).pause().key(WXK_DOWN);
    user.until("the second row", [&] { return items.focusedRow() == 1; });
    user.key(WXK_SPACE).until("ticked", [&] { return items.checked(1, DetailList::Show); });

    user.key('N', wxMOD_ALT).until("a new row", [&] { return items.rowCount() == 3; });
    user.pause().type("Motor").key(WXK_RETURN);  // the editor of its name is open
    user.until("a name", [&] { return items.cell(2, DetailList::Name) == "Motor"; });
    user.key('A', wxMOD_CONTROL).until("all rows", [&] { return items.selectedRows().size() == 3; });
    user.key('M', wxMOD_ALT).pause().key('A');
    user.until("a sequence", [&] { return items.cell(2, DetailList::Sequence) == "3"; });

    user.click(screen.txtFilter).type("oo").until("one row", [&] { return items.rowCount() == 1; });
    user.then([&] { EXPECT_EQ(screen.lblRecords.caption(), "1 items"); });
    user.click(screen.cmdOK).show();
    EXPECT_FALSE(screen.Cancelled);
    EXPECT_THAT(
        host->callsOf("CurrentCompanyConn.Execute"),
        ElementsAre(
            StartsWith(
                "UPDATE OptionDetailSettings SET Sequence = 1, Show = 1, OptionName = 'Room Location', "
                "Prefix = 'Rm', isBold = 0 WHERE ID = 1"),
            StartsWith(
                "UPDATE OptionDetailSettings SET Sequence = 2, Show = 1, OptionName = 'Lift', Prefix = "
                "'', isBold = 0 WHERE ID = 2"),
            "INSERT INTO OptionDetailSettings (Location,Sequence,Show,OptionName,Prefix,isBold) "
            "VALUES(0,3,1,'Motor','',0)"));
}

TEST_F(OptionWindows, AWrongSequenceIsToldAndTheOldOneStays) {
    host->rows(
        "SELECT * FROM OptionDetailSettings WHERE Location = 0 ORDER BY Sequence, OptionName",
        "<Records><Record><ID>1</ID><OptionName>Lift</OptionName><Prefix>L</Prefix><Sequence>7</Sequence>"
        "<Show>1</Show></Record></Records>");
    DetailSettings screen(library);
    ReportControl& items = screen.current().rptItems;
    screen.load();
    Robot user(screen);
    user.until("the row", [&] { return items.rowCount() == 1; });
    user.until("the list has the keyboard", [&] { return user.focused() == &items; });
    user.key(WXK_HOME).until("the first row", [&] { return items.focusedRow() == 0; });
    user.key(WXK_F2).pause().key(WXK_TAB).pause().type("soon").key(WXK_RETURN);
    user.until("a message", [&] { return user.dialog() && !user.dialog()->IsActive(); }).pause();
    user.key(WXK_RETURN).pause();
    user.then([&] { EXPECT_EQ(items.rowText(0, DetailList::Sequence), "7"); });
    user.key(WXK_ESCAPE).show();
    EXPECT_TRUE(screen.Cancelled);
}

TEST_F(OptionWindows, AScanShowsItsProgressAndEscKeepsWhatItHas) {
    constexpr int products = 200;
    std::string rows = "<Records>";
    for (int i = 1; i <= products; ++i)
        rows += "<Record><ID>" + std::to_string(i) + "</ID><Product>Product " + std::to_string(i) +
                "</Product></Record>";
    host->rows("SELECT ID, Product FROM Products WHERE Active <> 0 ORDER BY Product", rows + "</Records>");
    host->on("Database.ExecuteScaler", Variant(products));
    host->on("Common.GetProductFileFromID2", Variant("/products/any"));
    host->on("catalog5engine.Engine.UseProductFile", [](Arguments) {
        wxMilliSleep(20);
        return Variant(true);
    });
    host->on("catalog5engine.Engine.XMLDocument", [](Arguments) {
        return Variant(
            makeDocument("<Product><Styles><Style><Options><Option Name='A' "
                         "ShowInDescription2='0'/></Options></Style></Styles></Product>"));
    });
    ScanProducts screen(library);
    ASSERT_TRUE(screen.prepare());
    screen.load();
    Robot user(screen);
    user.until("progress", [&] { return screen.ProgressBar1.value() > 10; });
    user.then([&] { EXPECT_THAT(screen.lblProduct.caption(), StartsWith("Product ")); });
    user.key(WXK_ESCAPE).show();
    const auto added = host->callsOf("TSLNSQL.ExecuteNonQuery").size();
    EXPECT_GT(added, 10U);
    EXPECT_LT(added, static_cast<std::size_t>(products));
    EXPECT_EQ(host->callsOf("catalog5engine.Engine.PreTerminate").size(), 1U);
}

TEST_F(OptionWindows, TheExampleFollowsTheSettingsOfACallout) {
    OptionCalloutDialog dialog(library, options::optionCalloutsList);
    dialog.load();
    ASSERT_TRUE(dialog.open(0));
    Robot user(dialog);
    user.until("focus", [&] { return user.focused() == &dialog.textBox("txtOption"); });
    user.type("pattern").key('W', wxMOD_ALT);
    user.until("the condition", [&] { return user.focused() == &dialog.comboBox("cboWhen"); });
    user.key(WXK_DOWN).until("if empty", [&] { return dialog.comboBox("cboWhen").chosen() == 1; });
    user.until("marked", [&] { return dialog.rptExample.rowText(1, 2) == "255"; });
    user.key('M', wxMOD_ALT).type("Ask");
    user.click(dialog.cmdOK).show();
    EXPECT_THAT(host->callsOf("Database.ExecuteNonQueryWithID"),
                ElementsAre(testing::HasSubstr("VALUES(NULL,NULL,'','pattern',255,1,'','Ask')")));
}

}  // namespace
}  // namespace tsln::desktop::test
