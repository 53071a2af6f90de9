#include "lists/DiscountGroups.h"
#include "lists/ReplacementDiscountGroup.h"
#include "tests/lists/Acts.h"

namespace tsln::test {
namespace {

using lists::DiscountGroupDialog;
using lists::ReplacementDiscountGroup;

std::string groupRow(int ID, const std::string& name, const std::string& type) {
    return "<Records><Record><ID>" + std::to_string(ID) + "</ID><DiscountGroup>" + name +
           "</DiscountGroup><DiscountGroupType>" + type + "</DiscountGroupType></Record></Records>";
}

/// A company whose group 7 is to be deleted and whose group 9 can replace it.
void fill(Stage& stage, const std::string& name = "Designers", const std::string& type = "0",
          int ofItsType = 2) {
    stage.host->rows("SELECT DiscountGroup, DiscountGroupType FROM DiscountGroups WHERE ID = 7",
                     groupRow(7, name, type));
    stage.host->rows("SELECT * FROM DiscountGroups WHERE ID <> 7", groupRow(9, "Standard", "0"));
    stage.host->rows("SELECT * FROM DiscountGroups WHERE ID = 7", groupRow(7, name, type));
    stage.host->rows("SELECT * FROM DiscountGroups ORDER BY DiscountGroup", groupRow(7, name, type));
    stage.host->on("Database.ExecuteScaler", Variant(ofItsType));
    stage.host->on("Common.GetDiscountGroupName", Variant(name));
    stage.host->connectionErrors = {"first error", "second error"};
}

/// The user confirms and chooses group 9.
void agree(Stage& stage) {
    stage.desktop.answers = {MessageAnswer::Yes};
    stage.desktop.user<ReplacementDiscountGroup>("frmGetReplacementDiscountGroup",
                                                 [](ReplacementDiscountGroup& screen) {
                                                     enter(screen, "cboDiscountGroup", "Standard");
                                                     screen.cmdOK.userPress();
                                                 });
}

const std::vector<std::string> allSteps{
    "UPDATE Customers SET DiscountGroupID = 9 WHERE DiscountGroupID = 7",
    "UPDATE Customers SET CustomerDiscountGroupID = 9 WHERE CustomerDiscountGroupID = 7",
    "DELETE FROM Discounts WHERE DiscountGroupID = 7", "DELETE FROM DiscountGroups WHERE ID = 7"};

std::vector<std::string> changes(const Stage& stage) {
    std::vector<std::string> statements = stage.host->callsOf("CurrentCompanyConn.Execute");
    std::erase_if(statements, [](const std::string& sql) { return sql.starts_with("SELECT"); });
    return statements;
}

TEST(DiscountGroupDeletion, ARequiredGroupAndTheLastGroupOfATypeAreKept) {
    struct Case {
        const char *name, *type;
        int ofItsType;
        const char* refusal;  ///< null: may be deleted; empty: refused without a message
    };
    constexpr auto required = " cannot be deleted because it's a required discount group., ";
    const Case cases[] = {
        {" STANDARD ", "0", 5, required},
        {"Vendor", "1", 2, required},
        {"customer", "2", 1, required},
        {"Standard", "1", 2, nullptr},  // only its own type's name is reserved
        {"Designers", "0", 2, nullptr},
        {"Designers", "0", 1,
         " cannot be deleted because it's the last price discount group., You must have at least one price discount group setup in your company."},
        {"Early", "1", 1,
         " cannot be deleted because it's the last cost discount group., You must have at least one customer cost group setup in your company."},
        {"Volume", "2", 1,
         " cannot be deleted because it's the last customer discount group., You must have at least one customer discount group setup in your company."},
        {"Odd", "3", 4, ""},
        {"Odd", "many", 1,
         " cannot be deleted because it's the last price discount group., You must have at least one price discount group setup in your company."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.name) + " " + c.type);
        Stage stage;
        fill(stage, c.name, c.type, c.ofItsType);
        agree(stage);
        EXPECT_EQ(stage.library->ShowDeleteDiscountGroup(7), c.refusal == nullptr);
        std::vector<std::string> told;
        if (c.refusal && *c.refusal) told.push_back("The discount group " + std::string(c.name) + c.refusal);
        EXPECT_EQ(stage.host->callsOf("ShowMessageStyle1"), told);
        EXPECT_EQ(stage.desktop.boxes.size(), c.refusal ? 0U : 1U);
        EXPECT_EQ(changes(stage), c.refusal ? std::vector<std::string>() : allSteps);
    }
    Stage stage;
    EXPECT_FALSE(stage.library->ShowDeleteDiscountGroup(7)) << "no such group";
    EXPECT_FALSE(stage.told());
}

TEST(DiscountGroupDeletion, EveryQuestionCanBeCancelled) {
    Stage stage;
    fill(stage);
    EXPECT_FALSE(stage.library->ShowDeleteDiscountGroup(7));
    EXPECT_THAT(
        stage.desktop.boxes,
        ElementsAre(question(
            "Deleting the discount group 'Designers' will delete all discounts for that group and set the discount group for associated customers to another discount group that you must select. Are you sure you want to delete this discount group?")));
    for (const bool byCloseBox : {true, false}) {
        stage.desktop.answers = {MessageAnswer::Yes};
        stage.desktop.user<ReplacementDiscountGroup>("frmGetReplacementDiscountGroup",
                                                     [&](ReplacementDiscountGroup& screen) {
                                                         screen.cmdOK.userPress();
                                                         EXPECT_TRUE(screen.shown());
                                                         enter(screen, "cboDiscountGroup", "Standard");
                                                         if (!byCloseBox) screen.cmdCancel.userPress();
                                                     });
        EXPECT_FALSE(stage.library->ShowDeleteDiscountGroup(7));
        EXPECT_EQ(stage.desktop.boxes.back(), exclamation("You must select a new discount group."));
    }
    stage.host->rows("SELECT * FROM DiscountGroups WHERE ID <> 7", "<Records/>");
    stage.desktop.shown.clear();
    EXPECT_EQ(stage.library->ShowGetReplacementDiscountGroup(7), 0);
    EXPECT_EQ(stage.desktop.boxes.back(),
              (exclamation("You cannot delete this discount group because it is the last one left.")));
    EXPECT_THAT(stage.desktop.shown, IsEmpty());
    EXPECT_THAT(changes(stage), IsEmpty());
    EXPECT_THAT(stage.host->callsOf("RecordEvent"), IsEmpty());
}

TEST(DiscountGroupDeletion, StopsAtTheFirstFailureAndLogsIt) {
    const std::string customers =
        "Unable to update the customers to reference a new discount group [9] while deleting a discount group. More information to follow.";
    const std::string failures[] = {
        customers, customers,
        "Unable to delete the discounts from discount group [7]. More information to follow.",
        "Unable to delete the discount group [7]. More information to follow."};
    const Box notDeleted = exclamation("The discount group 'Designers' could not be deleted.");
    for (std::size_t failing = 0; failing < allSteps.size(); ++failing) {
        Stage stage;
        fill(stage);
        agree(stage);
        stage.host->failStatement = allSteps[failing];
        EXPECT_FALSE(stage.library->ShowDeleteDiscountGroup(7));
        EXPECT_EQ(changes(stage),
                  std::vector(allSteps.begin(), allSteps.begin() + static_cast<std::ptrdiff_t>(failing + 1)));
        EXPECT_THAT(stage.host->callsOf("RecordEvent"),
                    ElementsAre(failures[failing], "first error", "second error"));
        EXPECT_EQ(stage.desktop.boxes.back(), notDeleted);
    }
    // The missing connection is noticed only after the choice of the replacement, which also needs one.
    Stage stage;
    fill(stage);
    agree(stage);
    bool gone = false;
    stage.library->plugIn(Operation::ShowGetReplacementDiscountGroup, [&](Library&, Arguments) {
        gone = true;
        return Variant(9);
    });
    stage.host->on("CurrentCompanyConn", Variant(ObjectPtr()));
    EXPECT_FALSE(stage.library->ShowDeleteDiscountGroup(7));
    EXPECT_TRUE(gone);
    EXPECT_THAT(stage.host->callsOf("RecordEvent"),
                ElementsAre("Unable to access the database while deleting a discount group."));
    EXPECT_EQ(stage.desktop.boxes.back(), notDeleted);
}

TEST(DiscountGroups, TheListDeletesThroughTheLibraryAndExportExplainsItsLimits) {
    Stage stage;
    fill(stage);
    agree(stage);
    stage.desktop.popupChoices = {28003};
    stage.desktop.user<ListScreen>("frmDiscountGroups", [](ListScreen& list) {
        list.cmdMore.userPress();
        selectAll(list.rptItems);
        list.cmdDelete.userPress();
    });
    stage.library->ShowDiscountGroups();
    EXPECT_THAT(
        stage.host->callsOf("ShowMessageStyle1WithMemory"),
        ElementsAre(
            "Exporting Discount Groups, Exporting discount groups will only export the names and types of the groups. It does not export the actual discounts. Exporting of discounts must be done from the Discounts screen."));
    EXPECT_EQ(changes(stage), allSteps);
    EXPECT_EQ(stage.read().back(), "SELECT * FROM DiscountGroups ORDER BY DiscountGroup");
}

TEST(DiscountGroups, RequiredGroupsCannotBeChanged) {
    for (const char* name : {"Vendor ", "standard", " CUSTOMER"}) {
        Stage stage;
        fill(stage, name);
        EXPECT_EQ(stage.library->ShowEditDiscountGroups(7), 0);
        EXPECT_THAT(stage.desktop.boxes, ElementsAre(information("This discount group cannot be changed.")));
    }
    Stage stage;
    fill(stage);
    stage.host->on("tslnfe5.Engine.ShowEditExpression2",
                   [](Arguments a) { return Variant(a[0].toText() + " & more"); });
    stage.desktop.user<DiscountGroupDialog>("frmDiscountGroups_Edit", [](DiscountGroupDialog& dialog) {
        press(dialog, "cmdExpression");
        EXPECT_EQ(entered(dialog, "txtDiscount"), "Designers & more");
        enter(dialog, "cboType", "Customer");
        dialog.cmdOK.userPress();
    });
    EXPECT_EQ(stage.library->ShowEditDiscountGroups(7), 7);
    EXPECT_THAT(
        stage.executed(),
        ElementsAre(
            "UPDATE DiscountGroups SET DiscountGroup = 'Designers & more', DiscountGroupType = 2 WHERE ID = 7"));
    EXPECT_THAT(stage.host->callsOf("tslnfe5.Engine.PreTerminate"), ElementsAre(""));

    // A missing expression editor, and one that returns nothing, change nothing.
    for (const bool missing : {true, false}) {
        if (missing) stage.desktop.components = nullptr;
        stage.host->on("tslnfe5.Engine.ShowEditExpression2", Variant());
        stage.desktop.user<DiscountGroupDialog>("frmDiscountGroups_Edit", [](DiscountGroupDialog& dialog) {
            enter(dialog, "txtDiscount", "O'Neil");
            press(dialog, "cmdExpression");
            EXPECT_EQ(entered(dialog, "txtDiscount"), "O'Neil");
            dialog.cmdOK.userPress();
        });
        stage.library->ShowEditDiscountGroups(0);
        EXPECT_EQ(stage.inserted().back(),
                  "INSERT INTO DiscountGroups (DiscountGroup,DiscountGroupType) VALUES('O''Neil', 0)");
    }
}

}  // namespace
}  // namespace tsln::test
