#include "lists/SalesTaxGroupCodes.h"
#include "lists/SalesTaxGroups.h"
#include "maintenance/RecordDialog.h"
#include "tests/lists/Acts.h"

namespace tsln::test {
namespace {

using lists::SalesTaxGroupCodes;
using lists::SalesTaxGroupsScreen;

std::string detailsOf(int group) {
    return "SELECT SalesTaxCodes.Code, SalesTaxCodes.Rate, SalesTaxCodes.Vendor FROM SalesTaxGroupCodes "
           "INNER JOIN SalesTaxCodes ON SalesTaxGroupCodes.SalesTaxCodeID = SalesTaxCodes.ID "
           "WHERE (SalesTaxGroupCodes.SalesTaxGroupID = " +
           std::to_string(group) + ")";
}

constexpr auto welcomed =
    "Sales sales groups are made up of one or more sales tax codes., In the Kestrane Tessaline a customer is assigned a sales tax group. A sales tax group is made up of one or  more sales tax codes.\r\n\r\nUse the Manage Tax Codes button to create individual tax codes. Then use the Assign Tax Codes button to assign those codes to the selected tax group.";

/// A company with the groups 7 and 8. Group 7 has two of the three codes, 1 and 2.
void fill(Stage& stage) {
    stage.host->rows("SELECT * FROM SalesTaxGroups ORDER BY SalesTaxGroup",
                     "<Records><Record><ID>7</ID><SalesTaxGroup>Merriden</SalesTaxGroup></Record>"
                     "<Record><ID>8</ID><SalesTaxGroup>Oxbow</SalesTaxGroup></Record></Records>");
    stage.host->rows("SELECT * FROM SalesTaxGroups WHERE ID = 7",
                     "<Records><Record><ID>7</ID><SalesTaxGroup>Merriden</SalesTaxGroup>"
                     "<Description>here</Description><Exported>1</Exported></Record></Records>");
    stage.host->rows(detailsOf(7),
                     "<Records><Record><Code>STATE</Code><Rate>6.0</Rate><Vendor>State</Vendor></Record>"
                     "<Record><Code>CTY</Code><Rate>1.5</Rate></Record></Records>");
    stage.host->rows("SELECT ID, Code, Rate, Vendor FROM SalesTaxCodes",
                     "<Records><Record><ID>1</ID><Code>STATE</Code><Rate>6.0</Rate><Vendor>State</Vendor>"
                     "</Record><Record><ID>2</ID><Code>CTY</Code><Rate>1.5</Rate></Record>"
                     "<Record><ID>3</ID><Code>LAKES</Code><Rate>0.1</Rate></Record></Records>");
    stage.host->rows("SELECT SalesTaxCodeID FROM SalesTaxGroupCodes WHERE SalesTaxGroupID = 7",
                     "<Records><Record><SalesTaxCodeID>1</SalesTaxCodeID></Record><Record>"
                     "<SalesTaxCodeID>2</SalesTaxCodeID></Record></Records>");
    stage.host->on("Database.ExecuteScaler", Variant(3));
    stage.host->on("Database.ExecuteNonQueryWithID", Variant(7));
}

TEST(SalesTaxGroups, TheCodesAndTheCombinedRateOfTheSelectedGroupAreShown) {
    Stage stage;
    fill(stage);
    stage.desktop.user<SalesTaxGroupsScreen>("frmSalesTaxGroups", [&](SalesTaxGroupsScreen& list) {
        EXPECT_EQ(list.lblCodes.caption(), "Sales tax codes for the selected sales tax group: ");
        EXPECT_FALSE(list.cmdAssignTaxCodes.enabled());
        EXPECT_EQ(list.lblCombinedRate.caption(), "Combined rate:");
        selectRows(list.rptItems, {0});
        ASSERT_EQ(list.rptCodes.rowCount(), 2U);
        EXPECT_EQ(list.rptCodes.rowText(0, 2), "State");
        EXPECT_EQ(list.lblCombinedRate.caption(), "Combined rate: 7.5");
        EXPECT_TRUE(list.cmdAssignTaxCodes.enabled());
        selectRows(list.rptItems, {1});
        EXPECT_EQ(list.rptCodes.rowCount(), 0U);
        EXPECT_EQ(list.lblCombinedRate.caption(), "Combined rate: 0");
        stage.host->on("CurrentCompanyConn", Variant(ObjectPtr()));
        selectRows(list.rptItems, {0});
        EXPECT_EQ(list.lblCombinedRate.caption(), "Combined rate:")
            << "without a connection no rate is shown";
        list.cmdDelete.userPress();
    });
    stage.library->ShowSalesTaxGroups();
    EXPECT_THAT(stage.host->callsOf("ShowMessageStyle1WithMemory"), ElementsAre(welcomed));
    EXPECT_THAT(stage.desktop.boxes, IsEmpty());
    EXPECT_THAT(stage.executed(), ElementsAre("DELETE FROM SalesTaxGroups WHERE ID = 7"));
}

TEST(SalesTaxGroups, AFirstTimeUserIsLedFromCodesToAGroup) {
    for (const bool makesACode : {true, false}) {
        Stage stage;
        fill(stage);
        int codes = 0;
        stage.host->on("Database.ExecuteScaler", [&](Arguments a) {
            EXPECT_EQ(a[0].toText(), "SELECT COUNT(*) AS MyCount FROM SalesTaxCodes");
            return Variant(codes);
        });
        stage.desktop.user<ListScreen>("frmSalesTaxCodes", [&](ListScreen&) { codes = makesACode ? 1 : 0; });
        stage.desktop.user<RecordDialog>("frmSalesTaxGroups_Edit", [](RecordDialog& dialog) {
            EXPECT_EQ(dialog.caption(), "New Sales Tax Group");
            dialog.cmdOK.userPress();
            enter(dialog, "txtSalesTaxGroup", "O'Neil");
            enter(dialog, "txtDescription", "all");
            dialog.cmdOK.userPress();
        });
        stage.library->ShowSalesTaxGroups();

        const Box start = information(
            "Since you don't have any sales tax codes defined yet the Sales Tax Codes screen will open to allow you enter the individual tax codes first.");
        if (!makesACode) {
            EXPECT_THAT(stage.desktop.boxes, ElementsAre(start));
            EXPECT_THAT(stage.desktop.shown, ElementsAre("frmSalesTaxGroups", "frmSalesTaxCodes"));
            continue;
        }
        EXPECT_THAT(stage.desktop.shown, ElementsAre("frmSalesTaxGroups", "frmSalesTaxCodes",
                                                     "frmSalesTaxGroups_Edit", "frmSalesTaxGroupCodes"));
        EXPECT_THAT(
            stage.desktop.boxes,
            ElementsAre(start, exclamation("You must enter valid sales tax group name."),
                        information("You need to assign at least one sales tax code to a sales tax group.")));
        EXPECT_THAT(
            stage.host->callsOf("ShowMessageStyle1"),
            ElementsAre(
                "Now that you have created at least one sales tax code you should create at least one sales tax group to use that code., If you only have one sales tax code or don't want to calculate different rates for one customer then you can just give the sales tax group name the same name as the tax code."));
        EXPECT_THAT(
            stage.inserted(),
            ElementsAre(
                "INSERT INTO SalesTaxGroups (SalesTaxGroup,Description,Exported) VALUES('O''Neil', 'all',0)"));
    }
}

TEST(SalesTaxGroupCodes, TheTickedCodesReplaceTheGroupsCodes) {
    struct Case {
        std::vector<std::size_t> toggled;
        std::vector<int> saved;
    };
    for (const Case& c : {Case{{}, {1, 2}}, Case{{0, 2}, {2, 3}}, Case{{0, 1}, {}}}) {
        Stage stage;
        fill(stage);
        stage.desktop.user<SalesTaxGroupCodes>("frmSalesTaxGroupCodes", [&](SalesTaxGroupCodes& screen) {
            EXPECT_EQ(screen.caption(), "Sales Tax Codes of Merriden");
            ASSERT_EQ(screen.lstCodes.entries().size(), 3U);
            for (const std::size_t i : c.toggled)
                screen.lstCodes.userTick(i, !screen.lstCodes.entries()[i].ticked);
            screen.cmdOK.userPress();
            EXPECT_FALSE(screen.shown());
        });
        EXPECT_FALSE(stage.library->ShowSalesTaxGroupCodes(7));
        std::vector<std::string> statements{"DELETE FROM SalesTaxGroupCodes WHERE SalesTaxGroupID = 7"};
        for (const int code : c.saved) {
            statements.push_back(
                "INSERT INTO SalesTaxGroupCodes (SalesTaxGroupID, SalesTaxCodeID) VALUES(7," +
                std::to_string(code) + ")");
        }
        EXPECT_EQ(stage.executed(), statements);
    }
}

TEST(SalesTaxGroupCodes, CodesThatCannotBeReadAreNotReplaced) {
    for (const char* codes : {"<Records><Record>", ""}) {  // damaged; none
        Stage stage;
        fill(stage);
        stage.host->rows("SELECT ID, Code, Rate, Vendor FROM SalesTaxCodes", codes);
        stage.desktop.user<SalesTaxGroupCodes>("frmSalesTaxGroupCodes", [&](SalesTaxGroupCodes& screen) {
            EXPECT_FALSE(screen.cmdOK.enabled());
            screen.cmdCancel.userPress();
        });
        EXPECT_TRUE(stage.library->ShowSalesTaxGroupCodes(7));
        EXPECT_EQ(stage.told(), *codes != 0);
    }
}

TEST(SalesTaxGroupCodes, AFailureIsReportedAndCanBeRepeated) {
    for (const int failing : {1, 3}) {
        Stage stage;
        fill(stage);
        int tries = 0;
        stage.host->on("Database.ExecuteNonQuery", [&](Arguments) { return Variant(++tries != failing); });
        stage.desktop.user<SalesTaxGroupCodes>("frmSalesTaxGroupCodes", [&](SalesTaxGroupCodes& screen) {
            screen.cmdOK.userPress();
            EXPECT_TRUE(screen.shown());
            EXPECT_EQ(tries, failing) << "the first failure ends the saving";
            screen.cmdOK.userPress();
            EXPECT_FALSE(screen.shown());
        });
        stage.library->ShowSalesTaxGroupCodes(7);
        EXPECT_THAT(
            stage.failures(),
            ElementsAre(
                std::string("Sales tax code selection could not be saved. (") +
                (failing == 1 ? "3738" : "3739") +
                "), This typically happens if the database is in use by another user or program. Try saving again. If the problem persists, close the program, restart and try again., the database's own words"));
    }
    Stage stage;  // a group that no longer exists
    EXPECT_FALSE(stage.library->ShowSalesTaxGroupCodes(9));
    EXPECT_EQ(stage.desktop.boxes.size(), 1U);
    fill(stage);
    stage.desktop.user<SalesTaxGroupCodes>("frmSalesTaxGroupCodes",
                                           [](SalesTaxGroupCodes& screen) { screen.cmdCancel.userPress(); });
    EXPECT_TRUE(stage.library->ShowSalesTaxGroupCodes(7));
    EXPECT_THAT(stage.executed(), IsEmpty());
}

}  // namespace
}  // namespace tsln::test
