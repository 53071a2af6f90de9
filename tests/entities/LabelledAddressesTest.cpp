#include "entities/AddressLabelDialog.h"
#include "tests/entities/CustomerStage.h"

namespace tsln::test {
namespace {

TEST(LabelledAddresses, TheLinksAddDeleteLabelAndChooseTheDefault) {
    CustomerStage stage;
    stage.edit(7, [&](CustomerEditor& editor) {
        auto& addresses = editor.addresses;
        EXPECT_EQ(
            addresses.lblAddressLinks.caption(),
            "<TextBlock TextAlignment='Right' FontSize='12'><Hyperlink Click='Hyperlink_NewAddress'>New</Hyperlink> / <Hyperlink Click='Hyperlink_DeleteAddress'>Delete</Hyperlink> / <Hyperlink Click='Hyperlink_EditLabel'>Edit Label</Hyperlink> / <Hyperlink Click='Hyperlink_MakeDefault'>Make Default</Hyperlink></TextBlock>");
        EXPECT_TRUE(addresses.lblDefaultAddress.visible());
        answerLabel(stage, " Lake \xF0\x9F\x8F\xA0 ", "");
        addresses.lblAddressLinks.userFollow("Hyperlink_NewAddress");
        EXPECT_EQ(editor.focusedControl(), &addresses.txtShipToAddress);
        EXPECT_FALSE(addresses.lblDefaultAddress.visible());
        addresses.txtShipToAddress.userType("3 Shore");
        addresses.lblAddressLinks.userFollow("Hyperlink_MakeDefault");
        EXPECT_TRUE(addresses.lblDefaultAddress.visible());
        addresses.cboAddressLabel.userChoose(0);
        EXPECT_EQ(addresses.txtShipToAddress.text(), "1 Mill St\r\nReno");
        answerLabel(stage, "House", "Home");
        addresses.lblAddressLinks.userFollow("Hyperlink_EditLabel");
        EXPECT_EQ(labelsOf(editor), "House;Work;Lake \xF0\x9F\x8F\xA0;");
        EXPECT_EQ(addresses.cboAddressLabel.text(), "House");
        addresses.cboAddressLabel.userChoose(1);
        addresses.lblAddressLinks.userFollow("Hyperlink_DeleteAddress");
        EXPECT_EQ(addresses.cboAddressLabel.listIndex(), 1) << "the next one is shown";
        EXPECT_EQ(addresses.txtShipToAddress.text(), "3 Shore");
        accept(editor);
    });
    EXPECT_THAT(
        stage.onConnection(),
        ElementsAre(
            "DELETE FROM CustomerAddresses WHERE ID = 71",
            "UPDATE CustomerAddresses SET AddressLabel = 'House', Address1 = '1 Mill St', Address2 = '', City = 'Reno', State = '', Zip = '', Country = '', isDefault = 0 WHERE ID = 70",
            "INSERT INTO CustomerAddresses (CustomerID, AddressLabel, Address1, Address2, City, State, Zip, Country, isDefault) VALUES(7, 'Lake \xF0\x9F\x8F\xA0', '3 Shore', '', '', '', '', '', 1)",
            HasSubstr("DELETE FROM Grouped"), HasSubstr("(1, 7)"), HasSubstr("(3, 7)")));
}

TEST(LabelledAddresses, TheFirstAddressNeedsNoLabelAndIsTheDefault) {
    CustomerStage stage;
    stage.host->on("Options.GetCompanyOption",
                   [](Arguments a) { return a[0].toText() == "AddressLabel" ? Variant("Site") : a[2]; });
    stage.edit(0, [&](CustomerEditor& editor) {
        auto& addresses = editor.addresses;
        constexpr auto onlyNew =
            "<TextBlock TextAlignment='Right' FontSize='12'><Hyperlink Click='Hyperlink_NewAddress'>New</Hyperlink></TextBlock>";
        EXPECT_EQ(addresses.lblAddressLinks.caption(), onlyNew);
        answerLabel(stage, "Barn", "Site");
        addresses.lblAddressLinks.userFollow("Hyperlink_NewAddress");
        EXPECT_EQ(labelsOf(editor), "Barn;");
        addresses.lblAddressLinks.userFollow("Hyperlink_DeleteAddress");
        EXPECT_EQ(addresses.lblAddressLinks.caption(), onlyNew);
        editor.textBox("txtCustomerName").userType("C");
        editor.textBox("txtBillToAddress").userType("9 Quay");
        editor.lblCopyBilling.userFollow("Hyperlink_BillingToShipping");
        EXPECT_EQ(labelsOf(editor), "Site;");
        EXPECT_TRUE(addresses.lblDefaultAddress.visible());
        accept(editor);
    });
    EXPECT_THAT(stage.onConnection(),
                ElementsAre(HasSubstr("VALUES(8, 'Site', '9 Quay', '', '', '', '', '', 1)")))
        << "the deleted address was never stored";
}

TEST(LabelledAddresses, ALabelIsRequiredAndCancelChangesNothing) {
    CustomerStage stage;
    stage.desktop.user<RecordDialog>("frmAddressLabel", [&](RecordDialog& dialog) {
        ComboBox& box = labelBox(dialog);
        EXPECT_EQ(dialog.caption(), "New Address");
        EXPECT_EQ(box.entries().size(), 3U);
        box.userType("   ");
        dialog.cmdOK.userPress();
        EXPECT_TRUE(dialog.shown());
        EXPECT_THAT(stage.desktop.boxes, ElementsAre(exclamation("You must enter a label.")));
        box.userType("Typed");
        dialog.cmdCancel.userPress();
    });
    stage.edit(7, [](CustomerEditor& editor) {
        editor.addresses.lblAddressLinks.userFollow("Hyperlink_NewAddress");
        EXPECT_EQ(labelsOf(editor), "Home;Work;");
    });
}

TEST(LabelledAddresses, TheHostParsesWhatWasTypedAndNothingElse) {
    CustomerStage stage;
    std::vector<std::string> parsed;
    stage.host->on("ParseAddress", [&](Arguments a) {
        parsed.push_back(a[0].toText() + "|" + a[7].toText());
        a.assign(1, a[0]);
        a.assign(7, false);
        return Variant(true);
    });
    stage.edit(7, [&](CustomerEditor& editor) {
        auto& box = editor.addresses.txtShipToAddress;
        box.userEntered();
        EXPECT_EQ(editor.cmdOK.role(), Button::Role::Plain) << "Enter starts a new line";
        box.userLeft();
        EXPECT_EQ(editor.cmdOK.role(), Button::Role::Default);
        EXPECT_THAT(parsed, IsEmpty()) << "an address that was only looked at stays as it is stored";
        box.userType("typed");
        box.userLeft();
        box.userLeft();
        box.userType("");
        box.userLeft();
        EXPECT_THAT(parsed, ElementsAre("typed|True", "|True"));
    });
}

TEST(LabelledAddresses, ATypedAddressStaysWithItsLabelWhenTheHostCannotParseIt) {
    CustomerStage stage;
    stage.host->on("ParseAddress", raises());
    stage.edit(7, [](CustomerEditor& editor) {
        auto& addresses = editor.addresses;
        addresses.txtShipToAddress.userType("typed");
        addresses.cboAddressLabel.userChoose(0);
        EXPECT_EQ(addresses.cboAddressLabel.text(), "Work");
        EXPECT_EQ(addresses.txtShipToAddress.text(), "typed");
        accept(editor);
        EXPECT_TRUE(editor.shown()) << "not saved without the address";
    });
    EXPECT_THAT(stage.executed(), IsEmpty());
}

TEST(LabelledAddresses, ThousandsOfAddressesAreListedAndSaved) {
    CustomerStage stage;
    constexpr int many = 2000;
    std::string rows;
    for (int i = 0; i < many; ++i)
        rows += addressRow(100 + i, "Site " + std::to_string(i), "Line", i == 1500);
    stage.host->rows("SELECT * FROM CustomerAddresses WHERE CustomerID = 7",
                     "<Records>" + rows + "</Records>");
    stage.edit(7, [](CustomerEditor& editor) {
        EXPECT_EQ(editor.addresses.cboAddressLabel.text(), "Site 1500");
        accept(editor);
    });
    EXPECT_EQ(
        std::ranges::count_if(stage.onConnection(),
                              [](const std::string& s) { return s.starts_with("UPDATE CustomerAddresses"); }),
        many);
    EXPECT_EQ(stage.host->callsOf("CombineAddress").size(), 2U) << "for the two addresses that are shown";
}

TEST(LabelledAddresses, ATableWithoutADefaultWritesNone) {
    Stage stage;
    stage.host->rows("SELECT * FROM Homes WHERE OwnerID = 4",
                     "<Records>" + addressRow(5, "Home", "1 Mill St", true) + "</Records>");
    const entities::AddressTable homes{
        .read = "SELECT * FROM Homes WHERE OwnerID = ",
        .insert = "INSERT INTO Homes VALUES(<oid>, '<al>', '<a1>', '<a2>', '<y>', '<s>', '<z>', '<c>')",
        .update = "UPDATE Homes SET AddressLabel = '<al>', City = '<y>' WHERE ID = <id>",
        .remove = "",
        .ownerTag = "<oid>"};
    entities::StoredAddresses addresses(homes);
    addresses.read(Host(*stage.library), 4);
    EXPECT_FALSE(addresses.all()[0].isDefault);
    addresses.at(addresses.add("Work")).parts[3] = "NV";
    EXPECT_FALSE(addresses.all()[1].isDefault);
    entities::AddressLabelDialog screen(*stage.library, "", "", {});
    addresses.save(screen, 4);
    EXPECT_THAT(stage.onConnection(),
                ElementsAre("UPDATE Homes SET AddressLabel = 'Home', City = 'Reno' WHERE ID = 5",
                            "INSERT INTO Homes VALUES(4, 'Work', '', '', '', 'NV', '', '')"));
}

}  // namespace
}  // namespace tsln::test
