#include <array>

#include <gmock/gmock.h>

#include "maintenance/ListScreen.h"
#include "maintenance/RecordDialog.h"
#include "shared/modSharedStrings.h"
#include "tests/workbench/host/HostStage.h"
#include "workbench/host/MessageMembers.h"

namespace tsln::workbench {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TextBox& box(RecordDialog& dialog, const char* name) {
    return dynamic_cast<TextBox&>(*dialog.control(name));
}

std::vector<std::string> names(const ListScreen& list) {
    std::vector<std::string> shown;
    for (std::size_t row = 0; row < list.rptItems.rowCount(); ++row)
        shown.emplace_back(list.rptItems.rowText(row, 0));
    return shown;
}

void select(ListScreen& list, std::size_t row) {
    list.rptItems.userSelect(std::array{row}, row);
}

/// Types a name and the days into the dialog and presses OK.
auto typing(std::string name, std::string days = "30") {
    return [=](RecordDialog& dialog) {
        box(dialog, "txtTerms").userType(name);
        box(dialog, "txtDueIn").userType(days);
        dialog.cmdOK.userPress();
    };
}

TEST(TermsOnCompany, TermsAreAddedEditedRefusedAndDeleted) {
    ModuleStage stage;
    stage.desktop.user<ListScreen>("frmTerms", [&](ListScreen& list) {
        EXPECT_THAT(names(list), IsEmpty());
        stage.desktop.user<RecordDialog>("frmTerms_Edit", [](RecordDialog& dialog) {
            box(dialog, "txtTerms").userType("  Net 30 ");
            box(dialog, "txtDueIn").userType("5000");
            box(dialog, "txtDiscount").userType("2.5");
            dialog.cmdOK.userPress();
        });
        list.cmdNew.userPress();
        stage.desktop.user<RecordDialog>("frmTerms_Edit", typing("COD", "0"));
        list.cmdNew.userPress();
        EXPECT_THAT(names(list), ElementsAre("Net 30", "COD"));

        stage.desktop.user<RecordDialog>("frmTerms_Edit", typing("nET 30"));
        list.cmdNew.userPress();
        ASSERT_EQ(stage.desktop.boxes.size(), 2U);
        EXPECT_EQ(stage.desktop.boxes[1].text, "This term already exists.");

        select(list, 1);
        stage.desktop.user<RecordDialog>("frmTerms_Edit",
                                         typing("O'Brien's {0} <Bold> \xF0\x9F\xAA\x9F", "1"));
        list.cmdEdit.userPress();
        select(list, 0);
        list.cmdDelete.userPress();
        EXPECT_THAT(names(list), ElementsAre("O'Brien's {0} <Bold> \xF0\x9F\xAA\x9F"));
    });
    stage.desktop.answers = {MessageAnswer::No};  // the default terms are declined
    stage.library->ShowTerms();
    EXPECT_EQ(
        stage.session->company().read("SELECT ID, Terms, DueDays, Discount FROM Terms"),
        "<Records><Record><ID>2</ID><Terms>O'Brien's {0} &lt;Bold&gt; \xF0\x9F\xAA\x9F</Terms><DueDays>1</DueDays><Discount>0</Discount></Record></Records>");
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM EventLog"), "0");
    EXPECT_THAT(stage.ui.shown, IsEmpty());
}

TEST(TermsOnCompany, AFailedSaveShowsTheDatabasesMessageAndKeepsTheInput) {
    ModuleStage stage("admin", OpenMode::ReadOnly);
    stage.desktop.user<RecordDialog>("frmTerms_Edit", [&](RecordDialog& dialog) {
        typing("Net 30")(dialog);
        EXPECT_TRUE(dialog.shown());
        EXPECT_EQ(box(dialog, "txtTerms").text(), "Net 30");
        EXPECT_EQ(box(dialog, "txtDueIn").text(), "30");
        dialog.cmdCancel.userPress();
    });
    EXPECT_EQ(stage.library->ShowEditTerms(0), 0);
    ASSERT_EQ(stage.ui.shown.size(), 1U);
    EXPECT_EQ(stage.ui.shown[0].style, MessageStyle::LoggedError);
    EXPECT_EQ(stage.ui.shown[0].text, "There was a problem saving this term.");
    EXPECT_EQ(stage.ui.shown[0].explanation, usualExplanation);
    EXPECT_EQ(stage.ui.shown[0].detail, "The company file can only be read.");
    EXPECT_EQ(stage.session->eventLog().waiting(), 1U);
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM Terms"), "0");
}

}  // namespace
}  // namespace tsln::workbench
