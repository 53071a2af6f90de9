#include "tests/entities/CustomerStage.h"

namespace tsln::test {
namespace {

constexpr auto noSalesRep =
    "You have not selected a sales rep for this customer. You will be required to select a sales rep when you create a quote or sale for this customer. Are you sure you want to continue without selecting a sales rep?";
constexpr auto askExported =
    "This customer has been exported. Do you want to clear the exported flag so that it gets exported again.";

// The complete expected statements, so that a change to a template shows.
constexpr auto insertedWhole =
    "INSERT INTO Customers (CustomerName, AccountNumber, CompanyName, Contact, FirstName, LastName, MiddleInitial, Phone1Label, Phone1, Phone2Label, Phone2, Phone3Label, Phone3, Email1Label, Email1, Email2Label, Email2, BillToAddress1, BillToAddress2, BillToCity, BillToState, BillToZip, BillToCountry, SalesTaxGroupID, ResaleNumber, TaxExNumber, DiscountGroupID, CustomerTypeiD, TermsID, SalesRepID, InstallerID, DesignerID, ShippingMethodID, ReferralMethodID, SalesAccount, CreditHold, OrderEntryComment, CSRMessage, Notes, Active, ValidateAddresses, LocationID, CreditLimit, CustomerDiscountGroupID, Exported) VALUES ('O''Dell', 'A''1', 'Co', 'Ivo', 'F', 'L', 'M', 'Cell', '555', 'Work', '', 'Mobile','', 'Home', 'a@b', 'Work', '',  "
    "'b1', 'b2', 'b3', 'b4', 'b5', 'b6', 11, ' r', ' t', 12, 11, 12, 11, 11, 11, 11, 11, 'acct', 1, 'oe''s', 'csr', ' it''s\r\n', 1, 0, NULL, 12.5, 11, 1)";
constexpr auto updatedWhole =
    "UPDATE Customers SET CustomerName = 'Dell, Ann', AccountNumber = 'A7', CompanyName = 'Dell''s', Contact = 'Ann',  FirstName = 'Ann', LastName = 'Dell', MiddleInitial = 'B', Phone1Label = 'Hut', Phone1 = '1', Phone2Label = 'Work', Phone2 = '2', Phone3Label = 'Fax', Phone3 = '3', Email1Label = 'Home', Email1 = 'a@b', Email2Label = 'Work', Email2 = 'c@d',  "
    "BillToAddress1 = '1 Mill St\r\nReno', BillToAddress2 = '', BillToCity = '', BillToState = '', BillToZip = '', BillToCountry = '', SalesTaxGroupID = 11, ResaleNumber = 'R', TaxExNumber = 'T', DiscountGroupID = 12, CustomerTypeID = 11, TermsID = 12, SalesRepID = 12, InstallerID = 11, DesignerID = NULL, ShippingMethodID = 11, ReferralMethodID = NULL, SalesAccount = 'SA', CreditHold = 1, OrderEntryComment = 'oe', CSRMessage = 'csr', Notes = ' n\r\nm ', Active = 1, ValidateAddresses = 1, LocationID = 11, CreditLimit = 2500.5, CustomerDiscountGroupID = 12, Exported = 0 WHERE ID = 7";

TEST(CustomerEditor, ANewCustomerGetsTheDefaultsAndIsInserted) {
    CustomerStage stage;
    stage.host->on("Options.GetCompanyOption", [](Arguments a) {
        const std::string name = a[0].toText();
        if (name == "DefaultPhone1Label") return Variant(" Cell ");
        if (name == "DefaultPriceDiscountGroup" || name == "DefaultTerms") return Variant("12");
        if (name == "DefaultGroups") return Variant("2,,77, 1,x");
        return a[2];
    });
    stage.host->on("ParseAddress", [](Arguments a) {
        for (std::size_t i = 1; i <= 6; ++i)
            a.assign(i, a[0].toText().substr(0, 1) + std::to_string(i));
        return Variant(true);
    });
    EXPECT_EQ(stage.edit(0,
                         [](CustomerEditor& editor) {
                             EXPECT_EQ(editor.caption(), "New Customer");
                             EXPECT_EQ(editor.comboBox("cboPhone1Label").text(), "Cell");
                             EXPECT_EQ(editor.comboBox("cboDiscountGroup").text(), "Entry 12");
                             EXPECT_EQ(editor.comboBox("cboReferralMethod").text(), "Entry 11")
                                 << "the first";
                             EXPECT_EQ(editor.comboBox("cboLocation").text(), "") << "has no default";
                             EXPECT_TRUE(editor.checkBox("chkActive").checked());
                             EXPECT_EQ(tickedGroups(editor), "News;Offices;");
                             EXPECT_EQ(labelsOf(editor), "");
                             editor.textBox("txtCustomerName").userType("  O'Dell ");
                             editor.textBox("txtAccountNumber").userType(" A'1 ");
                             editor.textBox("txtCompanyName").userType(" Co ");
                             editor.textBox("txtContact").userType(" Ivo");
                             editor.textBox("txtFirstName").userType("F ");
                             editor.textBox("txtLastName").userType(" L");
                             editor.textBox("txtMiddleInitial").userType("M ");
                             editor.textBox("txtPhone1").userType(" 555 ");
                             editor.textBox("txtEmail1").userType(" a@b ");
                             editor.textBox("txtBillToAddress").userType("bill");
                             editor.textBox("txtResaleNo").userType(" r");
                             editor.textBox("txtTaxExNo").userType(" t");
                             editor.textBox("txtSalesAccount").userType("acct");
                             editor.checkBox("chkCreditHold").userCheck(true);
                             editor.textBox("txtCreditLimit").userType(" 12.50 dollars");
                             editor.textBox("txtOrderEntryComment").userType("oe's");
                             editor.textBox("txtCSRMessage").userType("csr");
                             editor.textBox("txtNotes").userType(" it's\r\n");
                             editor.checkBox("chkExported").userCheck(true);
                             accept(editor);
                         }),
              8);
    EXPECT_THAT(stage.inserted(), ElementsAre(insertedWhole));
    EXPECT_THAT(stage.executed(), ElementsAre("EXEC EnsureCustomerDefaultAddress 8"));
    EXPECT_THAT(stage.onConnection(),
                ElementsAre("INSERT INTO GroupedCustomers (GroupID, CustomerID) VALUES(1, 8)",
                            "INSERT INTO GroupedCustomers (GroupID, CustomerID) VALUES(2, 8)"));
    EXPECT_THAT(stage.host->callsOf("Activity.RecordCustomerActivity"), ElementsAre("8, Customer added."));
    EXPECT_THAT(stage.host->callsOf("RecordEvent"), ElementsAre("2, Customer 'O'Dell was added."));
    EXPECT_THAT(stage.host->callsOf("Messages.PostMessage"), ElementsAre("3001, 8"));
    EXPECT_THAT(stage.host->callsOf("Common.RecordExists"),
                ElementsAre("Customers, CustomerName, O'Dell, 0", "Customers, AccountNumber, A'1, 0"));
    EXPECT_THAT(stage.host->callsOf("Common.LoadDiscountGroups"), ElementsAre("object, 0", "object, 2"));
    EXPECT_THAT(stage.host->callsOf("Database.ExecuteScaler"), IsEmpty());
    for (const char* option :
         {"DefaultTaxGroup, Customers, -1", "DefaultCustomerDiscountGroup, Customers, -1",
          "DefaultCustomerType, Customers, -1", "DefaultSalesRep, Customers, -1",
          "DefaultInstaller, Customers, -1", "DefaultDesigner, Customers, -1",
          "DefaultShippingMethod, Customers, -1", "DefaultReferralMethod, Customers, -1",
          "DefaultEmail2Label, Customers, Work"})
        EXPECT_THAT(stage.host->callsOf("Options.GetCompanyOption"), Contains(option));
}

TEST(CustomerEditor, InTheModeOfOwnCustomersASalesRepGetsTheNewCustomer) {
    const struct {
        std::int32_t mode, count;
        const char* rep;
    } cases[] = {{2, 1, "Entry 12"}, {2, 0, "Entry 11"}, {1, 1, "Entry 11"}};
    for (const auto& c : cases) {
        CustomerStage stage;
        stage.host->on("OperatingMode", Variant(c.mode));
        stage.host->on("Database.ExecuteScaler", Variant(c.count));
        stage.edit(0,
                   [&](CustomerEditor& editor) { EXPECT_EQ(editor.comboBox("cboSalesRep").text(), c.rep); });
        if (c.mode != 2) continue;
        EXPECT_THAT(
            stage.host->callsOf("Database.ExecuteScaler"),
            ElementsAre("SELECT COUNT(*) AS theCount FROM Employees WHERE ID = 12 AND SalesRep <> 0 "));
    }
}

TEST(CustomerEditor, ACustomerIsLoadedAndUpdatedAndTheHistoryShowsTheChange) {
    CustomerStage stage;
    stage.host->on("Database.ExecuteNonQuery", [&](Arguments) {
        std::string after = customerSeven();
        after.replace(after.find("<Active>1"), 9, "<Active>0");
        after.replace(after.find("Dell, Ann"), 9, "Dell, Eve");
        stage.host->rows(snapshotOfSeven, after);
        return Variant(true);
    });
    EXPECT_EQ(stage.edit(7,
                         [](CustomerEditor& editor) {
                             EXPECT_EQ(editor.caption(), "Edit Customer");
                             EXPECT_EQ(editor.comboBox("cboPhone1Label").text(), "Hut");
                             EXPECT_EQ(editor.textBox("txtBillToAddress").text(), "1 Mill St\r\nReno");
                             EXPECT_EQ(editor.textBox("txtCreditLimit").text(), "2500.5");
                             EXPECT_EQ(editor.comboBox("cboDesigner").text(), "") << "no such designer";
                             EXPECT_TRUE(editor.comboBox("cboLocation").visible());
                             EXPECT_EQ(labelsOf(editor), "Home;Work;");
                             EXPECT_EQ(editor.addresses.cboAddressLabel.text(), "Work")
                                 << "the default address";
                             EXPECT_EQ(editor.addresses.txtShipToAddress.text(), "Dock 2\r\nReno");
                             EXPECT_EQ(tickedGroups(editor), "Builders;News;");
                             accept(editor);
                         }),
              7);
    EXPECT_THAT(stage.executed(), ElementsAre(updatedWhole, "EXEC EnsureCustomerDefaultAddress 7"));
    EXPECT_THAT(
        stage.onConnection(),
        ElementsAre(
            "UPDATE CustomerAddresses SET AddressLabel = 'Home', Address1 = '1 Mill St', Address2 = '', City = 'Reno', State = '', Zip = '', Country = '', isDefault = 0 WHERE ID = 70",
            "UPDATE CustomerAddresses SET AddressLabel = 'Work', Address1 = 'Dock 2', Address2 = '', City = 'Reno', State = '', Zip = '', Country = '', isDefault = 1 WHERE ID = 71",
            "DELETE FROM GroupedCustomers WHERE CustomerID = 7",
            "INSERT INTO GroupedCustomers (GroupID, CustomerID) VALUES(1, 7)",
            "INSERT INTO GroupedCustomers (GroupID, CustomerID) VALUES(3, 7)"));
    EXPECT_THAT(
        stage.host->callsOf("Activity.RecordCustomerActivity"),
        ElementsAre("7, Customer updated:\r\nCustomer name: Dell, Ann to Dell, Eve\r\nActive: Yes to No"));
    EXPECT_THAT(stage.host->callsOf("RecordEvent"), ElementsAre("2, Customer 'Dell, Ann was updated."));
    EXPECT_THAT(stage.host->callsOf("Messages.PostMessage"), ElementsAre("3003, 7"));
    EXPECT_FALSE(stage.told());
}

TEST(CustomerEditor, TheFeatureOfLocationsShowsTheLocation) {
    CustomerStage stage;
    stage.host->on("Security.CompanyFeatureEnabled", Variant(false));
    stage.edit(7, [](CustomerEditor& editor) {
        EXPECT_FALSE(editor.comboBox("cboLocation").visible());
        accept(editor);
    });
    EXPECT_THAT(stage.host->callsOf("Security.CompanyFeatureEnabled"), ElementsAre("1"));
    EXPECT_THAT(stage.executed(), Contains(HasSubstr("LocationID = 11,"))) << "and the hidden one is kept";
}

TEST(CustomerEditor, TheNameOfANewCustomerIsSplit) {
    for (const std::int32_t ID : {0, 7}) {
        CustomerStage stage;
        stage.host->on("Common.ParseCompleteName", [](Arguments a) {
            a.assign(1, "Anna");
            a.assign(3, "Lund");
            return Variant();
        });
        stage.edit(ID, [&](CustomerEditor& editor) {
            TextBox& name = editor.textBox("txtCustomerName");
            name.userType("");
            name.userLeft();
            editor.textBox("txtMiddleInitial").userType("Q");
            name.userType("Anna Lund");
            name.userLeft();
            EXPECT_EQ(editor.textBox("txtFirstName").text(), ID == 0 ? "Anna" : "Ann");
            EXPECT_EQ(editor.textBox("txtMiddleInitial").text(), "Q") << "an empty part replaces nothing";
            EXPECT_EQ(editor.textBox("txtLastName").text(), ID == 0 ? "Lund" : "Dell");
        });
        EXPECT_EQ(stage.host->callsOf("Common.ParseCompleteName").size(), ID == 0 ? 1U : 0U);
    }
}

TEST(CustomerEditor, AnEmptyAccountNumberIsNullAndTheCreditLimitIsTheLeadingNumber) {
    const std::pair<const char*, const char*> limits[] = {
        {"", "0"},       {"abc", "0"},   {"-3.25x", "-3.25"}, {"1,000", "1"}, {"$5", "0"},
        {"1e3", "1000"}, {"1e999", "0"}, {".5.5", "0.5"},     {"inf", "0"}};
    for (const auto& [typed, written] : limits) {
        CustomerStage stage;
        stage.edit(0, [&](CustomerEditor& editor) {
            editor.textBox("txtCustomerName").userType("C");
            editor.textBox("txtAccountNumber").userType("  ");
            editor.textBox("txtCreditLimit").userType(typed);
            accept(editor);
        });
        EXPECT_THAT(stage.inserted(), ElementsAre(HasSubstr("VALUES ('C', NULL, '")));
        EXPECT_THAT(stage.inserted(), ElementsAre(EndsWith(std::string(", ") + written + ", 11, 0)")))
            << typed;
        EXPECT_EQ(stage.host->callsOf("Common.RecordExists").size(), 1U) << "only the name must be unique";
    }
    CustomerStage stage;
    stage.edit(0, [&](CustomerEditor& editor) {
        editor.textBox("txtCreditLimit").userType("$1,000.50");
        editor.textBox("txtCreditLimit").userLeft();
        EXPECT_EQ(editor.textBox("txtCreditLimit").text(), "1000.5") << "the user sees what will be saved";
    });
}

TEST(CustomerEditor, EachRefusalNamesItsFieldAndSavesNothing) {
    const struct {
        const char* message;
        const char* control;
        int page;
        std::function<void(CustomerStage&, CustomerEditor&)> arrange;
    } cases[] = {
        {"A customer with the name 'Dell, Ann' already exists.", "txtCustomerName", 0,
         [](CustomerStage& stage, CustomerEditor&) { stage.host->on("Common.RecordExists", Variant(true)); }},
        {"A customer with the account number 'A7' already exists.", "txtAccountNumber", 0,
         [](CustomerStage& stage, CustomerEditor&) {
             stage.host->on("Common.RecordExists",
                            [](Arguments a) { return a[1].toText() == "AccountNumber"; });
         }},
        {"You must select a price discount group.", "cboDiscountGroup", 1,
         [](CustomerStage&, CustomerEditor& editor) {
             for (const char* combo : {"cboDiscountGroup", "cboCustomerDiscountGroup", "cboCustomerType"})
                 editor.comboBox(combo).setListIndex(-1);
         }},
        {"You must select a customer discount group.", "cboCustomerDiscountGroup", 1,
         [](CustomerStage&, CustomerEditor& editor) {
             for (const char* combo : {"cboCustomerDiscountGroup", "cboCustomerType"})
                 editor.comboBox(combo).setListIndex(-1);
         }},
        {"You must select a customer type.", "cboCustomerType", 1,
         [](CustomerStage&, CustomerEditor& editor) { editor.comboBox("cboCustomerType").setListIndex(-1); }},
        {noSalesRep, "cboSalesRep", 2,
         [](CustomerStage&, CustomerEditor& editor) { editor.comboBox("cboSalesRep").setListIndex(-1); }},
    };
    for (const auto& c : cases) {
        CustomerStage stage;
        EXPECT_EQ(stage.edit(7,
                             [&](CustomerEditor& editor) {
                                 editor.TabControl1.userSelect(3);
                                 c.arrange(stage, editor);
                                 accept(editor);
                                 EXPECT_TRUE(editor.shown()) << c.message;
                                 EXPECT_EQ(editor.focusedControl(), editor.control(c.control));
                                 EXPECT_EQ(editor.TabControl1.selected(), c.page) << c.message;
                                 EXPECT_TRUE(editor.cmdOK.enabled());
                             }),
                  0);
        const bool question = c.message == noSalesRep;
        EXPECT_THAT(stage.desktop.boxes,
                    ElementsAre(Box{c.message, question ? MessageButtons::YesNo : MessageButtons::Ok,
                                    question ? MessageIcon::Question : MessageIcon::Exclamation}));
        EXPECT_THAT(stage.executed(), IsEmpty());
        EXPECT_THAT(stage.onConnection(), IsEmpty());
    }
    // Yes to the question saves.
    CustomerStage stage;
    stage.desktop.answers = {MessageAnswer::Yes};
    EXPECT_EQ(stage.edit(7,
                         [](CustomerEditor& editor) {
                             editor.comboBox("cboSalesRep").setListIndex(-1);
                             accept(editor);
                         }),
              7);
    EXPECT_THAT(stage.executed(), Contains(HasSubstr("SalesRepID = NULL,")));
}

TEST(CustomerEditor, TheCompanyDecidesWhetherAChangedCustomerIsExportedAgain) {
    const struct {
        const char* option;
        bool exported, yes, asked, stays;
    } cases[] = {{"0", true, true, false, true},    {"1", true, true, true, false},
                 {"1", true, false, true, true},    {"1", false, true, false, false},
                 {"2", true, false, false, false},  {"3", true, true, false, true},
                 {"often", true, true, false, true}};
    for (const auto& c : cases) {
        CustomerStage stage;
        stage.desktop.answers = {c.yes ? MessageAnswer::Yes : MessageAnswer::No};
        stage.host->on("Options.GetCompanyOption", [&](Arguments a) {
            return a[0].toText() == "ResetCustomerExported" ? Variant(c.option) : a[2];
        });
        stage.edit(7, [&](CustomerEditor& editor) {
            editor.checkBox("chkExported").userCheck(c.exported);
            accept(editor);
        });
        EXPECT_EQ(stage.desktop.boxes.size(), c.asked ? 1U : 0U) << c.option;
        if (c.asked) {
            EXPECT_EQ(stage.desktop.boxes[0], question(askExported));
        }
        EXPECT_THAT(stage.executed(), Contains(HasSubstr(c.stays ? "Exported = 1 " : "Exported = 0 ")));
    }
}

TEST(CustomerEditor, AFailedSaveIsReportedAndKeepsTheInput) {
    for (const std::int32_t ID : {0, 7}) {
        CustomerStage stage;
        int tries = 0;
        stage.host->on("Database.ExecuteNonQuery", [&](Arguments a) {
            return Variant(a[0].toText().starts_with("EXEC") || ++tries > 1);
        });
        stage.host->on("Database.ExecuteNonQueryWithID",
                       [&](Arguments) { return Variant(++tries > 1 ? 8 : -1); });
        EXPECT_EQ(stage.edit(ID,
                             [&](CustomerEditor& editor) {
                                 editor.textBox("txtCustomerName").userType("Kept");
                                 editor.textBox("txtNotes").userType("kept, too");
                                 tickGroup(editor, "Offices");
                                 accept(editor);
                                 EXPECT_TRUE(editor.shown());
                                 EXPECT_EQ(editor.textBox("txtNotes").text(), "kept, too");
                                 EXPECT_THAT(stage.onConnection(), IsEmpty());
                                 EXPECT_THAT(stage.host->callsOf("Messages.PostMessage"), IsEmpty());
                                 // A stored customer's addresses are ensured in any case.
                                 EXPECT_EQ(stage.executed().size(), ID == 0 ? 0U : 2U);
                                 accept(editor);
                             }),
                  ID == 0 ? 8 : 7);
        EXPECT_THAT(stage.failures(), ElementsAre("The customer 'Kept could not be " +
                                                  std::string(ID == 0 ? "added" : "updated") + "., " +
                                                  explanation + ", the database's own words"));
        EXPECT_THAT(stage.onConnection(),
                    Contains(HasSubstr("VALUES(2, " + std::to_string(ID == 0 ? 8 : 7) + ")")));
    }
}

TEST(CustomerEditor, AFailedFurtherStatementIsToldAndTheRestIsSaved) {
    const struct {
        std::int32_t ID;
        const char* fails;
        const char* told;
        std::size_t statements;
    } cases[] = {
        {0, "INSERT INTO CustomerAddresses", "One or more of the addresses could not be saved.", 3},
        {0, "INSERT INTO Grouped", "One or more of the group memberships could not be saved.", 3},
        {7, "DELETE FROM CustomerAddresses", "One or more of the addresses could not be deleted.", 7},
        {7, "UPDATE CustomerAddresses", "One or more of the addresses could not be saved.", 7},
        {7, "DELETE FROM Grouped", "Group memberships could not be updated.", 4},
        {7, "INSERT INTO Grouped", "One or more of the group memberships could not be updated.", 7},
    };
    for (const auto& c : cases) {
        CustomerStage stage;
        stage.host->on(
            "CurrentCompanyConn.Execute", [&, usual = RecordingHost::make()](Arguments a) -> Variant {
                const std::string sql = a[0].toText();
                if (sql.starts_with(c.fails)) throw HostError(code::fail, "Connection", "refused");
                usual->rows("SELECT * FROM Customers WHERE ID = 7", customerSeven());
                return usual->sharedCode()->get("CurrentCompanyConn").object().call("Execute", sql);
            });
        EXPECT_EQ(stage.edit(c.ID,
                             [&](CustomerEditor& editor) {
                                 editor.textBox("txtCustomerName").userType("C");
                                 if (c.ID == 7) editor.addresses.Hyperlink_DeleteAddress();
                                 editor.addresses.txtShipToAddress.userType("typed");
                                 editor.addresses.txtShipToAddress.userLeft();
                                 if (c.ID == 7) {
                                     answerLabel(stage, "New");
                                     editor.addresses.Hyperlink_NewAddress();
                                 }
                                 tickGroup(editor, "Builders");
                                 tickGroup(editor, "Offices");
                                 if (c.ID == 7) tickGroup(editor, "News");
                                 accept(editor);
                             }),
                  c.ID == 0 ? 8 : 7);
        EXPECT_THAT(stage.host->callsOf("ShowADOErrorMessage"),
                    ElementsAre(std::string(c.told) + ", {standard explanation}, object"))
            << c.fails;
        EXPECT_EQ(stage.onConnection().size(), c.statements) << c.fails;
        EXPECT_THAT(stage.host->callsOf("Messages.PostMessage").size(), 1U) << "the customer is saved";
    }
}

TEST(CustomerEditor, GroupsThatCouldNotBeReadAreLeftAlone) {
    for (const char* fails : {"Groups WHERE", "GroupedCustomers"}) {
        CustomerStage stage;
        stage.host->on("Database.ExecuteRead", [&](Arguments a) -> Variant {
            const std::string sql = a[0].toText();
            if (sql.find(fails) != sql.npos) throw HostError(code::fail, "Database", "down");
            return makeDocument("<Records/>");
        });
        EXPECT_EQ(stage.edit(7,
                             [](CustomerEditor& editor) {
                                 EXPECT_EQ(editor.groups.rptGroups.recordCount(), 0U);
                                 editor.textBox("txtContact").userType("changed");
                                 accept(editor);
                             }),
                  7);
        EXPECT_TRUE(stage.told());
        EXPECT_THAT(stage.executed(), Contains(HasSubstr("Contact = 'changed'")));
        EXPECT_THAT(stage.onConnection(), IsEmpty());
    }
}

TEST(CustomerEditor, TheListOfGroupsIsEditedFromTheEditor) {
    CustomerStage stage;
    stage.desktop.user<Screen>("frmGroups", [&](Screen& groups) {
        stage.host->rows("SELECT * FROM Groups WHERE GroupType = 1 ORDER BY GroupName",
                         "<Records><Record><ID>1</ID><GroupName>Letters</GroupName></Record>"
                         "<Record><ID>9</ID><GroupName>Schools</GroupName></Record></Records>");
        groups.userClose();
    });
    stage.edit(7, [](CustomerEditor& editor) {
        editor.lblEditGroups.userFollow("Hyperlink_EditGroups");
        EXPECT_EQ(tickedGroups(editor), "Letters;");
        tickGroup(editor, "Schools");
        accept(editor);
    });
    EXPECT_THAT(stage.onConnection(),
                Contains("INSERT INTO GroupedCustomers (GroupID, CustomerID) VALUES(9, 7)"));
    EXPECT_THAT(stage.onConnection(),
                Not(Contains("INSERT INTO GroupedCustomers (GroupID, CustomerID) VALUES(3, 7)")));
}

TEST(CustomerEditor, NoHostFaultBehindALinkLosesInput) {
    sweepFaults([](Stage& stage) {
        CustomerStage::furnish(stage);
        stage.desktop.user<RecordDialog>("frmAddressLabel", [](RecordDialog& dialog) {
            labelBox(dialog).userType("Barn");
            dialog.cmdOK.userPress();
        });
        stage.desktop.user<CustomerEditor>(frmEditCustomer, [&](CustomerEditor& editor) {
            editor.textBox("txtCustomerName").userType("Typed");
            editor.addresses.txtShipToAddress.userType("typed address");
            editor.addresses.lblAddressLinks.userFollow("Hyperlink_NewAddress");
            editor.addresses.cboAddressLabel.userChoose(0);
            editor.addresses.lblAddressLinks.userFollow("Hyperlink_DeleteAddress");
            editor.lblEditGroups.userFollow("Hyperlink_EditGroups");
            tickGroup(editor, "Offices");
            accept(editor);
            if (!editor.shown()) return;
            EXPECT_TRUE(stage.told() || editor.lblMissing.visible());
            EXPECT_EQ(editor.textBox("txtCustomerName").text(), "Typed");
        });
        stage.library->ShowEditCustomer(7);
    });
}

}  // namespace
}  // namespace tsln::test
