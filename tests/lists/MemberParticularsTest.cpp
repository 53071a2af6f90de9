// The special behaviour of single lists.

#include "lists/Criteria.h"
#include "lists/Locations.h"
#include "lists/Tags.h"
#include "tests/lists/Acts.h"

namespace tsln::test {
namespace {

using lists::DepositCriteriaScreen;
using lists::LocationDialog;
using lists::PortfolioTagDialog;
using lists::ProductTagsDialog;

std::string records(const std::string& rows) {
    return "<Records>" + rows + "</Records>";
}

TEST(CustomerTypes, TheLastOneCannotBeDeleted) {
    Stage stage;
    int left = 1;
    stage.host->rows("SELECT * FROM CustomerTypes ORDER BY Name",
                     records("<Record><ID>7</ID><Name>Retail</Name></Record>"));
    stage.host->on("Database.ExecuteScaler", [&](Arguments a) {
        return Variant(a[0].toText() == "SELECT COUNT(*) AS MyCount FROM CustomerTypes" ? left : 0);
    });
    stage.desktop.user<ListScreen>("frmCustomerTypes", [&](ListScreen& list) {
        selectAll(list.rptItems);
        list.cmdDelete.userPress();
        EXPECT_EQ(list.rptItems.rowCount(), 1U);
        left = 2;
        list.cmdDelete.userPress();
        EXPECT_EQ(list.rptItems.rowCount(), 0U);
    });
    stage.library->ShowCustomerTypes();
    EXPECT_THAT(
        stage.host->callsOf("ShowMessageStyle1"),
        ElementsAre(
            "The customer type Retail cannot be deleted because it's the last customer type., You must have at least one Customer Type setup in your company."));
}

TEST(ShippingMethods, ATaskTypeIsRequired) {
    Stage stage;
    stage.host->rows(
        "SELECT * FROM ShippingMethods WHERE ID = 7",
        records("<Record><ID>7</ID><ShippingMethod>Van</ShippingMethod><TaskType>0</TaskType></Record>"));
    for (const std::int32_t ID : {0, 7}) {
        stage.desktop.user<RecordDialog>("frmShippingMethods_Edit", [](RecordDialog& dialog) {
            enter(dialog, "txtShippingMethod", "Truck");
            dialog.cmdOK.userPress();
            EXPECT_TRUE(dialog.shown());
            EXPECT_EQ(dialog.focusedControl(), dialog.control("cboTaskType"));
            dialog.cmdCancel.userPress();
        });
        EXPECT_EQ(stage.library->ShowEditShippingMethods(ID), 0);
    }
    EXPECT_EQ(stage.desktop.boxes, std::vector(2, exclamation("You must select a task type to add.")));
}

TEST(MeasurementRooms, TheDialogReturnsItsRowAlsoAfterCancel) {
    Stage stage;
    for (const std::int32_t ID : {0, 7}) {
        stage.desktop.user<RecordDialog>("frmMeasurementRooms_Edit",
                                         [](RecordDialog& dialog) { dialog.cmdCancel.userPress(); });
        EXPECT_EQ(stage.library->ShowEditMeasurementRoom(ID), ID);
    }
    // The manufacturers' dialog, whose result was read, has not been shown.
    stage.desktop.user<RecordDialog>("frmManufacturers_Edit", [](RecordDialog& dialog) {
        EXPECT_EQ(dialog.ID, 5);
        dialog.cmdCancel.userPress();
    });
    EXPECT_EQ(stage.library->ShowEditManufacturers(5), 0);
    EXPECT_TRUE(stage.library->screens().empty());
}

TEST(DepositCriteria, TheUserOptionIsReadAndStored) {
    struct Case {
        std::function<void(Stage&)> prepare;
        std::vector<std::string> written;
    };
    const Case cases[] = {
        {[](Stage& s) { s.host->on("Options.GetUserOption", Variant("1")); },
         {"EnforceDepositRequirements, , False"}},
        {[](Stage&) {}, {"EnforceDepositRequirements, , True"}},
        {[](Stage& s) { s.host->on("Options.GetUserOption", raises("no")); }, {}},
    };
    for (const Case& c : cases) {
        Stage stage;
        c.prepare(stage);
        stage.desktop.popupChoices = {28001};
        stage.desktop.files = {"/in.xml"};
        stage.desktop.user<DepositCriteriaScreen>(
            "frmRequireDepositCriteria", [&](DepositCriteriaScreen& list) {
                EXPECT_EQ(list.chkEnforce.enabled(), !c.written.empty());
                list.cmdMore.userPress();  // the list is loaded again, and the option is read
                if (list.chkEnforce.enabled()) list.chkEnforce.userCheck(!list.chkEnforce.checked());
            });
        stage.library->ShowRequireDepositCriteria();
        EXPECT_EQ(stage.host->callsOf("Options.SetUserOption"), c.written);
        EXPECT_THAT(stage.host->callsOf("Options.GetUserOption"),
                    ElementsAre("EnforceDepositRequirements, False", "EnforceDepositRequirements, False"));
    }
}

// Locations -----------------------------------------------------------------------------------------------

/// A host that joins an address line by line, and whose parser returns capitals.
void speakAddresses(Stage& stage) {
    stage.host->on("CombineAddress", [](Arguments a) {
        std::string text;
        for (std::size_t i = 0; i < 6; ++i)
            text += (i > 0 ? "|" : "") + a[i].toText();
        return Variant(text);
    });
    stage.host->on("ParseAddress", [](Arguments a) {
        std::string text = a[0].toText();
        for (char& c : text)
            c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        a.assign(0, text);
        for (std::size_t i = 1; i <= 6; ++i) {
            const std::size_t end = std::min(text.find('|'), text.size());
            a.assign(i, text.substr(0, end));
            text.erase(0, end + 1);
        }
        return Variant();
    });
    stage.host->on("Common.LoadPhoneLabels", [](Arguments a) {
        a[0].object().call("AddItem", "Main");
        return Variant();
    });
}

constexpr auto rowSeven =
    "<Record><ID>7</ID><LocationName>Falls</LocationName><Email>e</Email><WebSite>w</WebSite>"
    "<Phone1Label>Old</Phone1Label><Phone1>1</Phone1><Phone4>4</Phone4><ShipToAddress1>1 Row</ShipToAddress1>"
    "<ShipToCity>Oslo</ShipToCity><ShipToCountry>NO</ShipToCountry><ValidateAddresses>1</ValidateAddresses>"
    "<StoreNumber>01</StoreNumber><MarketNumber>M1</MarketNumber><MarketName>Mid</MarketName>"
    "<Region>North</Region></Record>";

TEST(Locations, TheDialogSavesEveryField) {
    Stage stage;
    speakAddresses(stage);
    stage.host->rows("SELECT * FROM Locations WHERE ID = 7", records(rowSeven));
    stage.desktop.user<LocationDialog>("frmLocations_Edit", [](LocationDialog& dialog) {
        EXPECT_EQ(dialog.caption(), "Edit Location");
        EXPECT_EQ(entered(dialog, "cboPhone1Label"), "Old") << "a label the company no longer has";
        EXPECT_EQ(entered(dialog, "txtShipToAddress"), "1 Row||Oslo|||NO");
        enter(dialog, "txtName", " ");
        dialog.cmdOK.userPress();
        enter(dialog, "txtName", "O'Falls");
        dialog.cmdOK.userPress();
    });
    EXPECT_FALSE(stage.library->ShowEditLocation(7));
    EXPECT_THAT(
        stage.executed(),
        ElementsAre(
            "UPDATE Locations SET LocationName = 'O''Falls', Email = 'e', WebSite = 'w', Phone1Label = 'Old', "
            "Phone1 = '1', Phone2Label = '', Phone2 = '', Phone3Label = '', Phone3 = '', Phone4Label = '', "
            "Phone4 = '4', ShipToAddress1 = '1 ROW', ShipToAddress2 = '', ShipToCity = 'OSLO', ShipToState = '', "
            "ShipToZip = '', ShipToCountry = 'NO', StoreNumber = '01', MarketNumber = 'M1' , MarketName = 'Mid' , "
            "Region = 'North'  WHERE ID = 7"));
    EXPECT_THAT(stage.desktop.boxes, ElementsAre(exclamation("You must enter a name for this location.")));

    stage.host->on("Database.ExecuteNonQueryWithID", Variant(0));
    stage.desktop.user<LocationDialog>("frmLocations_Edit", [](LocationDialog& dialog) {
        EXPECT_EQ(dialog.caption(), "New Location");
        enter(dialog, "txtName", "New");
        enter(dialog, "cboPhone2Label", "Main");
        enter(dialog, "txtPhone2", "22");
        enter(dialog, "txtShipToAddress", "a|b|c|d|e|f");
        dialog.control("txtShipToAddress")->userLeft();
        EXPECT_EQ(entered(dialog, "txtShipToAddress"), "A|B|C|D|E|F") << "as the host corrects it";
        enter(dialog, "txtMarketNumber", "9");
        dialog.cmdOK.userPress();
        EXPECT_TRUE(dialog.shown());
        dialog.cmdCancel.userPress();
    });
    EXPECT_TRUE(stage.library->ShowEditLocation(0));
    EXPECT_THAT(
        stage.inserted(),
        ElementsAre(
            "INSERT INTO Locations (LocationName,Email,WebSite,Phone1Label,Phone1,Phone2Label,Phone2,Phone3Label,"
            "Phone3,Phone4Label,Phone4,ShipToAddress1,ShipToAddress2,ShipToCity,ShipToState,ShipToZip,ShipToCountry,"
            "ValidateAddresses,StoreNumber,MarketName,MarketName,Region) "
            "VALUES('New','','','','','Main','22','','','','','A','B','C','D','E','F',1,'','9','','')"));
    EXPECT_THAT(
        stage.failures(),
        ElementsAre(
            "There was a problem saving this location., This typically happens if the database is in use by another user or program. Try saving again. If the problem persists, close the program, restart and try again., the database's own words"));
}

TEST(Locations, TheCompanysAddressIsCopiedAndSavedAsTheHostParsesIt) {
    Stage stage;
    speakAddresses(stage);
    stage.host->rows(
        "SELECT TOP 1 BillToAddress1, BillToAddress2, BillToCity, BillToState, BillToZip, BillToCountry FROM Company",
        records("<Record><BillToAddress1>8 Mill</BillToAddress1><BillToZip>53000</BillToZip></Record>"));
    stage.desktop.user<LocationDialog>("frmLocations_Edit", [&](LocationDialog& dialog) {
        dialog.cmdCopyAddress.userPress();
        EXPECT_EQ(entered(dialog, "txtShipToAddress"), "8 Mill||||53000|");
        enter(dialog, "txtName", "New");
        stage.host->on("ParseAddress", Variant());  // returns no parts: the address would be saved empty
        dialog.cmdOK.userPress();
        EXPECT_TRUE(dialog.shown() && stage.told());
        EXPECT_EQ(entered(dialog, "txtShipToAddress"), "8 Mill||||53000|");
        speakAddresses(stage);
        dialog.cmdOK.userPress();
    });
    stage.library->ShowEditLocation(0);
    EXPECT_THAT(stage.inserted(), ElementsAre(HasSubstr("VALUES('New',")));
}

TEST(Locations, TheListReadsTheSavedRowItself) {
    Stage stage;
    speakAddresses(stage);
    const std::string load = "SELECT * FROM Locations ORDER BY LocationName";
    stage.host->rows(load, records(rowSeven));
    stage.host->rows("SELECT * FROM Locations WHERE ID = 7", records(rowSeven));
    const auto save = [](LocationDialog& dialog) {
        enter(dialog, "txtName", "Falls");
        dialog.cmdOK.userPress();
    };
    stage.desktop.user<LocationDialog>("frmLocations_Edit", save);
    stage.desktop.user<LocationDialog>("frmLocations_Edit", save);
    stage.host->on("Database.ExecuteScaler", [](Arguments a) {
        return Variant(a[0].toText() == "SELECT COUNT(*) AS MyCount FROM Orders WHERE LocationID = 7" ? 2
                                                                                                      : 0);
    });
    stage.desktop.user<ListScreen>("frmLocations", [](ListScreen& list) {
        list.cmdNew.userPress();
        selectAll(list.rptItems);
        list.cmdEdit.userPress();
        list.cmdDelete.userPress();
        EXPECT_EQ(list.rptItems.rowCount(), 1U);
    });
    stage.library->ShowLocations();
    const std::string row = "SELECT * FROM Locations WHERE ID = 7";
    EXPECT_THAT(stage.read(), ElementsAre(load, load, row, row));
    EXPECT_THAT(
        stage.host->callsOf("ShowMessageStyle1"),
        ElementsAre(
            "The location <Bold>Falls</Bold> cannot be deleted because it's being referenced by 2 quotes/sales/orders., In order to delete this location you must first remove it from the quotes/sales/orders that are referencing it."));
    EXPECT_THAT(stage.host->callsOf("Security.CanDo"), Contains("112, 8"));
}

// Tags ----------------------------------------------------------------------------------------------------

TEST(ProductTags, AreAddedAndDeleted) {
    Stage stage;
    const std::string load = "SELECT * FROM ProductTags WHERE ProductID = 5 ORDER BY Tag";
    stage.host->rows(load, records("<Record><ID>7</ID><Tag>cordless</Tag></Record>"));
    stage.host->rows("SELECT Tag FROM ProductTags WHERE ProductID = 5",
                     records("<Record><Tag>cordless</Tag></Record>"));
    stage.host->rows("SELECT DISTINCT Tag FROM ProductTags ORDER BY Tag",
                     records("<Record><Tag>cordless</Tag></Record><Record><Tag>kids' room</Tag></Record>"));
    stage.host->on("Common.GetProductNameFromID", Variant("Aldermoor 2in"));
    stage.host->on("Database.ExecuteScaler", [](Arguments a) {
        return Variant(a[0].toText().ends_with("Tag = 'cordless'") ? 1 : 0);  // the product has this tag
    });
    int tries = 0;
    stage.host->on("Database.ExecuteNonQuery", [&](Arguments) { return Variant(++tries != 2); });
    stage.desktop.user<ProductTagsDialog>("frmProductTags_Edit", [](ProductTagsDialog& dialog) {
        EXPECT_EQ(dialog.rptTags.rowCount(), 1U);
        ASSERT_EQ(dialog.lstUsed.entries().size(), 2U);
        dialog.txtTag.userType("  ");
        dialog.cmdOK.userPress();
        dialog.txtTag.userType(" O'Neil ");
        dialog.lstUsed.userTick(0, true);
        dialog.lstUsed.userTick(1, true);
        dialog.cmdOK.userPress();
        EXPECT_TRUE(dialog.shown()) << "the second insert failed";
        EXPECT_TRUE(dialog.lstUsed.entries()[1].ticked);
        dialog.cmdOK.userPress();
    });
    stage.desktop.popupChoices = {28003};
    stage.desktop.files = {"/out.xml"};
    stage.desktop.user<ListScreen>("frmProductTags", [](ListScreen& list) {
        EXPECT_EQ(list.caption(), "Product Tags - Aldermoor 2in");
        list.cmdMore.userPress();
        list.cmdNew.userPress();
        selectAll(list.rptItems);
        EXPECT_TRUE(list.cmdNew.enabled() && list.cmdDelete.enabled());
        EXPECT_FALSE(list.cmdEdit.enabled()) << "a product tag cannot be edited";
        list.rptItems.userDoubleClick(0);
        list.cmdDelete.userPress();
    });
    open(stage, Operation::ShowProductTags, 5);
    const std::string typed = "INSERT INTO ProductTags (ProductID, Tag) VALUES(5,'O''Neil')";
    const std::string chosen = "INSERT INTO ProductTags (ProductID, Tag) VALUES(5,'kids'' room')";
    EXPECT_THAT(stage.executed(),
                ElementsAre(typed, chosen, typed, chosen, "DELETE FROM ProductTags WHERE ID = 7"));
    EXPECT_THAT(stage.desktop.boxes, Contains(exclamation("You must enter a valid tag name.")));
    EXPECT_THAT(stage.failures(), ElementsAre(explained("There was a problem saving this product tag.")));
    EXPECT_THAT(stage.host->callsOf("tslniee5.Engine.AddToExport"),
                ElementsAre("PhoneLabels, SELECT * FROM vwExporting_PhoneLabels"));
    EXPECT_THAT(stage.host->callsOf("Security.CanDo"), IsEmpty());
    EXPECT_EQ(stage.read().back(), load) << "the added tags are shown";
}

TEST(PortfolioTags, AreRenamedInAllFiles) {
    Stage stage;
    const std::string load =
        "SELECT PortfolioTags.ID, PortfolioTags.Tag, Portfolio.FileName FROM PortfolioTags "
        "INNER JOIN Portfolio ON PortfolioTags.PortfolioID = Portfolio.ID ORDER BY PortfolioTags.Tag, Portfolio.FileName";
    stage.host->rows(load, records("<Record><ID>3</ID><Tag>kid's</Tag><FileName>a.jpg</FileName></Record>"));
    const auto rename = [](PortfolioTagDialog& dialog, const char* to) {
        dialog.txtTag.userType(to);
        dialog.cmdOK.userPress();
    };
    stage.desktop.user<PortfolioTagDialog>("frmPortfolioTags_Edit", [&](PortfolioTagDialog& dialog) {
        EXPECT_EQ(dialog.txtTag.text(), "kid's");
        rename(dialog, " ");
        stage.host->on("Database.ExecuteNonQuery", Variant(false));
        rename(dialog, " kids' ");
        EXPECT_TRUE(dialog.shown());
    });
    stage.desktop.user<ListScreen>("frmPortfolioTags", [&](ListScreen& list) {
        EXPECT_EQ(list.rptItems.rowText(0, 1), "a.jpg");
        selectAll(list.rptItems);
        EXPECT_TRUE(list.cmdEdit.enabled() && list.cmdDelete.enabled());
        EXPECT_FALSE(list.cmdNew.enabled()) << "tags are assigned to files elsewhere";
        list.rptItems.userDoubleClick(0);  // the close box, after the failure
    });
    open(stage, Operation::ShowPortfolioTags);
    EXPECT_THAT(stage.executed(),
                ElementsAre("UPDATE PortfolioTags SET Tag = 'kids''' WHERE Tag = 'kid''s'"));
    EXPECT_THAT(stage.failures(), ElementsAre(explained("There was a problem renaming the tags.")));
    EXPECT_THAT(stage.read(), ElementsAre(load));

    stage.host->on("Database.ExecuteNonQuery", Variant(true));
    stage.desktop.user<PortfolioTagDialog>("frmPortfolioTags_Edit",
                                           [&](PortfolioTagDialog& dialog) { rename(dialog, "kids"); });
    EXPECT_FALSE(stage.library->ShowEditPortfiolioTag("kid's"));
    EXPECT_TRUE(stage.library->ShowEditPortfiolioTag("kid's")) << "the close box counts as cancelled";
}

}  // namespace
}  // namespace tsln::test
