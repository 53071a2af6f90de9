#include "doubles/Stage.h"
#include "pricing/AdditionalCharge.h"

namespace tsln::test {
namespace {

using pricing::AdditionalChargeDialog;

constexpr auto dialogName = "frmAdditionalCharges_Edit";
constexpr auto readSeven = "SELECT * FROM AdditionalCharges WHERE ID = 7";
constexpr auto readTypeOfSeven = "SELECT ChargeType FROM AdditionalCharges WHERE ID = 7";
constexpr auto readGroups = "SELECT DISTINCT GroupName FROM AdditionalCharges WHERE LEN(GroupName) > 0";

constexpr auto rowSeven =
    "<Records><Record><ID>7</ID><ChargeType>2</ChargeType><ChargeCode>90c7a3f1</ChargeCode><Enabled>1</Enabled>"
    "<GroupName>Spring</GroupName><ChargeName>Spring sale</ChargeName><Description>All shades</Description>"
    "<Cost>9.0</Cost><ChargeMethod>12</ChargeMethod><Value>-12345.678</Value><Taxable>1</Taxable>"
    "<AutoAddToQuotes>0</AutoAddToQuotes><AutoAddToPOs>1</AutoAddToPOs><StartsOn>2024-03-01T00:00:00</StartsOn>"
    "<Criteria>Width over 96</Criteria><VendorID>44</VendorID><Notes>n&#13;&#10;m</Notes>"
    "<IncludeWithProductItems>1</IncludeWithProductItems><SalesAccountID>4</SalesAccountID>"
    "<ExportChargeName>SALE</ExportChargeName><Exported>0</Exported><Category>3</Category><Sequence>5</Sequence>"
    "</Record></Records>";

/// A host with a customer type, a vendor, an account of each kind, two groups and the promotion 7, whose vendor is not
/// offered.
struct ChargeStage : Stage {
    ChargeStage() {
        host->on("Common.LoadCustomerTypes", fills({{"Retail", 3}}));
        host->on("Common.LoadVendors", fills({{"Aldermoor", 5}}));
        host->on("Common.LoadSalesAccounts", fills({{"Installation Income", 4}}));
        host->on("Common.LoadPurchaseAccounts", fills({{"Freight In", 11}}));
        host->on("Database.ExecuteScaler",
                 [](Arguments a) { return Variant(a[0].toText() == readTypeOfSeven ? 2 : 0); });
        host->rows(readGroups,
                   "<Records><Record><GroupName>Spring</GroupName></Record>"
                   "<Record><GroupName>Fall</GroupName></Record></Records>");
        host->rows(readSeven, rowSeven);
    }
    template <class Act>
    std::int32_t edit(std::int32_t ID, int type, Act act) {
        desktop.user<AdditionalChargeDialog>(dialogName, act);
        return library->ShowEditAdditionalCharge(ID, type);
    }
};

std::string methodsOf(AdditionalChargeDialog& dialog) {
    std::string captions;
    for (const ComboBox::Entry& entry : dialog.comboBox("cboChargeMethod").entries())
        captions += (captions.empty() ? "" : ", ") + entry.text;
    return captions;
}

/// Fills what every charge needs, so that no question is asked.
void fill(AdditionalChargeDialog& dialog, const char* value = "5", int method = 1) {
    dialog.textBox("txtName").userType("Lift");
    dialog.textBox("txtCost").userType("2");
    dialog.checkBox("chkTaxable").userCheck(true);
    dialog.comboBox("cboChargeMethod").choose(method);
    dialog.textBox("txtValue").userType(value);
}

TEST(AdditionalCharge, TheTypeDeterminesTitleMethodsAndPages) {
    const std::string order =
        "Flat Rate, Per Product, Percent, Percent per Product, Rate per Total Sqr Feet, Rate per Total Linear Feet, Add Price Line, Subtract Price Line";
    const std::string item =
        "Flat Rate, Percent of Before Discount Cost, Percent of Before Discount Price, Percent of After Discount Cost, Percent of After Discount Price, Percent of Before Price Adjustment Cost, Percent of Before Price Adjustment Price";
    const struct {
        int type;
        const char* title;
        std::string methods;
        bool asksForFeature;
    } cases[] = {{1, "Edit Vendor Promotion", order, true},       {2, "Edit Customer Promotion", order, true},
                 {4, "Edit Item Price Adjustment", item, false},  {8, "Edit Additional Charge", order, true},
                 {256, "Edit Item Cost Adjustment", item, false}, {3, "Edit Additional Charge", "", false}};
    for (const auto& c : cases) {
        ChargeStage stage;
        stage.host->on("Security.CompanyFeatureEnabled", Variant(false));
        EXPECT_EQ(stage.edit(0, c.type,
                             [&](AdditionalChargeDialog& dialog) {
                                 EXPECT_EQ(dialog.caption(), c.title);
                                 EXPECT_EQ(methodsOf(dialog), c.methods);
                                 EXPECT_EQ(dialog.TabControl1.isPageVisible(2), !c.asksForFeature);
                                 EXPECT_EQ(dialog.focusedControl(), &dialog.textBox("txtName"));
                             }),
                  0);
    }
}

TEST(AdditionalCharge, TheHelpSentenceOfTheMethodIsShown) {
    ChargeStage stage;
    stage.edit(0, 8, [](AdditionalChargeDialog& dialog) {
        dialog.comboBox("cboChargeMethod").userChoose(4);
        EXPECT_EQ(
            plainText(dialog.lblMethodHelp.caption()),
            "The doller value entered per the total square feet of all product items will be added to the order.");
        dialog.comboBox("cboChargeMethod").userChoose(2);
        EXPECT_EQ(
            plainText(dialog.lblMethodHelp.caption()),
            "A percent of the total price of item(s) you select during order entry will be added to the order.");
    });
}

TEST(AdditionalCharge, ANewChargeIsInsertedWithItsCode) {
    ChargeStage stage;
    stage.host->on("Database.ExecuteNonQueryWithID", Variant(12));
    stage.host->on("tslnfe5.Engine.ShowEditExpression", Variant("Height > 'x'"));
    EXPECT_EQ(stage.edit(0, 8,
                         [](AdditionalChargeDialog& dialog) {
                             ComboBox& group = dialog.comboBox("cboGroup");
                             EXPECT_EQ(group.entries().size(), 2U);
                             EXPECT_TRUE(dialog.checkBox("chkEnabled").checked());
                             EXPECT_EQ(dialog.fieldOf("txtStart").date().text(), "None");
                             EXPECT_FALSE(dialog.comboBox("cboVendor").enabled());
                             EXPECT_TRUE(dialog.textBox("txtCriteria").locked());
                             group.userType("O'Neil");
                             dialog.textBox("txtName").userType(" Lift's ");
                             dialog.textBox("txtDescription").userType("d");
                             dialog.textBox("txtCost").userType("$1,250.50");
                             dialog.comboBox("cboChargeMethod").choose(12);
                             dialog.textBox("txtValue").userType("-5%%");
                             dialog.checkBox("chkTaxable").userCheck(true);
                             dialog.checkBox("chkAutoAddQuotes").userCheck(true);
                             dialog.fieldOf("txtStart").date().userType("NONE");
                             dialog.fieldOf("txtEnd").date().userType("3/4/2020");
                             dialog.cmdChange.userPress();
                             dialog.chkVendor.userCheck(true);
                             dialog.comboBox("cboVendor").userChoose(0);
                             dialog.chkCustomerType.userCheck(true);
                             dialog.comboBox("cboCustomerType").userChoose(0);
                             dialog.chkCustomerType.userCheck(false);
                             dialog.textBox("txtNotes").userType("two\r\nlines");
                             dialog.comboBox("cboSales").userChoose(0);
                             dialog.textBox("txtExportChargeName").userType("LIFT");
                             dialog.comboBox("cboCategory").userChoose(1);
                             dialog.textBox("txtSequence").userType("4");
                             dialog.cmdOK.userPress();
                         }),
              12);
    EXPECT_THAT(
        stage.inserted(),
        ElementsAre(
            "INSERT INTO AdditionalCharges (ChargeType, ChargeCode, Enabled, GroupName, ChargeName, Description, Cost, ChargeMethod, Value, Taxable, AutoAddToQuotes, AutoAddToPOs, StartsOn, EndsOn, Criteria, CustomerTypeID, VendorID, Notes, IncludeWithProductItems, SalesAccountID, PurchaseAccountID, ExportChargeName, Exported, Category, Sequence) "
            "VALUES (8, '01234567', 1, 'O''Neil', 'Lift''s', 'd', '1250.5', 12, '5', 1, 1, 0, NULL, '3/4/2020', 'Height > ''x''', NULL, 5, 'two\r\nlines', 0, 4, NULL, 'LIFT', 0, 2, 4)"));
    EXPECT_THAT(stage.host->callsOf("GetSHA2"), ElementsAre(StartsWith("Lift's")));
    EXPECT_THAT(stage.host->callsOf("RecordEvent"), ElementsAre("Additional charge 'Lift's' was added."));
    EXPECT_THAT(stage.host->callsOf("Common.RecordExists"),
                ElementsAre("AdditionalCharges, ChargeName, Lift's, 0"));
    EXPECT_THAT(stage.host->callsOf("Common.LoadComboFromQuery"),
                ElementsAre("object, " + std::string(readGroups) + ", GroupName, , False"));
    EXPECT_EQ(stage.host->callsOf("tslnfe5.Engine.PreTerminate").size(), 1U);
}

TEST(AdditionalCharge, AStoredChargeIsShownAndUpdated) {
    ChargeStage stage;
    EXPECT_EQ(stage.edit(7, 8,
                         [](AdditionalChargeDialog& dialog) {
                             EXPECT_EQ(dialog.caption(), "Edit Customer Promotion") << "its own type counts";
                             EXPECT_EQ(dialog.txtChargeCode.text(), "90c7a3f1");
                             EXPECT_EQ(dialog.comboBox("cboChargeMethod").text(), "Percent per Product");
                             EXPECT_EQ(dialog.textBox("txtCost").text(), "9");
                             EXPECT_EQ(dialog.fieldOf("txtStart").date().text(), "3/1/2024");
                             EXPECT_EQ(dialog.fieldOf("txtEnd").date().text(), "None");
                             EXPECT_FALSE(dialog.chkCustomerType.checked());
                             EXPECT_TRUE(dialog.chkVendor.checked());
                             EXPECT_TRUE(dialog.comboBox("cboVendor").enabled());
                             EXPECT_EQ(dialog.comboBox("cboGroup").text(), "Spring");
                             dialog.cmdOK.userPress();
                         }),
              7);
    EXPECT_THAT(
        stage.executed(),
        ElementsAre(
            "UPDATE AdditionalCharges SET Enabled = 1, GroupName = 'Spring', ChargeName = 'Spring sale', Description = 'All shades', Cost = '9', ChargeMethod = 12, Value = '-12345.678', Taxable = 1, AutoAddToQuotes = 0, AutoAddToPOs = 1, StartsOn = '3/1/2024', EndsOn = NULL, Criteria = 'Width over 96', CustomerTypeiD = NULL, VendorID = 44, Notes = 'n\r\nm', IncludeWithProductItems = 1, SalesAccountID = 4, PurchaseAccountID = NULL, ExportChargeName = 'SALE', Exported = 0, Category = 3, Sequence = 5 WHERE ID = 7"))
        << "a vendor that is not offered and a value of more digits than a single has are kept";
    EXPECT_THAT(stage.host->callsOf("RecordEvent"),
                ElementsAre("Additional charge 'Spring sale' was updated."));
}

TEST(AdditionalCharge, TheSignOfTheValueFollowsTheType) {
    const struct {
        int type, method;
        const char *typed, *shown;
    } cases[] = {{2, 1, "5", "-5"},
                 {1, 1, "0.1", "-0.1"},
                 {2, 1, "-5", "-5"},
                 {8, 1, "-5", "5"},
                 {8, 1, "(3)", "3"},
                 {8, 1, "1,5", "15"},
                 {4, 1, "-5", "-5"},
                 {256, 1, "5", "5"},
                 {2, 1, "Trim", "Trim"},
                 {2, 3, "12", "12"},
                 {8, 4, "-12", "-12"},
                 {2, 1, "1e400", "1e400"},
                 {2, 1, "1e39", "1e39"},
                 {8, 1, "-0", "0"},
                 {2, 1, "", ""},
                 {2, 1, "5%%", "5%%"},
                 {2, 1, "12345.678", "-12345.68"}};
    for (const auto& c : cases) {
        ChargeStage stage;
        stage.edit(0, c.type, [&](AdditionalChargeDialog& dialog) {
            fill(dialog, c.typed, c.method);
            dialog.textBox("txtValue").userLeft();
            EXPECT_EQ(dialog.textBox("txtValue").text(), c.shown) << c.type << " " << c.typed;
        });
    }
    // A promotion stays negative when Enter presses OK in the box, and when "%" hides the number until then.
    for (const auto& [typed, method] : {std::pair{"5", 1}, {"5%%", 2}}) {
        ChargeStage stage;
        stage.edit(0, 2, [&, t = typed, m = method](AdditionalChargeDialog& dialog) {
            fill(dialog, t, m);
            dialog.cmdOK.userPress();
        });
        EXPECT_THAT(stage.inserted(), ElementsAre(HasSubstr(", '-5', 1, ")));
    }
}

TEST(AdditionalCharge, WhatIsMissingOrDoubtfulIsRefusedOrAsked) {
    const std::string lead = "Charges without a valid cost could skew your margin and profit reports.\r\n";
    const std::string zeroCost =
        lead + "The cost of this charge is zero. Are you sure you want to continue with this value?";
    const std::string negativeCost =
        lead +
        "The cost of this charge is less than zero. Are you sure you want to continue with this value?";
    const std::string negative =
        "Negative charges such as discounts or promotions should be marked as taxable so that a negative tax will be calculated for the line item. Are you sure you want to continue with a non-taxable value?";
    const std::string bothZero =
        "Both the cost and value of this charge are zero. Are you sure you want to continue with these values?";
    const struct {
        int type, method;
        const char *name, *cost, *value;
        bool taxable;
        std::vector<std::string> told;
        const char *storedCost = "", *returnsTo = "";
    } cases[] = {
        {8, 0, " ", "", "", true, {"You must enter a name for this additional charge."}, "", "txtName"},
        {8, 0, "N", "", "", true, {"You must select the method of charge to add."}, "", "cboChargeMethod"},
        {8, 1, "N", "", "5", true, {zeroCost}, "'0'", "txtCost"},
        {8, 1, "N", "much", "5", true, {zeroCost}, "'0'", "txtCost"},
        {8, 1, "N", "1e400", "5", true, {zeroCost}, "'0'", "txtCost"},
        {8, 1, "N", "(3)", "5", true, {negativeCost}, "'-3'", "txtCost"},
        {2, 1, "N", "1", "5", false, {negative}, "'1'", "txtValue"},
        {8, 1, "N", "0", "0", true, {zeroCost, bothZero}, "'0'", "txtCost"},
        {2, 1, "N", "-1", "5", false, {negativeCost, negative}, "'-1'", "txtCost"},
        {4, 1, "N", "0", "5", true, {}, "'0'"},
        {4, 1, "N", "-2", "-5", true, {}, "'-2'"},
        {4, 1, "N", "", "", true, {bothZero}, "'0'", "txtValue"},
        {8, 1, "N", "0", "5%", true, {zeroCost, bothZero}, "'0'", "txtCost"},  // no percentage: not a number
        {8, 3, "N", "0", "Trim", false, {zeroCost}, "'0'", "txtCost"},
        {2, 3, "N", "1", "-12", false, {}, "'1'"},  // the name of a price line has no sign
    };
    for (const auto& c : cases) {
        const bool refused = std::string(c.storedCost).empty();
        for (const bool yes : {true, false}) {
            ChargeStage stage;
            if (yes) stage.desktop.answers.assign(5, MessageAnswer::Yes);
            stage.edit(0, c.type, [&](AdditionalChargeDialog& dialog) {
                dialog.textBox("txtName").userType(c.name);
                dialog.textBox("txtCost").userType(c.cost);
                dialog.comboBox("cboChargeMethod").choose(c.method);
                dialog.textBox("txtValue").userType(c.value);
                dialog.checkBox("chkTaxable").userCheck(c.taxable);
                dialog.TabControl1.userSelect(3);
                dialog.cmdOK.userPress();
                const bool stays = refused || (!yes && !c.told.empty());
                EXPECT_EQ(dialog.shown(), stays) << c.cost << " " << c.value;
                if (stays) {
                    EXPECT_EQ(dialog.focusedControl(), dialog.fieldOf(c.returnsTo).control());
                    EXPECT_EQ(dialog.TabControl1.selected(), 0);
                }
            });
            EXPECT_EQ(stage.texts(), yes || c.told.empty() ? c.told : std::vector{c.told.front()}) << c.cost;
            if (refused || (!yes && !c.told.empty())) {
                EXPECT_THAT(stage.inserted(), IsEmpty());
            } else {
                EXPECT_THAT(stage.inserted(), ElementsAre(HasSubstr(c.storedCost))) << c.cost;
            }
        }
    }
    ChargeStage stage;
    stage.host->on("Common.RecordExists", Variant(true));
    stage.edit(0, 8, [](AdditionalChargeDialog& dialog) {
        fill(dialog);
        dialog.cmdOK.userPress();
        EXPECT_TRUE(dialog.shown());
    });
    EXPECT_THAT(stage.desktop.boxes, ElementsAre(exclamation("Duplicate charge names are not allowed.")));
}

TEST(AdditionalCharge, DatesAreNoneOrDates) {
    for (const char* typed : {"none", "nOnE", "", "  "}) {
        ChargeStage stage;
        stage.edit(0, 8, [&](AdditionalChargeDialog& dialog) {
            fill(dialog);
            dialog.fieldOf("txtEnd").date().userType(typed);
            dialog.cmdOK.userPress();
        });
        EXPECT_THAT(stage.inserted(), ElementsAre(HasSubstr(", NULL, NULL, ''"))) << typed;
    }
    for (const char* typed : {"tomorrow", "2/30/2024", "13/13/2024", "'; DROP", "5", "1e400"}) {
        ChargeStage stage;
        stage.edit(0, 8, [&](AdditionalChargeDialog& dialog) {
            fill(dialog);
            dialog.fieldOf("txtStart").date().userType(typed);
            dialog.cmdOK.userPress();
            EXPECT_TRUE(dialog.shown());
            EXPECT_EQ(dialog.fieldOf("txtStart").date().text(), typed);
            EXPECT_EQ(dialog.TabControl1.selected(), 1);
        });
        EXPECT_THAT(stage.desktop.boxes, ElementsAre(testing::Field(&Box::text, HasSubstr("is not a date"))));
        EXPECT_THAT(stage.inserted(), IsEmpty()) << typed;
    }
    // An end before the start is the user's business.
    ChargeStage stage;
    stage.edit(0, 8, [](AdditionalChargeDialog& dialog) {
        fill(dialog);
        dialog.fieldOf("txtStart").date().userType("2024-05-02");
        dialog.fieldOf("txtEnd").date().userType("May 1, 2024");
        dialog.cmdOK.userPress();
    });
    EXPECT_THAT(stage.inserted(), ElementsAre(HasSubstr("'2024-05-02', 'May 1, 2024'")));
}

TEST(AdditionalCharge, AnAccountIsAssignedToOtherCharges) {
    const struct {
        bool sales;
        std::size_t answer;
        const char* statement;
    } cases[] = {
        {true, 0, "UPDATE AdditionalCharges SET SalesAccountID = 4 WHERE ID <> 7"},
        {true, 1, "UPDATE AdditionalCharges SET SalesAccountID = 4 WHERE ID <> 7 AND SalesAccountID IS NULL"},
        {false, 0, "UPDATE Products SET PurchaseAccountID = 11 WHERE ID <> 7"},
        {false, 1, "UPDATE Products SET PurchaseAccountID = 11 WHERE ID <> 7 AND SalesAccountID IS NULL"},
    };
    for (const auto& c : cases) {
        for (const bool works : {true, false}) {
            ChargeStage stage;
            stage.desktop.choices = {c.answer};
            stage.host->on("Database.ExecuteNonQuery", Variant(works));
            stage.edit(7, 2, [&](AdditionalChargeDialog& dialog) {
                dialog.comboBox("cboPurchase").userChoose(0);
                (c.sales ? dialog.cmdAssignSales : dialog.cmdAssignPurchase).userPress();
            });
            EXPECT_THAT(stage.executed(), ElementsAre(c.statement));
            ASSERT_EQ(stage.desktop.questions.size(), 1U);
            const auto& question = stage.desktop.questions.front();
            EXPECT_EQ(question.title, c.sales ? "Assign Sales Accounts" : "Assign Purchase Accounts");
            EXPECT_EQ(question.text, "Select how you want to assign the account " +
                                         std::string(c.sales ? "Installation Income" : "Freight In") +
                                         " to other charges.");
            EXPECT_THAT(
                question.answers,
                ElementsAre(
                    "Assign this account to all other like charges.",
                    "Assign this account to all other like charges that don't have an account already set."));
            if (works) {
                EXPECT_THAT(stage.desktop.boxes, ElementsAre(information("The charges have been adjusted.")));
            } else {
                EXPECT_THAT(stage.failures(),
                            ElementsAre(explained("The accounts on the charges could not be updated.")));
            }
        }
    }
    ChargeStage stage;
    stage.edit(0, 8, [](AdditionalChargeDialog& dialog) { dialog.cmdAssignSales.userPress(); });
    stage.edit(7, 8, [](AdditionalChargeDialog& dialog) { dialog.cmdAssignPurchase.userPress(); });
    EXPECT_THAT(
        stage.desktop.boxes,
        ElementsAre(
            exclamation("You must save this charge before you can assign it's settings to other charges."),
            exclamation("You must select the account to assign.")));
    EXPECT_THAT(stage.executed(), IsEmpty());
}

TEST(AdditionalCharge, WithoutAnExpressionEditorNothingHappensAndHelpIsTheFunctionReference) {
    ChargeStage stage;
    stage.desktop.components = nullptr;
    stage.edit(7, 2, [](AdditionalChargeDialog& dialog) {
        dialog.cmdChange.userPress();
        EXPECT_EQ(dialog.textBox("txtCriteria").text(), "Width over 96");
        dialog.cmdHelp.userPress();
        dialog.userHelp();
    });
    EXPECT_FALSE(stage.told());
    ASSERT_EQ(stage.desktop.help.size(), 2U);
    EXPECT_EQ(stage.desktop.help[0].file, "Function Reference.chm");
}

}  // namespace
}  // namespace tsln::test
