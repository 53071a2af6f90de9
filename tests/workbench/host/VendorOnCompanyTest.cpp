#include <gmock/gmock.h>

#include "doubles/HexPattern.h"
#include "entities/VendorEditor.h"
#include "tests/workbench/host/HostStage.h"
#include "workbench/host/RecordLists.h"

namespace tsln::workbench {
namespace {

using entities::VendorEditor;
using testing::ElementsAre;
using testing::IsEmpty;

const RecordKind& vendors = *recordKindOf(Operation::ShowEditVendor);

template <class Act>
std::int32_t edit(test::ScriptedDesktop& desktop, Library& library, std::int32_t ID, Act act) {
    desktop.user<VendorEditor>("frmEditVendor", act);
    return library.ShowEditVendor(ID);
}

TextBox& box(Screen& editor, std::string_view name) {
    return dynamic_cast<TextBox&>(*editor.control(name));
}

void accept(VendorEditor& editor) {
    editor.cmdOK.userPress();
}

TEST(VendorOnCompany, AVendorIsAddedReadBackAndItsChangesAreInTheHistory) {
    ModuleStage stage;
    stage.run("INSERT INTO Terms (Terms) VALUES('Net 15')");
    const std::int32_t ID = edit(stage.desktop, *stage.library, 0, [](VendorEditor& editor) {
        editor.textBox("txtName").userType(" O'Brien & Daughters ");
        box(editor, "txtPhone2").userType("555");
        editor.textBox("txtBillToAddress").userType("9 Quay Rd\r\nSuite 4\r\ntoronto, on m5v 2t6\r\nCanada");
        editor.lblCopyBilling.userFollow("Hyperlink_BillingToShipping");
        editor.textBox("txtMargin").userType("12.5");
        editor.textBox("txtNotes").userType("two\r\nlines");
        editor.cmdOK.userPress();
    });
    ASSERT_GT(ID, 0);
    const std::string where = " FROM Vendors WHERE ID = " + std::to_string(ID);
    const std::pair<const char*, const char*> stored[] = {
        {"VendorName", "O'Brien & Daughters"},
        {"BillToAddress1 + ';' + BillToAddress2 + ';' + BillToCity + ';' + BillToState + ';' + BillToZip + ';' + BillToCountry",
         "9 Quay Rd;Suite 4;toronto;on;m5v 2t6;Canada"},
        {"ShipToZip", "m5v 2t6"},
        {"Phone3Label", "Mobile"},
        {"TermsID", "1"},
        {"Margin", "0.125"},
        {"Notes", "two\r\nlines"},
        {"Active", "1"}};
    for (const auto& [column, value] : stored)
        EXPECT_EQ(stage.value("SELECT " + std::string(column) + where), value) << column;
    EXPECT_THAT(stage.value("SELECT UniqueID" + where),
                test::IsHexLike("{xxxxxxxx-xxxx-4xxx-xxxx-xxxxxxxxxxxx}"));
    EXPECT_EQ(stage.value("SELECT Activity FROM CustomerActivity WHERE CustomerID = " + std::to_string(ID)),
              "Vendor added.");
    EXPECT_EQ(stage.lastEvent(), "Vendor 'O'Brien & Daughters was added.");
    EXPECT_EQ(stage.session->notices().back().code, 6001);
    EXPECT_EQ(stage.session->notices().back().about, std::to_string(ID));

    const std::string guid = stage.value("SELECT UniqueID" + where);
    EXPECT_EQ(edit(stage.desktop, *stage.library, ID, accept), ID);
    EXPECT_THAT(stage.history(Operation::ShowEditVendor, ID), IsEmpty()) << "nothing changed";
    EXPECT_EQ(stage.session->notices().back().code, 6003);
    EXPECT_EQ(stage.lastEvent(), "Vendor 'O'Brien & Daughters was updated.");

    EXPECT_EQ(edit(stage.desktop, *stage.library, ID,
                   [](VendorEditor& editor) {
                       EXPECT_EQ(editor.textBox("txtBillToAddress").text(),
                                 "9 Quay Rd\r\nSuite 4\r\ntoronto, on m5v 2t6\r\nCanada");
                       EXPECT_EQ(editor.textBox("txtMargin").text(), "12.5");
                       editor.textBox("txtContact").userType("Orla");
                       editor.comboBox("cboTerms").setListIndex(-1);
                       editor.textBox("txtMargin").userType("40");
                       editor.checkBox("chkActive").userCheck(false);
                       editor.textBox("txtNotes").userType("one");
                       editor.cmdOK.userPress();
                   }),
              ID);
    EXPECT_THAT(stage.history(Operation::ShowEditVendor, ID),
                ElementsAre("Vendor updated:\r\nContact:  to Orla\r\nTermsID: 1 to \r\n"
                            "Notes: two\r\nlines to one\r\nActive: 1 to 0\r\n"
                            "Margin: 0.125 to 0.4"));
    EXPECT_EQ(stage.value("SELECT UniqueID" + where), guid);
    EXPECT_EQ(stage.value("SELECT TermsID" + where), "-");
    EXPECT_THAT(stage.ui.shown, IsEmpty());
    EXPECT_THAT(stage.desktop.boxes, IsEmpty());
    const auto listed = listRecords(stage.session->company(), vendors);
    const auto own = std::ranges::find(listed, ID, &ListedRecord::ID);
    ASSERT_NE(own, listed.end());
    EXPECT_THAT(own->cells, ElementsAre("O'Brien & Daughters", "Orla", "toronto", "No", ""));
}

TEST(VendorOnCompany, ARefusalOfTheDatabaseIsReportedAndTheInputKept) {
    ModuleStage stage;
    stage.refuse("INSERT ON Vendors");
    stage.refuse("UPDATE ON Vendors");
    for (const std::int32_t ID : {0, 4}) {
        edit(stage.desktop, *stage.library, ID, [&](VendorEditor& editor) {
            editor.textBox("txtName").userType("In use");
            editor.cmdOK.userPress();
            EXPECT_TRUE(editor.shown());
            EXPECT_EQ(editor.textBox("txtName").text(), "In use");
        });
    }
    ASSERT_EQ(stage.ui.shown.size(), 2U);
    EXPECT_EQ(stage.ui.shown[0].text, "The vendor 'In use could not be added.");
    EXPECT_EQ(stage.ui.shown[1].text, "The vendor 'In use could not be updated.");
    EXPECT_EQ(stage.ui.shown[1].detail, "Refused");
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM Vendors WHERE VendorName = 'In use'"), "0");
    EXPECT_THAT(stage.session->notices(), IsEmpty());
}

}  // namespace
}  // namespace tsln::workbench
