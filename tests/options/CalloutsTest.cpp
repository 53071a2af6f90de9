#include "options/OptionCallouts.h"
#include "tests/options/Products.h"

namespace tsln::test {
namespace {

using options::OptionCalloutDialog;
using options::OptionCallouts;

constexpr auto readProducts = "SELECT ID, Product FROM Products WHERE Active <> 0 ORDER BY Product";

void furnish(Stage& stage, Products& products) {
    stage.host->rows(readProducts,
                     "<Records><Record><ID>3</ID><Product>Cellular</Product></Record>"
                     "<Record><ID>4</ID><Product>Roller</Product></Record></Records>");
    stage.host->on("Common.LoadProductTypes", fills({{"Shades", 6}}));
    products.documents[3] =
        "<Product><Styles><Style Name='Flat'/><Style Name='A &quot;&lt;B&gt;&apos;'/><Style Name='Flat'/><Style/>"
        "</Styles></Product>";
    products.documents[4] = Products::refused;
}

void edit(Stage& stage, std::int32_t ID, const std::function<void(OptionCalloutDialog&)>& act,
          std::int32_t result) {
    stage.desktop.user<OptionCalloutDialog>("frmOptionCallouts_Edit", act);
    EXPECT_EQ(stage.library->ShowEditOptionCallout(ID), result);
}

TEST(OptionCalloutsList, ShowsWhatACalloutAppliesToAndIsLimitedToAProduct) {
    Stage stage;
    stage.host->on("Common.GetProductNameFromID", Variant("Fish & Chips"));
    const auto load = [](const char* product) {
        return std::string("SELECT * FROM vwMaintenance_OptionCallouts WHERE ProductID ") + product +
               " ORDER BY OptionName";
    };
    stage.host->rows(
        load(" >= 0"),
        "<Records><Record><ID>1</ID><OptionName>Lift</OptionName><Color>255</Color><ColorWhen>2</ColorWhen>"
        "<FriendlyColorWhen>If value contains</FriendlyColorWhen><ColorCriteria>it's</ColorCriteria></Record>"
        "<Record><ID>2</ID><ProductType>Shades</ProductType><Product>Roller</Product><Style>Flat</Style>"
        "<OptionName>Mount</OptionName><Color>0</Color><ColorWhen>0</ColorWhen>"
        "<FriendlyColorWhen>Always</FriendlyColorWhen><ColorCriteria>x</ColorCriteria><Message>Look</Message>"
        "</Record></Records>");
    stage.desktop.user<OptionCallouts>("frmOptionCallouts", [&](OptionCallouts& list) {
        const std::vector<std::string> wanted[] = {
            {"Any Product Type", "Any Product", "Any Style", "Lift", "If value contains 'it's'", "255", ""},
            {"Shades", "Roller", "Flat", "Mount", "Always", "0", "Look"}};
        for (std::size_t row = 0; row < 2; ++row) {
            for (std::size_t c = 0; c < list.rptItems.columns.size(); ++c)
                EXPECT_EQ(list.rptItems.rowText(row, c), wanted[row][c]);
        }
        EXPECT_EQ(list.rptItems.columns[5].caption, "Color (#)");
        EXPECT_EQ(list.lblProduct.caption(), "Product: Any");
        list.rptItems.userSelectAll();
        stage.host->on("Database.ExecuteNonQuery", Variant(false));
        list.cmdDelete.userPress();
        EXPECT_THAT(stage.executed(), ElementsAre("DELETE FROM OptionCallouts WHERE ID = 1"));
        EXPECT_THAT(stage.failures(),
                    ElementsAre(explained("There was a problem deleting one or more option callouts.")));
    });
    stage.library->ShowOptionCallouts(-1);
    stage.desktop.user<OptionCallouts>("frmOptionCallouts", [](OptionCallouts& list) {
        EXPECT_EQ(list.lblProduct.caption(), "Product: Fish && Chips");
    });
    stage.library->ShowOptionCallouts(5);
    EXPECT_THAT(stage.read(), ElementsAre(load(" >= 0"), load(" = 5")));
    EXPECT_EQ(stage.host->callsOf("Security.CanDo").front(), "105, 8");
}

TEST(OptionCalloutDialog, SavesWhatItAppliesTo) {
    Stage stage;
    Products products(stage);
    furnish(stage, products);
    edit(
        stage, 0,
        [](OptionCalloutDialog& dialog) {
            EXPECT_EQ(dialog.caption(), "New Option Callout");
            EXPECT_FALSE(dialog.optSpecificStyle.enabled());
            dialog.optSpecificProduct.userSelect();
            dialog.cboProduct.userChoose(0);
            dialog.optSpecificStyle.userSelect();
            ASSERT_EQ(dialog.cboStyle.entries().size(), 2U) << "each style once, and none without a name";
            dialog.cboStyle.userChoose(1);
            dialog.textBox("txtOption").userType("It's");
            dialog.comboBox("cboWhen").userChoose(2);
            dialog.textBox("txtCriteria").userType("kept");
            dialog.comboBox("cboWhen").userChoose(0);
            dialog.textBox("txtMessage").userType("<b>'now'</b>");
            dialog.ColorPicker1.userChoose(0x00FF00);
            dialog.cmdOK.userPress();
        },
        1);
    EXPECT_THAT(
        stage.inserted(),
        ElementsAre(
            "INSERT INTO OptionCallouts (ProductTypeID,ProductID,Style,OptionName,Color,ColorWhen,ColorCriteria,"
            "Message) VALUES(NULL,3,'A \"<B>''','It''s',65280,0,'kept','<b>''now''</b>')"));
    EXPECT_THAT(stage.host->callsOf("catalog5engine.Engine.IdentifyUser"), ElementsAre(Products::whoReads));
    EXPECT_THAT(stage.host->callsOf("catalog5engine.Engine.UseProductFile"),
                ElementsAre("/products/3, False"));
    EXPECT_EQ(stage.host->callsOf("catalog5engine.Engine.PreTerminate").size(), 1U);

    // A stored callout keeps a product and a style that are no longer offered.
    stage.host->rows(
        "SELECT * FROM OptionCallouts WHERE ID = 9",
        "<Records><Record><ID>9</ID><ProductTypeID>6</ProductTypeID><ProductID>77</ProductID>"
        "<Style>Gone</Style><OptionName>Lift</OptionName><Color>-1</Color><ColorWhen>2</ColorWhen>"
        "<ColorCriteria>Cord</ColorCriteria><Message>Ask</Message></Record></Records>");
    stage.host->on("Common.GetProductNameFromID", Variant("Retired"));
    edit(
        stage, 9,
        [](OptionCalloutDialog& dialog) {
            EXPECT_EQ(dialog.caption(), "Edit Option Callout");
            EXPECT_EQ(dialog.cboProduct.text(), "Retired");
            EXPECT_EQ(dialog.cboStyle.text(), "Gone");
            dialog.cmdOK.userPress();
        },
        9);
    EXPECT_THAT(
        stage.executed(),
        ElementsAre(
            "UPDATE OptionCallouts SET ProductTypeID = 6, ProductID = 77, Style = 'Gone', OptionName "
            "= 'Lift', Color = -1, ColorWhen = 2, ColorCriteria = 'Cord', Message = 'Ask' WHERE ID = 9"));
    EXPECT_THAT(
        stage.failures(),
        ElementsAre("Unable to identify product information in the product. The product cannot be added. "
                    "(232), , "));
}

TEST(OptionCalloutDialog, RefusesWhatIsMissingInOrderAndKeepsTheInputWhenSavingFails) {
    Stage stage;
    Products products(stage);
    furnish(stage, products);
    stage.host->on("Database.ExecuteNonQueryWithID", Variant(0));
    edit(
        stage, 0,
        [&](OptionCalloutDialog& dialog) {
            dialog.optSpecificProductType.userSelect();
            dialog.optSpecificProduct.userSelect();
            const auto refusal = [&] {
                stage.desktop.boxes.clear();
                dialog.cmdOK.userPress();
                return stage.desktop.boxes.size() == 1 ? stage.desktop.boxes[0].text : "no single message";
            };
            EXPECT_EQ(refusal(), "You must select product type for this callout to apply to.");
            dialog.cboProductType.userChoose(0);
            EXPECT_EQ(refusal(), "You must select product for this callout to apply to.");
            EXPECT_EQ(dialog.focusedControl(), &dialog.cboProduct);
            dialog.cboProduct.userChoose(0);
            dialog.optSpecificStyle.userSelect();
            EXPECT_EQ(refusal(), "You must select style for this callout to apply to.");
            dialog.cboStyle.userChoose(0);
            EXPECT_EQ(refusal(), "You must enter the name of an option for this callout to apply to.");
            EXPECT_EQ(dialog.focusedControl(), &dialog.textBox("txtOption"));
            dialog.textBox("txtOption").userType("Lift");
            dialog.optAllProducts.userSelect();
            EXPECT_THAT(dialog.cboStyle.entries(), IsEmpty()) << "styles belong to a product";
            dialog.cmdOK.userPress();
            EXPECT_EQ(dialog.textBox("txtOption").text(), "Lift");
        },
        0);
    EXPECT_THAT(stage.inserted(), ElementsAre(HasSubstr("VALUES(6,NULL,'','Lift',255,0,'','')")));
    EXPECT_THAT(stage.failures(), ElementsAre(explained("There was a problem saving this option callout.")));
}

TEST(OptionCalloutDialog, TellsOfAProductThatMayNotBeUsed) {
    Stage stage;
    Products products(stage);
    furnish(stage, products);
    edit(
        stage, 0,
        [&](OptionCalloutDialog& dialog) {
            dialog.optSpecificProduct.userSelect();
            dialog.cboProduct.userChoose(0);
            dialog.cboProduct.userChoose(1);
            EXPECT_THAT(dialog.cboStyle.entries(), IsEmpty());
            products.documents[4] = Products::nothing;
            dialog.cboProduct.userChoose(1);
        },
        0);
    EXPECT_THAT(
        stage.host->callsOf("ShowMessageStyle2"),
        ElementsAre("You don't have permission to use this product., If you have not logged in with your "
                    "Kestrane ID you should do so now and try again. If you still cannot access the product "
                    "you should check with the products author."));
    EXPECT_EQ(stage.failures().size(), 1U);
    EXPECT_EQ(stage.host->callsOf("catalog5engine.Engine.Initialize").size(), 1U)
        << "one reader for the dialog";
    EXPECT_EQ(stage.host->callsOf("catalog5engine.Engine.PreTerminate").size(), 1U);
}

TEST(OptionCalloutDialog, TheExampleShowsWhatTheSettingsDo) {
    Stage stage;
    struct Case {
        const char* option;
        int when;
        const char* criteria;
        std::vector<bool> marked;  // of "Room Location", "Pattern", "Mount"
    };
    const Case cases[] = {
        {"", 0, "", {true, true, true}},        {"pattern ", 0, "", {false, true, false}},
        {"Lift", 1, "", {false, true, false}},  {"Mount", 1, "", {false, false, false}},
        {"", 2, "KITCH", {true, false, false}}, {"Mount", 2, "side", {false, false, true}},
        {"Mount", 2, "", {false, false, true}}, {"Pattern", 2, "Inside", {false, false, false}},
    };
    edit(
        stage, 0,
        [&](OptionCalloutDialog& dialog) {
            const ReportControl& example = dialog.rptExample;
            dialog.ColorPicker1.userChoose(0x123456);
            for (const Case& c : cases) {
                SCOPED_TRACE(std::string(c.option) + ", " + std::to_string(c.when) + ", " + c.criteria);
                dialog.textBox("txtOption").userType(c.option);
                dialog.comboBox("cboWhen").userChoose(c.when);
                dialog.textBox("txtCriteria").setEnabled(true);
                dialog.textBox("txtCriteria").userType(c.criteria);
                for (std::size_t row = 0; row < 3; ++row) {
                    EXPECT_EQ(example.rowText(row, 2), c.marked[row] ? "1193046" : "");
                    EXPECT_EQ(example.style(row).background.has_value(), c.marked[row]);
                }
            }
            EXPECT_EQ(example.rowText(1, 1), "Please Select");
        },
        0);
}

}  // namespace
}  // namespace tsln::test
