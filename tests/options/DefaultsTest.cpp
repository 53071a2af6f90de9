#include "options/OptionDefaults.h"
#include "tests/options/Products.h"

namespace tsln::test {
namespace {

using options::OptionDefaultDialog;
using options::OptionDefaults;

constexpr auto loadOfOne = "SELECT * FROM vwMaintenance_OptionDefaults WHERE ProductID = 1";
constexpr auto loadOfThree = "SELECT * FROM vwMaintenance_OptionDefaults WHERE ProductID = 3";
constexpr auto threeDefaults =
    "<Records><Record><ID>1</ID><OptionName>pattern</OptionName><OptionValue>Oak</OptionValue></Record>"
    "<Record><ID>2</ID><OptionName>A \"&amp;\" &lt;b&gt;</OptionName><OptionValue>x</OptionValue></Record>"
    "<Record><ID>3</ID><OptionName>Lift</OptionName><OptionValue>Cord</OptionValue></Record></Records>";

TEST(OptionDefaultsList, HoldsTheDefaultsOfOneProductOrOfEvery) {
    Stage stage;
    stage.host->on("Common.GetProductNameFromID", Variant("Roller"));
    stage.host->rows(loadOfThree, threeDefaults);
    stage.desktop.user<OptionDefaults>("frmOptionDefaults", [&](OptionDefaults& list) {
        EXPECT_EQ(list.lblProduct.caption(), "Product: Roller");
        EXPECT_EQ(list.rptItems.rowCount(), 3U);
        stage.desktop.user<OptionDefaultDialog>(
            "frmOptionDefaults_Edit", [](OptionDefaultDialog& dialog) { EXPECT_EQ(dialog.productID, 3); });
        list.cmdNew.userPress();
        const std::size_t first[] = {0};
        list.rptItems.userSelect(first, 0);
        list.cmdEdit.userPress();
        list.cmdDelete.userPress();
    });
    stage.library->ShowOptionDefaults(3);
    stage.desktop.user<OptionDefaults>("frmOptionDefaults", [&](OptionDefaults& list) {
        EXPECT_EQ(list.lblProduct.caption(), "Product: Any");
        list.verifyOptions();
        EXPECT_EQ(stage.desktop.boxes.size(), 1U) << "there is no product to compare with";
    });
    stage.library->ShowOptionDefaults(0);
    stage.library->ShowOptionDefaults(1);
    EXPECT_THAT(stage.read(),
                ElementsAre(loadOfThree, "SELECT * FROM OptionDefaults WHERE ID = 1",
                            "SELECT * FROM vwMaintenance_OptionDefaults WHERE ID = 1",
                            "SELECT * FROM vwMaintenance_OptionDefaults WHERE ProductID IS NULL", loadOfOne));
    EXPECT_THAT(stage.executed(), ElementsAre("DELETE FROM OptionDefaults WHERE ID = 1"));
    EXPECT_THAT(stage.host->callsOf("catalog5engine.Engine.Initialize"), IsEmpty());
}

TEST(OptionDefaultDialog, ANameIsUniqueWithinItsProduct) {
    struct Case {
        std::int32_t ID, product;
        const char* stored;  // the product of the stored row
        std::string question, statement;
    };
    const Case cases[] = {
        {0, 0, "", "SELECT ID FROM OptionDefaults WHERE ProductID IS NULL AND OptionName = 'It''s <id>'",
         "INSERT INTO OptionDefaults (ProductID, OptionName, OptionValue) VALUES(NULL, 'It''s <id>', 'No')"},
        {0, 3, "", "SELECT ID FROM OptionDefaults WHERE ProductID = 3 AND OptionName = 'It''s <id>'",
         "INSERT INTO OptionDefaults (ProductID, OptionName, OptionValue) VALUES(3, 'It''s <id>', 'No')"},
        // The product of a stored default is its own, whatever the caller passes.
        {7, 3, "<ProductID>4</ProductID>",
         "SELECT ID FROM OptionDefaults WHERE ProductID = 4 AND OptionName = 'It''s <id>' AND ID <> 7",
         "UPDATE"},
        {7, 3, "",
         "SELECT ID FROM OptionDefaults WHERE ProductID IS NULL AND OptionName = 'It''s <id>' AND ID <> 7",
         "UPDATE"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.question);
        Stage stage;
        stage.host->rows(
            "SELECT * FROM OptionDefaults WHERE ID = 7",
            "<Records><Record><ID>7</ID><OptionName>Lift</OptionName><OptionValue>Cord</OptionValue>" +
                std::string(c.stored) + "</Record></Records>");
        stage.host->on("Database.ExecuteScaler", Variant(5));
        stage.desktop.user<OptionDefaultDialog>("frmOptionDefaults_Edit", [&](OptionDefaultDialog& dialog) {
            EXPECT_EQ(dialog.caption(), "Edit Option Default");
            dialog.textBox("txtName").userType("  It's <id> ");
            dialog.textBox("txtValue").userType("  ");
            dialog.cmdOK.userPress();
            dialog.textBox("txtValue").userType("No");
            dialog.cmdOK.userPress();
            stage.host->on("Database.ExecuteScaler", Variant());
            dialog.cmdOK.userPress();
        });
        EXPECT_EQ(stage.library->ShowEditOptionDefault(c.ID, c.product), c.ID == 0 ? 1 : 7);
        EXPECT_THAT(stage.desktop.boxes, ElementsAre(exclamation("You must enter an option name and value."),
                                                     exclamation("This option already exists.")));
        EXPECT_THAT(stage.host->callsOf("Database.ExecuteScaler"), ElementsAre(c.question, c.question));
        if (c.ID == 0) {
            EXPECT_THAT(stage.inserted(), ElementsAre(c.statement));
        } else {
            // Names the user typed may look like a tag.
            EXPECT_THAT(stage.executed(),
                        ElementsAre(StartsWith("UPDATE OptionDefaults SET OptionName = 'It''s ")));
        }
    }
}

TEST(OptionDefaults, VerifyNamesWhatTheProductDoesNotHave) {
    constexpr auto unknownPattern = "The option \"pattern\" does not exist.";
    constexpr auto unknownMarkup = "The option \"A \"&\" <b>\" does not exist.";
    constexpr auto valid = "All of the option names for this product are valid.";

    struct Case {
        std::string document;
        bool cancels;
        std::vector<std::string> boxes;
        const char* told;  // a member of the host that tells why nothing was verified
    };
    const Case cases[] = {
        {Products::withOptions({"Name='Pattern'", "Name='Lift'"}),
         false,
         {unknownPattern, unknownMarkup},
         ""},
        {Products::withOptions({"Name='Pattern'", "Name='Lift'"}), true, {unknownPattern}, ""},
        {Products::withOptions({"Name='pattern'", "Name='A &quot;&amp;&quot; &lt;b&gt;'", "Name='Lift'"}),
         false,
         {valid},
         ""},
        {"<Product/>", false, {unknownPattern, unknownMarkup, "The option \"Lift\" does not exist."}, ""},
        {Products::refused, false, {}, "ShowMessageStyle2"},
        {Products::nothing, false, {}, "ShowAndLogErrorMessage"},
        {"<Product><Styles>", false, {}, "ShowAndLogErrorMessage"},
        {"", false, {}, "ShowAndLogErrorMessage"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.document);
        Stage stage;
        Products products(stage);
        products.documents[3] = c.document;
        stage.host->rows(loadOfThree, threeDefaults);
        stage.desktop.user<OptionDefaults>("frmOptionDefaults", [&](OptionDefaults& list) {
            if (!c.cancels) stage.desktop.answers = {MessageAnswer::Ok, MessageAnswer::Ok, MessageAnswer::Ok};
            if (c.cancels) stage.desktop.answers = {MessageAnswer::Cancel};
            stage.desktop.popupChoices = {28252};
            list.cmdMore.userPress();
        });
        stage.library->ShowOptionDefaults(3);
        EXPECT_EQ(stage.texts(), c.boxes);
        for (const Box& box : stage.desktop.boxes)
            EXPECT_EQ(box.buttons, box.text == valid ? MessageButtons::Ok : MessageButtons::OkCancel);
        for (const char* member : {"ShowMessageStyle2", "ShowAndLogErrorMessage"})
            EXPECT_EQ(stage.host->callsOf(member).size(), c.told == std::string_view(member) ? 1U : 0U);
        EXPECT_THAT(
            stage.host->callsOf("ShowMessageStyle1WithMemory"),
            ElementsAre("This function will check the option names against those in this product to make "
                        "sure they are valid., Option values are not checked. It is recommended that you "
                        "perform some testing after you are done to ensure that the defaults you have "
                        "entered are applied correctly."));
        EXPECT_EQ(stage.host->callsOf("catalog5engine.Engine.PreTerminate").size(), 1U);
        EXPECT_EQ(stage.host->callsOf("TSLNSQL.PreTerminate").size(), 1U);
    }
}

TEST(OptionDefaults, NoHostFaultVerifiesSilently) {
    sweepFaults([](Stage& stage) {
        Products products(stage);
        products.documents[3] = Products::withOptions({"Name='Lift'"});
        stage.host->rows(loadOfThree, threeDefaults);
        stage.desktop.answers = {MessageAnswer::Ok, MessageAnswer::Ok, MessageAnswer::Ok};
        stage.desktop.popupChoices = {28252};
        stage.desktop.user<OptionDefaults>("frmOptionDefaults", [&](OptionDefaults& list) {
            list.cmdMore.userPress();
            EXPECT_TRUE(stage.told());
        });
        stage.library->ShowOptionDefaults(3);
    });
}

}  // namespace
}  // namespace tsln::test
