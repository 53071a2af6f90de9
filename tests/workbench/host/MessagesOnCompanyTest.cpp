#include <gmock/gmock.h>

#include "measurements/LocationChooser.h"
#include "measurements/MeasurementDialog.h"
#include "measurements/MeasurementsList.h"
#include "messages/SentMessages.h"
#include "messages/TemplateEditor.h"
#include "messages/TemplatesList.h"
#include "tests/workbench/host/HostStage.h"
#include "workbench/host/Email.h"
#include "workbench/sql/SqlText.h"

namespace tsln::workbench {
namespace {

using measurements::LocationChooser;
using measurements::MeasurementDialog;
using measurements::MeasurementsList;
using messages::SentMessages;
using messages::TemplateEditor;
using messages::TemplatesList;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(MeasurementsOnCompany, AreStoredAsTypedAndChosenByLocation) {
    ModuleStage stage;
    stage.run("DELETE FROM CustomerMeasurements");
    stage.run("INSERT INTO MeasurementMounts (Mount) VALUES ('Ceiling')");
    const auto add = [&](const char* location, const char* width, const char* note) {
        stage.desktop.user<MeasurementDialog>("frmCustomerMeasurements_Edit", [=](MeasurementDialog& dialog) {
            EXPECT_EQ(dialog.comboBox("cboMount").entries().at(0).text, "Ceiling");
            dialog.comboBox("cboLocation").userType(location);
            dialog.comboBox("cboItem").userType("Mother's bay");
            dialog.textBox("txtWidth").userType(width);
            dialog.textBox("txtHeight").userType("60\" \U0001F4CF");
            dialog.textBox("txtNote").userType(note);
            dialog.cmdOK.userPress();
        });
    };
    add("Office", "35 1/2", "a\r\nb");
    add("House", "47 3/8\"", "");
    stage.desktop.user<MeasurementsList>("frmCustomerMeasurements", [](MeasurementsList& list) {
        EXPECT_EQ(list.caption(), "Customer Measurements - Cinder & Ash Interiors");
        list.cmdNew.userPress();
        list.cmdNew.userPress();
        list.rptItems.userSelect({{1}}, 1);
        EXPECT_EQ(list.rptItems.rowText(1, 4), "47 3/8\"");
    });
    stage.library->ShowCustomerMeasurements(17);
    EXPECT_EQ(
        stage.value("SELECT Item + ', ' + Width + ', ' + Length + ', ' + Remarks FROM CustomerMeasurements "
                    "WHERE CustomerID = 17 AND Location = 'Office'"),
        "Mother's bay, 35 1/2, 60\" \U0001F4CF, a\r\nb");

    stage.desktop.user<LocationChooser>(
        "frmCustomerMeasurements_SelectLocation", [](LocationChooser& chooser) {
            EXPECT_EQ(chooser.rptLocations.rowCount(), 2U);
            const std::size_t office = chooser.rptLocations.rowText(0, 0) == "Office" ? 0 : 1;
            chooser.rptLocations.userSelect({{office}}, office);
            chooser.cmdOK.userPress();
        });
    const std::int32_t ID = stage.library->SelectCustomerMeasurementsLocation(17, false);
    EXPECT_EQ(stage.value("SELECT Location FROM CustomerMeasurements WHERE ID = " + std::to_string(ID)),
              "Office");
    EXPECT_THAT(stage.desktop.boxes, IsEmpty());
    EXPECT_THAT(stage.ui.shown, IsEmpty());
}

TEST(MessagesOnCompany, ATemplateIsTestedAndItsMessageFoundAndSaved) {
    ModuleStage stage;
    stage.run("DELETE FROM SentMessages");
    const std::string name =
        stage.value("SELECT TOP 1 CustomerName FROM Customers WHERE CustomerName LIKE 'O''Dell%'");
    ASSERT_THAT(name, HasSubstr("'"));
    stage.ui.sends = true;
    stage.desktop.user<TemplateEditor>("frmEmailTemplatesEdit", [&](TemplateEditor& editor) {
        EXPECT_EQ(editor.comboBox("cboGroup").entries().size(), 3U);
        editor.comboBox("cboType").userChoose(0);
        EXPECT_GT(editor.rptFields.rowCount(), 15U);
        editor.textBox("txtName").userType("It's ready");
        editor.textBox("txtSubject").userType("For <<customername>>");
        editor.textBox("rtfBody").userType("Dear <<FirstName>>, << <b> >> <<Nothing>>\r\n");
        editor.txtTestNumber.userType(name);
        editor.cmdTest.userPress();
        editor.cmdOK.userPress();
    });
    const std::int32_t ID = stage.library->ShowEditEmailTemplate(0);
    EXPECT_EQ(stage.value("SELECT TemplateName FROM EmailTemplates WHERE ID = " + std::to_string(ID)),
              "It's ready");
    EXPECT_EQ(stage.lastEvent(), "Email template 'It's ready' was created.");
    const std::string first =
        stage.value("SELECT FirstName FROM Customers WHERE CustomerName = " + literal(name));

    stage.desktop.files = {stage.folder.file("message.txt")};
    stage.desktop.popupChoices = {messages::mnuMessagesSaveCurrent};
    stage.desktop.user<SentMessages>("frmSentMessages", [&](SentMessages& screen) {
        ASSERT_EQ(screen.rptItems.rowCount(), 1U) << "sent today";
        screen.rptItems.userSelect({{0}}, 0);
        EXPECT_EQ(screen.rptItems.rowText(0, 2), "For " + name);
        screen.cmdMessages.userPress();
    });
    stage.library->ShowSentMessages();
    EXPECT_THAT(textOfFile(stage.folder.file("message.txt")),
                testing::EndsWith("Subject: For " + name + "\r\n\r\nDear " + first +
                                  ", << <b> >> <<Nothing>>\r\n\r\n"));

    // The number of the last test is kept for the next template; every type finds its record.
    const struct {
        int type, document;
        std::string with;
    } cases[] = {{1, 0, stage.value("SELECT TOP 1 VendorName FROM Vendors")},
                 {2, 0, "ADMIN"},
                 {3, 0, stage.value("SELECT TOP 1 OrderNumber FROM Orders WHERE State = 1")},
                 {3, 2, stage.value("SELECT TOP 1 OrderNumber FROM Orders WHERE State = 3")}};
    std::string last = name;
    for (const auto& c : cases) {
        stage.desktop.user<TemplateEditor>("frmEmailTemplatesEdit", [&](TemplateEditor& editor) {
            EXPECT_EQ(editor.txtTestNumber.text(), last);
            editor.comboBox("cboType").userChoose(c.type);
            editor.cboTest.userChoose(c.document);
            editor.txtTestNumber.userType(last = c.with);
            editor.cmdTest.userPress();
            editor.cmdCancel.userPress();
        });
        stage.library->ShowEditEmailTemplate(ID);
    }
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM SentMessages"), "5");
    EXPECT_THAT(stage.desktop.boxes, IsEmpty());
    EXPECT_THAT(stage.ui.shown, IsEmpty());
}

TEST(MessagesOnCompany, LongBodiesAndMissingViewsLoseNothing) {
    ModuleStage stage;
    stage.run("DELETE FROM EmailTemplates");
    std::string body;
    while (body.size() < 1'000'000)
        body += "<p>it's << \U0001F600 >> \r\n</p>";
    SQLite::Database(stage.folder.file("test.company"), SQLite::OPEN_READWRITE)
        .exec("DROP VIEW vwDocumentProcessing_Customers");
    stage.desktop.user<TemplateEditor>("frmEmailTemplatesEdit", [&](TemplateEditor& editor) {
        editor.comboBox("cboType").userChoose(0);
        EXPECT_EQ(stage.ui.shown.size(), 1U) << "the view is missing";
        editor.textBox("txtSubject").userType("s");
        editor.textBox("rtfBody").userType(body);
        editor.cmdOK.userPress();
    });
    const std::int32_t ID = stage.library->ShowEditEmailTemplate(0);
    EXPECT_GT(ID, 0);
    EXPECT_EQ(stage.value("SELECT BodyText FROM EmailTemplates"), body);
    stage.desktop.user<TemplateEditor>("frmEmailTemplatesEdit", [&](TemplateEditor& editor) {
        EXPECT_EQ(editor.textBox("rtfBody").text(), body);
        editor.cmdOK.userPress();
    });
    EXPECT_EQ(stage.library->ShowEditEmailTemplate(ID), ID);
    EXPECT_EQ(stage.value("SELECT BodyText FROM EmailTemplates"), body);
}

TEST(MergeFields, AreReplacedWhereTheyHaveAValue) {
    const auto merged = [](std::string_view text) {
        return mergeFields(text, [](std::string_view name) -> std::optional<std::string> {
            if (name == "a") return "<<b>>";
            return std::nullopt;
        });
    };
    const std::pair<const char*, const char*> cases[] = {{"<<a>>", "<<b>>"},
                                                         {"x<<a>>y<<a>>z", "x<<b>>y<<b>>z"},
                                                         {"<<c>> <<a>>", "<<c>> <<b>>"},
                                                         {"<<<<a>>>>", "<<<<b>>>>"},
                                                         {">><<a", ">><<a"},
                                                         {"<< <<a>>", "<< <<b>>"},
                                                         {"", ""},
                                                         {"<<>>", "<<>>"}};
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(merged(text), expected);
}

}  // namespace
}  // namespace tsln::workbench
