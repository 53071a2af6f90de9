#include <array>

#include <gmock/gmock.h>

#include "lists/ListReferences.h"
#include "lists/Locations.h"
#include "lists/MoveListReferences.h"
#include "lists/ReplacementDiscountGroup.h"
#include "lists/SalesTaxGroupCodes.h"
#include "lists/SalesTaxGroups.h"
#include "lists/Tags.h"
#include "maintenance/ListScreen.h"
#include "maintenance/RecordDialog.h"
#include "screens/CheckList.h"
#include "tests/workbench/host/HostStage.h"

namespace tsln::workbench {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

void type(Screen& dialog, std::string_view control, const std::string& text) {
    dynamic_cast<TextBox&>(*dialog.control(control)).userType(text);
}

void choose(ComboBox& combo, std::string_view text) {
    for (std::size_t i = 0; i < combo.entries().size(); ++i) {
        if (combo.entries()[i].text == text) return combo.userChoose(static_cast<int>(i));
    }
    ADD_FAILURE() << "there is no entry " << text;
}

void select(ListScreen& list, std::string_view name) {
    for (std::size_t row = 0; row < list.rptItems.rowCount(); ++row) {
        if (list.rptItems.rowText(row, 0) == name) return list.rptItems.userSelect(std::array{row}, row);
    }
    ADD_FAILURE() << "there is no row " << name;
}

/// Gives each field of a dialog something that it accepts, and saves.
void fillAndSave(Screen& dialog) {
    std::string text = "Swept's";  // the name comes first
    Button* ok = nullptr;
    for (Control* control : dialog.controls()) {
        if (auto* box = dynamic_cast<TextBox*>(control)) box->userType(std::exchange(text, "2"));
        if (auto* combo = dynamic_cast<ComboBox*>(control); combo && !combo->entries().empty())
            combo->userChoose(static_cast<int>(combo->entries().size()) - 1);
        if (auto* list = dynamic_cast<CheckList*>(control)) list->userTick(0, true);
        if (auto* button = dynamic_cast<Button*>(control); button && button->role() == Button::Role::Default)
            ok = button;
    }
    ok->userPress();
    EXPECT_FALSE(dialog.shown());
}

TEST(ListsOnCompany, EveryListShowsAddsEditsAndDeletesTheCompanysRows) {
    struct Case {
        Operation open;
        const char *screen, *table;
        bool adds = true;
    };
    using enum Operation;
    for (const Case& c : {
             Case{ShowPaymentMethods, "frmPaymentMethods", "PaymentMethods"},
             {ShowShippingMethods, "frmShippingMethods", "ShippingMethods"},
             {ShowReferralMethods, "frmReferralMethods", "ReferralMethods"},
             {ShowJobTypes, "frmJobTypes", "JobTypes"},
             {ShowOrderTypes, "frmOrderTypes", "OrderTypes"},
             {ShowProductTypes, "frmProductTypes", "ProductTypes"},
             {ShowManufacturers, "frmManufacturers", "Manufacturers"},
             {ShowGroups, "frmGroups", "Groups"},
             {ShowCustomerTypes, "frmCustomerTypes", "CustomerTypes"},
             {ShowDeliveryRanges, "frmDeliveryRanges", "DeliveryRanges"},
             {ShowPhoneLabels, "frmPhoneLabels", "PhoneLabels"},
             {ShowEmailLabels, "frmEmailLabels", "EmailLabels"},
             {ShowMeasurementRooms, "frmMeasurementRooms", "MeasurementRooms"},
             {ShowMeasurementItems, "frmMeasurementItems", "MeasurementItems"},
             {ShowMeasurementMounts, "frmMeasurementMounts", "MeasurementMounts"},
             {ShowLocations, "frmLocations", "Locations", false},  // the database refuses the statement
             {ShowProductTags, "frmProductTags", "ProductTags WHERE ProductID = 1"},
             {ShowPortfolioTags, "frmPortfolioTags", "PortfolioTags", false},
             {ShowFieldMeasureCriteria, "frmFieldMeasureCriteria", "FieldMeasureCriteria"},
             {ShowQuoteApprovalCriteria, "frmQuoteApprovalCriteria", "QuoteApproval"},
             {ShowRequireDepositCriteria, "frmRequireDepositCriteria", "RequireDepositCriteria"},
             {ShowDiscountGroups, "frmDiscountGroups", "DiscountGroups"},
             {ShowSalesTaxCodes, "frmSalesTaxCodes", "SalesTaxCodes"},
             {ShowSalesTaxGroups, "frmSalesTaxGroups", "SalesTaxGroups"},
             {ShowAccounts, "frmAccounts", "Accounts"},
         }) {
        SCOPED_TRACE(c.screen);
        ModuleStage stage;
        const auto stored = [&] {
            return std::stoul(stage.value("SELECT COUNT(*) FROM " + std::string(c.table)));
        };
        stage.desktop.answers.assign(9, MessageAnswer::Yes);
        for (int i = 0; i < 2; ++i)
            stage.desktop.user<Screen>(std::string(c.screen) + "_Edit", fillAndSave);
        stage.desktop.user<Screen>("frmGetReplacementDiscountGroup", fillAndSave);
        stage.desktop.user<ListScreen>(c.screen, [&](ListScreen& list) {
            ReportControl& items = list.rptItems;
            const std::size_t before = items.recordCount();
            EXPECT_EQ(before, stored());
            if (!c.adds) return;
            list.cmdNew.userPress();
            EXPECT_EQ(stored(), before + 1);
            ASSERT_EQ(items.recordCount(), before + 1);
            select(list, "Swept's");
            if (list.cmdEdit.enabled()) list.cmdEdit.userPress();
            list.cmdDelete.userPress();
            EXPECT_EQ(items.recordCount(), before);
            EXPECT_EQ(stored(), before);
        });
        std::vector<Argument> arguments(info(c.open).argumentCount, Argument(Variant(1)));
        stage.library->perform(c.open, Arguments(arguments));
        for (const Message& message : stage.ui.shown)
            EXPECT_EQ(message.style, MessageStyle::Style1WithMemory) << message.text;
    }
}

TEST(ListsOnCompany, ALocationIsEditedWithItsAddress) {
    ModuleStage stage;
    stage.desktop.user<lists::LocationDialog>("frmLocations_Edit", [](lists::LocationDialog& dialog) {
        type(dialog, "txtName", "O'Falls");
        dialog.cmdCopyAddress.userPress();
        dialog.cmdOK.userPress();
        EXPECT_FALSE(dialog.shown());
    });
    EXPECT_FALSE(stage.library->ShowEditLocation(1));
    EXPECT_EQ(stage.value("SELECT LocationName FROM Locations WHERE ID = 1"), "O'Falls");
    for (const char* part : {"Address1", "Address2", "City", "State", "Zip", "Country"}) {
        const std::string column(part);
        EXPECT_EQ(stage.value("SELECT COALESCE(ShipTo" + column + ", '') FROM Locations WHERE ID = 1"),
                  stage.value("SELECT COALESCE(BillTo" + column + ", '') FROM Company"));
    }
    EXPECT_THAT(stage.ui.shown, IsEmpty());
}

TEST(ListsOnCompany, DeletingADiscountGroupDeletesItsDiscountsAndMovesItsCustomers) {
    ModuleStage stage;
    const std::string going = stage.value("SELECT ID FROM DiscountGroups WHERE DiscountGroup = 'Designers'");
    stage.run("UPDATE Customers SET DiscountGroupID = " + going + " WHERE ID <= 2");
    stage.run("UPDATE Customers SET CustomerDiscountGroupID = " + going + " WHERE ID = 3");
    stage.desktop.answers = {MessageAnswer::Yes};
    stage.desktop.user<lists::ReplacementDiscountGroup>("frmGetReplacementDiscountGroup",
                                                        [](lists::ReplacementDiscountGroup& screen) {
                                                            choose(screen.cboDiscountGroup, "Standard");
                                                            screen.cmdOK.userPress();
                                                        });
    stage.desktop.user<ListScreen>("frmDiscountGroups", [](ListScreen& list) {
        const std::size_t before = list.rptItems.rowCount();
        select(list, "Standard");
        list.cmdDelete.userPress();
        EXPECT_EQ(list.rptItems.rowCount(), before);
        select(list, "Designers");
        list.cmdDelete.userPress();
        EXPECT_EQ(list.rptItems.rowCount(), before - 1);
    });
    stage.library->ShowDiscountGroups();
    for (const char* references :
         {"Customers WHERE DiscountGroupID = ", "Customers WHERE CustomerDiscountGroupID = ",
          "Discounts WHERE DiscountGroupID = ", "DiscountGroups WHERE ID = "}) {
        EXPECT_EQ(stage.value("SELECT COUNT(*) FROM " + (references + going)), "0") << references;
    }
    EXPECT_EQ(
        stage.value(
            "SELECT g.DiscountGroup FROM Customers c JOIN DiscountGroups g ON g.ID = c.CustomerDiscountGroupID WHERE c.ID = 3"),
        "Standard");
    ASSERT_EQ(stage.ui.shown.size(), 1U);
    EXPECT_THAT(stage.ui.shown[0].text, HasSubstr("required discount group"));
    EXPECT_EQ(stage.lastEvent(), "The discount group 'Designers' was deleted.");
}

TEST(ListsOnCompany, SalesTaxCodesAreAssignedToAGroup) {
    ModuleStage stage;
    stage.run("DELETE FROM SalesTaxGroupCodes");
    stage.run("DELETE FROM SalesTaxCodes");
    const auto addCode = [](const char* code, const char* rate) {
        return [=](RecordDialog& dialog) {
            type(dialog, "txtCode", code);
            type(dialog, "txtRate", rate);
            dialog.cmdOK.userPress();
        };
    };
    stage.desktop.user<RecordDialog>("frmSalesTaxCodes_Edit", addCode("STATE", "6.0"));
    stage.desktop.user<RecordDialog>("frmSalesTaxCodes_Edit", addCode("COUNTY", "1.5"));
    stage.desktop.user<ListScreen>("frmSalesTaxCodes", [](ListScreen& list) {
        list.cmdNew.userPress();
        list.cmdNew.userPress();
    });
    stage.desktop.user<RecordDialog>("frmSalesTaxGroups_Edit", [](RecordDialog& dialog) {
        type(dialog, "txtSalesTaxGroup", "Both");
        dialog.cmdOK.userPress();
    });
    stage.desktop.user<lists::SalesTaxGroupCodes>("frmSalesTaxGroupCodes",
                                                  [](lists::SalesTaxGroupCodes& screen) {
                                                      screen.lstCodes.userTick(0, true);
                                                      screen.lstCodes.userTick(1, true);
                                                      screen.cmdOK.userPress();
                                                  });
    stage.desktop.user<lists::SalesTaxGroupsScreen>(
        "frmSalesTaxGroups", [](lists::SalesTaxGroupsScreen& list) {
            EXPECT_EQ(list.lblCombinedRate.caption(), "Combined rate: 7.5");
            EXPECT_EQ(list.rptCodes.rowCount(), 2U);
        });
    stage.library->ShowSalesTaxGroups();

    stage.desktop.user<ListScreen>("frmSalesTaxCodes", [](ListScreen& list) {
        select(list, "STATE");
        list.cmdDelete.userPress();
        EXPECT_EQ(list.rptItems.rowCount(), 2U);
    });
    stage.library->ShowSalesTaxCodes();
    EXPECT_THAT(stage.ui.shown.back().text, HasSubstr("referenced 1 times"));
}

TEST(ListsOnCompany, ReferencesToEveryListAreMovedAndCounted) {
    const TestFolder folder;
    Company demonstration(folder.file("demonstration.company"));
    std::int16_t code = 1;
    for (; const auto* list = lists::findReferencedList(code); ++code) {
        SCOPED_TRACE(list->table);
        ModuleStage stage;
        const std::string table(list->table), name(list->nameColumn);
        stage.run("INSERT INTO Terms (Terms) VALUES ('Net 30'), ('Net 60')");
        stage.run("UPDATE " + std::string(list->references[0].table) + " SET " +
                  std::string(list->references[0].column) + " = 1 WHERE ID = 1");
        const auto count = [](Company& in, const lists::Reference& reference, const std::string& which) {
            return in
                .scalar("SELECT COUNT(*) FROM " + std::string(reference.table) + " WHERE " +
                        std::string(reference.column) + which)
                .toLong();
        };
        const auto references = [&](const std::string& which) {
            int sum = 0;
            for (const lists::Reference& reference : list->references)
                sum += count(stage.session->company(), reference, which);
            return sum;
        };
        for (const lists::Reference& reference : list->references) {
            EXPECT_GT(count(demonstration, reference, " IN (SELECT ID FROM " + table + ")"), 0);
            EXPECT_EQ(count(demonstration, reference, " NOT IN (SELECT ID FROM " + table + ")"), 0);
        }
        const int moving = references(" = 1"), there = references(" = 2");
        EXPECT_GT(moving, 0);
        stage.desktop.user<lists::MoveListReferences>(
            "frmMoveListReferences", [&](lists::MoveListReferences& screen) {
                EXPECT_EQ(screen.txtName.text(),
                          stage.value("SELECT " + name + " FROM " + table + " WHERE ID = 1"));
                choose(screen.cboReplacement,
                       stage.value("SELECT " + name + " FROM " + table + " WHERE ID = 2"));
                screen.cmdOK.userPress();
            });
        EXPECT_FALSE(stage.library->ShowMoveReferences(code, 1));
        EXPECT_EQ(references(" = 1"), 0);
        EXPECT_EQ(references(" = 2"), there + moving);
        ASSERT_EQ(stage.desktop.boxes.size(), 1U);
        EXPECT_EQ(stage.desktop.boxes[0].text,
                  "Update complete. A total of " + std::to_string(moving) + " references where updated.");
    }
    EXPECT_EQ(code, 15);
}

TEST(ListsOnCompany, TagsAreAddedAndRenamed) {
    ModuleStage stage;
    stage.desktop.user<lists::ProductTagsDialog>("frmProductTags_Edit", [](lists::ProductTagsDialog& dialog) {
        dialog.txtTag.userType("kids' room");
        for (std::size_t i = 0; i < dialog.lstUsed.entries().size(); ++i)
            dialog.lstUsed.userTick(i, true);
        dialog.cmdOK.userPress();
    });
    EXPECT_EQ(stage.library->ShowEditProductTags(1), 1);
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM ProductTags WHERE ProductID = 1"),
              stage.value("SELECT COUNT(DISTINCT Tag) FROM ProductTags"));
    stage.desktop.user<lists::PortfolioTagDialog>("frmPortfolioTags_Edit",
                                                  [](lists::PortfolioTagDialog& dialog) {
                                                      dialog.txtTag.userType("Cook's");
                                                      dialog.cmdOK.userPress();
                                                  });
    const std::string tagged = stage.value("SELECT COUNT(*) FROM PortfolioTags WHERE Tag = 'Kitchen'");
    EXPECT_FALSE(stage.library->ShowEditPortfiolioTag("Kitchen"));
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM PortfolioTags WHERE Tag = 'Cook''s'"), tagged);
}

TEST(ListsOnCompany, ACustomerTypeAndAnAccountAreSavedWithTheirChoices) {
    ModuleStage stage;
    stage.desktop.user<RecordDialog>("frmCustomerTypes_Edit", [](RecordDialog& dialog) {
        type(dialog, "txtRound", "0.25");
        choose(dynamic_cast<ComboBox&>(*dialog.control("cboDirection")), "Nearest");
        dialog.cmdOK.userPress();
    });
    stage.library->ShowEditCustomerTypes(2);
    EXPECT_EQ(stage.value("SELECT RoundUnitPriceTo FROM CustomerTypes WHERE ID = 2"), "0.25");
    EXPECT_EQ(stage.value("SELECT RoundUnitPriceDirection FROM CustomerTypes WHERE ID = 2"), "1");

    stage.desktop.user<RecordDialog>("frmAccounts_Edit", [](RecordDialog& dialog) {
        type(dialog, "txtAccount", "Petty cash");
        choose(dynamic_cast<ComboBox&>(*dialog.control("cboAccountType")), "Purchase");
        dialog.cmdOK.userPress();
    });
    stage.desktop.user<ListScreen>("frmAccounts", [](ListScreen& list) {
        list.cmdNew.userPress();
        EXPECT_EQ(list.rptItems.rowText(*list.rptItems.focusedRow(), 1), "Purchase");
    });
    stage.library->ShowAccounts();
    EXPECT_THAT(stage.ui.shown, IsEmpty());
}

}  // namespace
}  // namespace tsln::workbench
