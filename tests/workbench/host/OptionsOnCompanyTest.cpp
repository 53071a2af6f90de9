#include <gmock/gmock.h>

#include "options/DetailSettings.h"
#include "options/OptionCallouts.h"
#include "options/OptionDefaults.h"
#include "tests/workbench/host/HostStage.h"

namespace tsln::workbench {
namespace {

using options::DetailList;
using options::DetailSettings;
using options::OptionCalloutDialog;
using options::OptionCallouts;
using options::OptionDefaultDialog;
using options::OptionDefaults;
using testing::ElementsAre;
using testing::HasSubstr;

TEST(OptionsOnCompany, AScanAddsWhatTheDemonstrationProductsHave) {
    ModuleStage stage;
    const std::string before = stage.value("SELECT COUNT(*) FROM OptionDetailSettings");
    stage.library->ScanForOptionDetailSettings();
    const std::string no = "won't be scanned for product detail settings becuase ";
    EXPECT_THAT(
        stage.events(),
        ElementsAre(HasSubstr("'Rail Color Coordination'"),
                    "The product 'Brightvane pleated shade' " + no + "it does not exist.",
                    HasSubstr("'Fold Depth' will not be added to Option Detail Settings because it's prefix, "
                              "'Depth of each of the folds', is too long."),
                    "The product 'Driftmark louver panel' " + no +
                        "the system cannot identify product information in the product.",
                    "The product 'Gloamridge drapery hardware' " + no +
                        "you don't have permission to use this product."));
    const auto setting = [&](const char* name, int location) {
        return stage.value(
            "SELECT CAST(Sequence AS VARCHAR(9)) + ' ' + Prefix FROM OptionDetailSettings WHERE "
            "OptionName = '" +
            std::string(name) + "' AND Location = " + std::to_string(location));
    };
    EXPECT_EQ(setting("Pattern", 0), "2 ") << "what was there is unchanged";
    EXPECT_EQ(setting("Valance 3\" & <Return>", 0), "6 Valance");
    EXPECT_EQ(setting("Fitter''s Note", 0), "13 Fitter's note");
    EXPECT_EQ(setting("Battery Wand", 0), "11 Wand for battery");
    EXPECT_EQ(setting("Overall Width", 1), "9999 ");
    for (const char* never : {"visualizeColour", "c_r_tube", "Finial", "Panel", "Ripple"})
        EXPECT_EQ(setting(never, 0), "-") << never;
    EXPECT_EQ(setting("Rail Color Coordination", 1), "12 Rail");
    const std::string after = stage.value("SELECT COUNT(*) FROM OptionDetailSettings");
    EXPECT_GT(std::stoi(after), std::stoi(before) + 30);
    stage.library->ScanForOptionDetailSettings();
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM OptionDetailSettings"), after)
        << "a second scan adds nothing";

    // The product is another organization's; the company that has its name may use it.
    stage.run("UPDATE Company SET Name = 'Gloamridge interiors'");
    stage.library->ScanForOptionDetailSettings();
    EXPECT_EQ(setting("Finial", 0), "3 Finial");
}

TEST(OptionsOnCompany, SettingsAreEditedSequencedSavedAndReadBack) {
    ModuleStage stage;
    stage.desktop.user<DetailSettings>("frmOptionDetailSettings", [&](DetailSettings& screen) {
        ReportControl& items = screen.current().rptItems;
        stage.library->ScanForOptionDetailSettings();
        screen.cmdNew.userPress();
        items.userEdit(items.rowCount() - 1, DetailList::Name, "Builder's \"choice\"");
        screen.txtFilter.userType("hold");
        ASSERT_EQ(items.rowCount(), 1U);
        items.userEdit(0, DetailList::Prefix, "O'Hold");
        items.userEdit(0, DetailList::Sequence, "4");
        screen.TabControl1.userSelect(1);
        screen.txtFilter.userType("");
        const std::size_t first[] = {0};
        screen.current().rptItems.userSelect(first, 0);
        screen.cmdDelete.userPress();
        screen.cmdOK.userPress();
        EXPECT_FALSE(screen.shown());
    });
    stage.library->ShowOptionDetailSettings();
    EXPECT_EQ(stage.value(
                  "SELECT Prefix FROM OptionDetailSettings WHERE OptionName = 'Hold Downs' AND Sequence = 4"),
              "O'Hold");
    EXPECT_EQ(
        stage.value("SELECT Sequence FROM OptionDetailSettings WHERE OptionName = 'Builder''s \"choice\"'"),
        "9999");
    EXPECT_EQ(
        stage.value("SELECT COUNT(*) FROM OptionDetailSettings WHERE Location = 1 AND OptionName = 'Mount'"),
        "0");
    EXPECT_EQ(
        stage.value(
            "SELECT isBold FROM OptionDetailSettings WHERE OptionName = 'Room Location' AND Location = 0"),
        "1");

    // The database refuses one row: it is told, the others are saved.
    stage.refuse("UPDATE ON OptionDetailSettings WHEN OLD.OptionName = 'Pattern'");
    stage.desktop.user<DetailSettings>("frmOptionDetailSettings", [&](DetailSettings& screen) {
        ReportControl& items = screen.current().rptItems;
        for (std::size_t row = 0; row < items.rowCount(); ++row)
            items.userCheck(row, DetailList::Show, !items.checked(items.row(row).record, DetailList::Show));
        screen.cmdOK.userPress();
        EXPECT_TRUE(screen.shown());
    });
    stage.library->ShowOptionDetailSettings();
    ASSERT_EQ(stage.ui.shown.size(), 1U);
    EXPECT_EQ(stage.ui.shown[0].text, "Option detail setting 'Pattern' could not be saved. (3738)");
    EXPECT_EQ(stage.ui.shown[0].detail, "Refused");
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM OptionDetailSettings WHERE Location = 0 AND Show = 1"), "2")
        << "Pattern, and what was not shown before";
}

TEST(OptionsOnCompany, CalloutsAndDefaultsAreAddedChangedAndVerified) {
    ModuleStage stage;
    stage.desktop.user<OptionCalloutDialog>("frmOptionCallouts_Edit", [](OptionCalloutDialog& dialog) {
        dialog.optSpecificProductType.userSelect();
        dialog.cboProductType.userChoose(0);
        dialog.optSpecificProduct.userSelect();
        int shutter = 0;
        while (dialog.cboProduct.entries()[static_cast<std::size_t>(shutter)].text !=
               "Driftmark basswood shutter")
            ++shutter;
        dialog.cboProduct.userChoose(shutter);
        dialog.optSpecificStyle.userSelect();
        dialog.cboStyle.userChoose(2);
        dialog.textBox("txtOption").userType("Divider Rail");
        dialog.cmdOK.userPress();
    });
    stage.desktop.user<OptionCallouts>("frmOptionCallouts", [&](OptionCallouts& list) {
        EXPECT_EQ(list.rptItems.rowCount(), 4U) << "callouts for any product are listed";
        list.cmdNew.userPress();
        ASSERT_EQ(list.rptItems.rowCount(), 5U);
        EXPECT_EQ(list.rptItems.rowText(4, 2), "Caf\xC3\xA9");
        list.cmdEdit.userPress();
    });
    stage.library->ShowOptionCallouts(0);
    EXPECT_EQ(
        stage.value("SELECT Style FROM OptionCallouts WHERE OptionName = 'Divider Rail' AND ProductID = 7"),
        "Caf\xC3\xA9");
    // One dialog tells of each kind of product that gives no styles.
    stage.desktop.user<OptionCalloutDialog>("frmOptionCallouts_Edit", [&](OptionCalloutDialog& dialog) {
        dialog.optSpecificProduct.userSelect();
        for (std::size_t i = 0; i < dialog.cboProduct.entries().size(); ++i)
            dialog.cboProduct.userChoose(static_cast<int>(i));
    });
    EXPECT_EQ(stage.library->ShowEditOptionCallout(0), 0);
    ASSERT_EQ(stage.ui.shown.size(), 3U) << "missing, damaged, refused";
    EXPECT_EQ(stage.ui.shown[2].text, "You don't have permission to use this product.");
    stage.ui.shown.clear();

    stage.desktop.user<OptionDefaultDialog>("frmOptionDefaults_Edit", [](OptionDefaultDialog& dialog) {
        dialog.textBox("txtName").userType("Frame");
        dialog.textBox("txtValue").userType("4 1/2 inch");
        dialog.cmdOK.userPress();
    });
    stage.desktop.user<OptionDefaults>("frmOptionDefaults", [&](OptionDefaults& list) {
        list.cmdNew.userPress();
        stage.desktop.boxes.clear();
        stage.desktop.answers = {MessageAnswer::Ok};
        list.verifyOptions();
        ASSERT_EQ(stage.desktop.boxes.size(), 1U);
        EXPECT_EQ(stage.desktop.boxes[0].text, "The option \"Louver\" does not exist.");
    });
    stage.library->ShowOptionDefaults(7);
    EXPECT_EQ(
        stage.value("SELECT OptionValue FROM OptionDefaults WHERE ProductID = 7 AND OptionName = 'Frame'"),
        "4 1/2 inch");
}

TEST(OptionsOnCompany, LargeAndOddProductFilesAreScanned) {
    ModuleStage stage;
    const auto product = [&](const char* name, const std::string& text) {
        const std::string file = stage.folder.write(std::string(name) + ".xml", text);
        stage.run("INSERT INTO Products (Product, ProductFile) VALUES ('" + std::string(name) + "', '" +
                  file + "')");
    };
    stage.run("DELETE FROM Products");
    stage.run("DELETE FROM OptionDetailSettings");
    product("Large",
            "<Product><Notes>" + std::string(50'000'000, 'x') +
                "</Notes><Styles><Style><Options><Option Name='Deep'/></Options></Style></Styles></Product>");
    product("No styles", "<Product/>");
    product("Empty", "");
    product("Zero", std::string("<Product>\0</Product>", 20));
    stage.library->ScanForOptionDetailSettings();
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM OptionDetailSettings WHERE Location = 0"), "1");
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM OptionDetailSettings WHERE Location = 1"), "1");
    EXPECT_THAT(stage.events(), ElementsAre(HasSubstr("'Empty'"), HasSubstr("'Zero'")));
}

}  // namespace
}  // namespace tsln::workbench
