#include "doubles/Stage.h"
#include "entities/VendorEditor.h"

namespace tsln::test {
namespace {

using entities::VendorEditor;

constexpr auto frmEditVendor = "frmEditVendor";
constexpr auto readSeven = "SELECT * FROM Vendors WHERE ID = 7";
constexpr auto snapshotSeven = "SELECT * FROM [Vendors] WHERE ID = 7";

std::string rowSeven(const std::string& further = "") {
    return "<Records><Record><ID>7</ID><VendorName>O'Dell</VendorName><WebSite>www.odell.example</WebSite>"
           "<Phone1Label>Hut</Phone1Label><Phone1>1</Phone1><Phone2Label>Work</Phone2Label><Phone2>2</Phone2>"
           "<Phone3Label>Fax</Phone3Label><Phone3>3</Phone3><Email1Label>Home</Email1Label><Email1>a@b</Email1>"
           "<Email2Label>Work</Email2Label><Email2>c@d</Email2><BillToAddress1>1 Mill St</BillToAddress1>"
           "<BillToCity>Reno</BillToCity><BillToZip>89501</BillToZip><ShipToAddress1>Dock 2</ShipToAddress1>"
           "<ShipToCountry>USA</ShipToCountry><AccountNumber>LW</AccountNumber><Contact>Ivo</Contact>"
           "<TermsID>5</TermsID><SplitPOByProduct>1</SplitPOByProduct><OOP_Process>0</OOP_Process>"
           "<OOP_VendorID>E7</OOP_VendorID><UniqueID>{U-7}</UniqueID><Notes> n&#13;&#10;m </Notes><Active>1</Active>"
           "<ValidateAddresses>0</ValidateAddresses><Margin>0.4</Margin><MarginAD>-0.125</MarginAD>"
           "<Exported>1</Exported>" +
           further + "</Record></Records>";
}

/// A host with three terms, two phone labels and the vendor 7.
struct VendorStage : Stage {
    explicit VendorStage(const std::string& further = "") {
        host->on("Common.LoadTerms", fills({{"COD", 3}, {"Net 30", 5}, {"Net 60", 6}}));
        host->on("Common.LoadPhoneLabels", fills({{"Home", 1}, {"Work", 2}}));
        host->on("Common.LoadEmailLabels", fills({{"Home", 1}}));
        host->rows(readSeven, rowSeven(further));
        host->rows(snapshotSeven, rowSeven(further));
    }
    template <class Act>
    std::int32_t edit(std::int32_t ID, Act act) {
        desktop.user<VendorEditor>(frmEditVendor, act);
        return library->ShowEditVendor(ID);
    }
};

// The complete expected statements, so that a change to a template shows.
constexpr auto insertedWhole =
    "INSERT INTO Vendors (VendorName, WebSite, Phone1Label, Phone1, Phone2Label, Phone2, Phone3Label, Phone3, "
    "Email1Label, Email1, Email2Label, Email2, BillToAddress1, BillToAddress2, BillToCity, BillToState, "
    "BillToZip, BillToCountry, ShipToAddress1, ShipToAddress2, ShipToCity, ShipToState, ShipToZip, "
    "ShipToCountry, AccountNumber, Contact, TermsID, SplitPOByProduct, OOP_Process, OOP_VendorID, UniqueID, "
    "Notes, Active, ValidateAddresses, Margin, MarginAD, Exported) VALUES ('O''Dell', 'w.x', 'Home', '555', "
    "'Cell', '', 'Mobile', '', 'Home', 'a@b', 'Work', '', 'b1', 'b2', 'b3', 'b4', 'b5', 'b6', 's1', 's2', "
    "'s3', 's4', 's5', 's6', 'A''1', 'Ivo', 3, 1, 0, 'E9', '{0123ABCD}', ' it''s\r\n', 1, 0, 0.125, 0, 1)";
constexpr auto updatedWhole =
    "UPDATE Vendors SET VendorName = 'O''Dell', WebSite = 'www.odell.example', Phone1Label = 'Hut', "
    "Phone1 = '1', Phone2Label = 'Work', Phone2 = '2', Phone3Label = 'Fax', Phone3 = '3', "
    "Email1Label = 'Home', Email1 = 'a@b', Email2Label = 'Work', Email2 = 'c@d', Active = 1, "
    "BillToAddress1 = '1 Mill St\r\nReno\r\n89501', BillToAddress2 = '', BillToCity = '', BillToState = '', "
    "BillToZip = '', BillToCountry = '', ShipToAddress1 = 'Dock 2\r\nUSA', ShipToAddress2 = '', "
    "ShipToCity = '', ShipToState = '', ShipToZip = '', ShipToCountry = '', AccountNumber = 'LW', "
    "Contact = 'Ivo', TermsID = 5, SplitPOByProduct = 1, OOP_Process = 0, OOP_VendorID = 'E7', "
    "UniqueID = '{U-7}', Notes = ' n\r\nm ', ValidateAddresses = 0, Margin = 0.4, MarginAD = -0.125, "
    "Exported = 1 WHERE ID = 7";

TEST(VendorEditor, ANewVendorGetsTheDefaultsAndIsInserted) {
    VendorStage stage;
    stage.host->on("Database.ExecuteNonQueryWithID", Variant(12));
    stage.host->on("Options.GetCompanyOption", [](Arguments a) {
        return a[0].toText() == "DefaultPhone2Label" ? Variant(" Cell ") : a[2];
    });
    stage.host->on("ParseAddress", [](Arguments a) {
        const std::string prefix = a[0].toText().substr(0, 1);
        for (std::size_t i = 1; i <= 6; ++i)
            a.assign(i, prefix + std::to_string(i));
        return Variant(true);
    });
    EXPECT_EQ(stage.edit(0,
                         [](VendorEditor& editor) {
                             EXPECT_EQ(editor.caption(), "New Vendor");
                             EXPECT_EQ(editor.comboBox("cboPhone2Label").text(), "Cell");
                             EXPECT_EQ(editor.comboBox("cboTerms").text(), "COD")
                                 << "without a default the first entry is selected";
                             EXPECT_TRUE(editor.checkBox("chkActive").checked());
                             EXPECT_TRUE(editor.textBox("txtUniqueID").enabled());
                             EXPECT_FALSE(editor.imgLocked.visible());
                             editor.textBox("txtName").userType("  O'Dell ");
                             editor.textBox("txtWebSite").userType(" w.x ");
                             editor.textBox("txtAccountNumber").userType("A'1 ");
                             editor.textBox("txtContact").userType(" Ivo");
                             editor.textBox("txtPhone1").userType(" 555 ");
                             editor.textBox("txtEmail1").userType(" a@b ");
                             editor.checkBox("chkExported").userCheck(true);
                             editor.checkBox("chkSplitPOs").userCheck(true);
                             editor.textBox("txtBillToAddress").userType("bill");
                             editor.textBox("txtShipToAddress").userType("ship");
                             editor.textBox("txtOOPID").userType(" E9");
                             editor.textBox("txtNotes").userType(" it's\r\n");
                             editor.textBox("txtMargin").userType("12.5");
                             editor.cmdOK.userPress();
                         }),
              12);
    EXPECT_THAT(stage.inserted(), ElementsAre(insertedWhole));
    EXPECT_THAT(stage.host->callsOf("Activity.RecordCustomerActivity"), ElementsAre("12, Vendor added."))
        << "the entry is stored as customer activity";
    EXPECT_THAT(stage.host->callsOf("Activity.RecordVendorActivity"), IsEmpty());
    EXPECT_THAT(stage.host->callsOf("RecordEvent"), ElementsAre("2, Vendor 'O'Dell was added."));
    EXPECT_THAT(stage.host->callsOf("Messages.PostMessage"), ElementsAre("6001, 12"));
    EXPECT_THAT(stage.host->callsOf("Common.RecordExists"), ElementsAre("Vendors, VendorName, O'Dell, 0"));
    EXPECT_THAT(stage.host->callsOf("Options.GetCompanyOption"),
                ElementsAre("DefaultPhone1Label, Customers, Home", "DefaultPhone2Label, Customers, Work",
                            "DefaultPhone3Label, Customers, Mobile", "DefaultEmail1Label, Customers, Home",
                            "DefaultEmail2Label, Customers, Work", "DefaultTerms, Vendors, -1"));
}

TEST(VendorEditor, AVendorIsLoadedAndUpdatedAndTheHistoryShowsTheChange) {
    VendorStage stage;
    stage.host->on("Database.ExecuteNonQuery", [&](Arguments) {
        std::string after = rowSeven();
        after.replace(after.find("Ivo"), 3, "Edda");
        after.replace(after.find("<Phone2>2"), 9, "<Phone2>22");
        stage.host->rows(snapshotSeven, after);
        return Variant(true);
    });
    EXPECT_EQ(stage.edit(7,
                         [](VendorEditor& editor) {
                             EXPECT_EQ(editor.caption(), "Edit Vendor");
                             EXPECT_EQ(editor.comboBox("cboPhone1Label").text(), "Hut")
                                 << "a label that is not in the list is kept";
                             EXPECT_EQ(editor.textBox("txtBillToAddress").text(),
                                       "1 Mill St\r\nReno\r\n89501");
                             EXPECT_EQ(editor.comboBox("cboTerms").text(), "Net 30");
                             EXPECT_EQ(editor.textBox("txtMargin").text(), "40");
                             EXPECT_EQ(editor.textBox("txtMarginAD").text(), "-12.5");
                             EXPECT_FALSE(editor.textBox("txtUniqueID").enabled());
                             EXPECT_TRUE(editor.textBox("txtName").enabled());
                             EXPECT_FALSE(editor.lblLocked.visible());
                             editor.cmdOK.userPress();
                         }),
              7);
    EXPECT_THAT(stage.executed(), ElementsAre(updatedWhole));
    EXPECT_THAT(stage.host->callsOf("Activity.RecordVendorActivity"),
                ElementsAre("7, Vendor updated:\r\nPhone2: 2 to 22\r\nContact: Ivo to Edda"));
    EXPECT_THAT(stage.host->callsOf("RecordEvent"), ElementsAre("2, Vendor 'O'Dell was updated."));
    EXPECT_THAT(stage.host->callsOf("Messages.PostMessage"), ElementsAre("6003, 7"));
    const auto place = [&](std::string_view begin) {
        return std::ranges::find_if(stage.host->calls, [=](const auto& c) { return c.starts_with(begin); });
    };
    EXPECT_LT(place("CurrentCompanyConn.Execute(" + std::string(snapshotSeven)), place("FixForSQLInsert"))
        << "the row is captured before the statement is built";
}

TEST(VendorEditor, AnUpdateThatChangesNothingIsNotInTheHistory) {
    VendorStage stage;
    const auto accept = [](VendorEditor& editor) { editor.cmdOK.userPress(); };
    EXPECT_EQ(stage.edit(7, accept), 7);
    EXPECT_THAT(stage.host->callsOf("Activity.RecordVendorActivity"), IsEmpty());
    EXPECT_THAT(stage.host->callsOf("Messages.PostMessage"), ElementsAre("6003, 7"));
    EXPECT_EQ(stage.host->callsOf("RecordEvent").size(), 1U);

    // No entry is written either when the row cannot be read before or after the update.
    VendorStage blind;
    blind.host->failStatement = snapshotSeven;
    EXPECT_EQ(blind.edit(7, accept), 7);
    EXPECT_THAT(blind.host->callsOf("Messages.PostMessage"), ElementsAre("6003, 7"));
    EXPECT_FALSE(blind.told());
}

TEST(VendorEditor, TheTermsAreTheDefaultOrTheFirstOrNone) {
    const struct {
        const char* option;
        bool anyTerms;
        const char *shown, *written;
    } cases[] = {{"6", true, "Net 60", ", 6, 0"},
                 {"-1", true, "COD", ", 3, 0"},
                 {"99", true, "COD", ", 3, 0"},
                 {"none", true, "COD", ", 3, 0"},
                 {"6", false, "", ", NULL, 0"}};
    for (const auto& c : cases) {
        VendorStage stage;
        stage.host->on("Options.GetCompanyOption", Variant(c.option));
        if (!c.anyTerms) stage.host->on("Common.LoadTerms", Variant());
        stage.edit(-1, [&](VendorEditor& editor) {
            EXPECT_EQ(editor.comboBox("cboTerms").text(), c.shown) << c.option;
            editor.textBox("txtName").userType("V");
            editor.cmdOK.userPress();
        });
        EXPECT_THAT(stage.inserted(), ElementsAre(HasSubstr(c.written))) << c.option;
    }
    // Terms that no longer exist are stored as none.
    VendorStage stage;
    stage.host->on("Common.LoadTerms", Variant());
    stage.edit(7, [](VendorEditor& editor) { editor.cmdOK.userPress(); });
    EXPECT_THAT(stage.executed(), ElementsAre(HasSubstr("TermsID = NULL,")));
}

TEST(VendorEditor, MarginsAreStoredAsFractions) {
    const struct {
        const char *typed, *shown, *stored;
    } cases[] = {{"12.5", "12.5", "0.125"},       {"33.33", "33.33", "0.3333"}, {"20000", "10000", "100"},
                 {"-200000", "-100000", "-1000"}, {"much", "0", "0"},           {"", "0", "0"},
                 {"$1,000", "1000", "10"}};
    for (const auto& c : cases) {
        VendorStage stage;
        stage.edit(0, [&](VendorEditor& editor) {
            editor.textBox("txtName").userType("V");
            editor.textBox("txtMarginAD").userType(c.typed);
            editor.textBox("txtMarginAD").userLeft();
            EXPECT_EQ(editor.textBox("txtMarginAD").text(), c.shown);
            editor.cmdOK.userPress();
        });
        const std::string margins = std::string("0, ") + c.stored + ", 0)";
        EXPECT_THAT(stage.inserted(), ElementsAre(EndsWith(margins))) << c.typed;
        EXPECT_THAT(stage.host->callsOf("tslnnum5.Checker.CheckDecimal"),
                    Contains("object, -100000, 10000, 0").Times(1))
            << "the number is corrected only when the box is left";
    }
    // OK pressed while the box has the focus saves the number that its text reads as.
    VendorStage stage;
    stage.edit(0, [](VendorEditor& editor) {
        editor.textBox("txtName").userType("V");
        editor.textBox("txtMargin").userType("20000");
        editor.cmdOK.userPress();
    });
    EXPECT_THAT(stage.inserted(), ElementsAre(EndsWith("200, 0, 0)")));
    EXPECT_THAT(stage.host->callsOf("tslnnum5.Checker.CheckDecimal"), IsEmpty());
}

TEST(VendorEditor, AnEmptyNameIsRefusedAndADuplicateOnlyWarnedOf) {
    VendorStage stage;
    stage.host->on("Common.RecordExists", Variant(true));
    EXPECT_EQ(stage.edit(0,
                         [](VendorEditor& editor) {
                             editor.TabControl1.userSelect(3);
                             editor.textBox("txtNotes").userEntered();
                             EXPECT_EQ(editor.cmdOK.role(), Button::Role::Plain) << "Enter starts a line";
                             editor.textBox("txtName").userType("   ");
                             editor.cmdOK.userPress();
                             EXPECT_TRUE(editor.shown());
                             EXPECT_TRUE(editor.cmdOK.enabled() != editor.lblMissing.visible() &&
                                         editor.cmdCancel.enabled());
                             EXPECT_EQ(editor.textBox("txtName").text(), "");
                             EXPECT_EQ(editor.TabControl1.selected(), 0);
                             EXPECT_EQ(editor.focusedControl(), &editor.textBox("txtName"));
                             EXPECT_EQ(editor.cmdOK.role(), Button::Role::Default);
                             EXPECT_EQ(editor.textBox("txtUniqueID").text(), "");
                             editor.textBox("txtName").userType("Twice");
                             editor.cmdOK.userPress();
                         }),
              1);
    EXPECT_THAT(stage.desktop.boxes,
                ElementsAre(exclamation("You must enter a name for this vendor."),
                            exclamation("A vendor with the name 'Twice' already exists.")));
    EXPECT_EQ(stage.inserted().size(), 1U);
}

TEST(VendorEditor, AFailedSaveIsReportedAndCanBeRepeated) {
    for (const std::int32_t ID : {0, 7}) {
        VendorStage stage;
        int tries = 0;
        stage.host->on("Database.ExecuteNonQuery", [&](Arguments) { return Variant(++tries > 1); });
        stage.host->on("Database.ExecuteNonQueryWithID",
                       [&](Arguments) { return Variant(++tries > 1 ? 8 : -1); });
        const std::int32_t result = stage.edit(ID, [&](VendorEditor& editor) {
            editor.textBox("txtName").userType("Kept");
            editor.textBox("txtNotes").userType("kept, too");
            editor.cmdOK.userPress();
            EXPECT_TRUE(editor.shown());
            EXPECT_TRUE(editor.cmdOK.enabled() != editor.lblMissing.visible() && editor.cmdCancel.enabled());
            EXPECT_EQ(editor.textBox("txtNotes").text(), "kept, too");
            EXPECT_THAT(stage.host->callsOf("RecordEvent"), IsEmpty());
            EXPECT_THAT(stage.host->callsOf("Messages.PostMessage"), IsEmpty());
            editor.cmdOK.userPress();
        });
        EXPECT_EQ(result, ID == 0 ? 8 : 7);
        EXPECT_THAT(stage.failures(), ElementsAre("The vendor 'Kept could not be " +
                                                  std::string(ID == 0 ? "added" : "updated") + "., " +
                                                  explanation + ", the database's own words"));
        EXPECT_EQ(stage.host->callsOf("Common.CreateGUID").size(), ID == 0 ? 1U : 0U) << "made once";
    }
}

TEST(VendorEditor, OnlyTheCompanysOwnFieldsOfALockedVendorCanBeChanged) {
    VendorStage stage("<Locked>1</Locked>");
    // The host answers that addresses are not to be validated; the lock overrides that.
    stage.host->on("ParseAddress",
                   [](Arguments a) { return a.assign(1, "x"), a.assign(7, false), Variant(); });
    EXPECT_EQ(stage.edit(7,
                         [](VendorEditor& editor) {
                             std::string locked;
                             for (const Control* control : editor.controls()) {
                                 if (!control->enabled()) locked += control->name() + " ";
                             }
                             EXPECT_EQ(locked,
                                       "txtName txtWebSite cboPhone1Label txtPhone1 cboPhone2Label txtPhone2 "
                                       "cboPhone3Label txtPhone3 cboEmail1Label txtEmail1 cboEmail2Label "
                                       "txtEmail2 txtBillToAddress txtShipToAddress chkSplitPOs "
                                       "chkElectronic txtOOPID txtUniqueID ");
                             EXPECT_TRUE(editor.imgLocked.visible() && editor.lblLocked.visible());
                             editor.lblCopyBilling.userFollow("Hyperlink_BillingToShipping");
                             EXPECT_EQ(editor.textBox("txtShipToAddress").text(),
                                       "1 Mill St\r\nReno\r\n89501");
                             editor.comboBox("cboTerms").userChoose(0);
                             editor.textBox("txtMargin").userType("5");
                             editor.checkBox("chkActive").userCheck(false);
                             editor.textBox("txtNotes").userType("new");
                             editor.cmdOK.userPress();
                         }),
              7);
    ASSERT_EQ(stage.executed().size(), 1U);
    for (const char* part :
         {"TermsID = 3,", "Active = 0,", "Notes = 'new', ValidateAddresses = 1, Margin = 0.05,"})
        EXPECT_THAT(stage.executed()[0], HasSubstr(part));
}

TEST(VendorEditor, AddressesAreParsedByTheHost) {
    VendorStage stage;
    std::vector<std::string> flags;
    stage.host->on("ParseAddress", [&](Arguments a) {
        flags.push_back(a[0].toText() + "|" + a[7].toText());
        a.assign(1, a[0]);
        a.assign(0, a[0].toText() == "" ? "" : "In order");
        return Variant(true);
    });
    stage.edit(0, [&](VendorEditor& editor) {
        editor.textBox("txtName").userType("V");
        editor.textBox("txtBillToAddress").userType("any order");
        editor.textBox("txtBillToAddress").userLeft();
        EXPECT_EQ(editor.textBox("txtBillToAddress").text(), "In order");
        editor.lblCopyBilling.userFollow("Hyperlink_BillingToShipping");
        EXPECT_EQ(editor.textBox("txtShipToAddress").text(), "In order");
        editor.textBox("txtShipToAddress").userType("");
        editor.textBox("txtShipToAddress").userLeft();  // addresses are validated from now on
        editor.textBox("txtBillToAddress").userType("typed");
        editor.cmdOK.userPress();
    });
    EXPECT_THAT(flags, ElementsAre("any order|False", "|True", "typed|True", "|True"));
    EXPECT_THAT(stage.inserted(), ElementsAre(HasSubstr(" 1, 1, 0, 0, 0)")));
}

TEST(VendorEditor, TheCloseBoxCancels) {
    VendorStage stage;
    EXPECT_EQ(stage.edit(7,
                         [](VendorEditor& editor) {
                             editor.textBox("txtName").userType("changed");
                             editor.userClose();
                             EXPECT_FALSE(editor.shown());
                         }),
              0);
    EXPECT_THAT(stage.executed(), IsEmpty());
}

TEST(VendorEditor, AMissingRowIsShownEmptyAndCannotBeSaved) {
    VendorStage stage;
    EXPECT_EQ(stage.edit(8,
                         [](VendorEditor& editor) {
                             EXPECT_EQ(editor.caption(), "Edit Vendor");
                             EXPECT_EQ(editor.textBox("txtName").text(), "");
                             EXPECT_EQ(editor.comboBox("cboTerms").listIndex(), -1);
                             EXPECT_TRUE(editor.lblMissing.visible());
                             editor.textBox("txtName").userType("Ghost");
                             editor.cmdOK.userPress();
                             EXPECT_TRUE(editor.shown());
                         }),
              0);
    EXPECT_THAT(stage.executed(), IsEmpty());
}

TEST(VendorEditor, ARowThatCannotBeReadIsNotOverwritten) {
    for (const bool connected : {false, true}) {
        VendorStage stage;
        if (connected) {
            stage.host->failStatement = readSeven;
        } else {
            stage.host->on("CurrentCompanyConn", Variant(ObjectPtr()));
        }
        EXPECT_EQ(stage.library->ShowEditVendor(7), 0);
        EXPECT_THAT(stage.desktop.shown, IsEmpty());
        EXPECT_TRUE(stage.told());
    }
}

TEST(VendorEditor, ASaveCountsOnceTheRowIsWritten) {
    VendorStage stage;
    for (const char* path : {"Activity.RecordCustomerActivity", "RecordEvent", "Messages.PostMessage"}) {
        stage.host->on(path, raises());
    }
    EXPECT_EQ(stage.edit(0,
                         [](VendorEditor& editor) {
                             editor.textBox("txtName").userType("V");
                             editor.cmdOK.userPress();
                             EXPECT_FALSE(editor.shown());
                         }),
              1);
    EXPECT_EQ(stage.inserted().size(), 1U);
    EXPECT_EQ(stage.failures().size(), 3U);
}

TEST(VendorEditor, ThePositionAndTheMaximizedStateAreKept) {
    VendorStage stage;
    const std::string key = "Software\\Kestrane\\Tessaline\\5.0\\Window Positions\\frmEditVendor|";
    stage.desktop.settings = {{key + "Left", "40"}, {key + "Width", "700"}, {key + "WindowState", "2"}};
    stage.edit(0, [](VendorEditor& editor) {
        EXPECT_EQ(editor.placement.left, 40);
        EXPECT_TRUE(editor.placement.maximized);
        editor.placement.maximized = false;
        editor.placement.height = 500;
    });
    EXPECT_EQ(stage.desktop.settings[key + "WindowState"], "0");
    EXPECT_EQ(stage.desktop.settings[key + "Height"], "500");
}

}  // namespace
}  // namespace tsln::test
