#include "doubles/Stage.h"
#include "messages/TemplateEditor.h"
#include "messages/TemplatesList.h"

namespace tsln::test {
namespace {

using messages::TemplateEditor;
using messages::TemplatesList;

constexpr auto frmList = "frmEmailTemplates";
constexpr auto frmEditor = "frmEmailTemplatesEdit";
constexpr auto loadAll = "SELECT * FROM EmailTemplates ORDER BY GroupName, TemplateName";
constexpr auto loadCustomers =
    "SELECT * FROM EmailTemplates WHERE TemplateType = 1 ORDER BY GroupName, TemplateName";
constexpr auto loadOrders =
    "SELECT * FROM EmailTemplates WHERE TemplateType = 4 ORDER BY GroupName, TemplateName";
constexpr auto readSeven = "SELECT * FROM EmailTemplates WHERE ID = 7";

std::string row(int ID, const std::string& name, int type) {
    return "<Record><ID>" + std::to_string(ID) + "</ID><GroupName>G</GroupName><TemplateType>" +
           std::to_string(type) + "</TemplateType><TemplateName>" + name +
           "</TemplateName><Favorite>1</Favorite><Description>d</Description><CcAddress>c@x</CcAddress>"
           "<BCcAddress>b@x</BCcAddress><Subject>Hello &lt;&lt;City&gt;&gt;</Subject>"
           "<BodyText>one&#13;&#10;two</BodyText></Record>";
}

/// A host with three templates, of which one has an unknown type, and the merge fields of customers.
struct TemplateStage : Stage {
    TemplateStage() { furnish(*this); }
    static void furnish(Stage& stage) {
        RecordingHost& host = *stage.host;
        host.rows(loadAll, "<Records>" + row(7, "Reminder", 1) + row(8, "It's here", 4) + row(9, "Old", 77) +
                               "</Records>");
        host.rows(loadCustomers, "<Records>" + row(7, "Reminder", 1) + "</Records>");
        host.rows(loadOrders, "<Records>" + row(8, "It's here", 4) + "</Records>");
        host.rows(readSeven, "<Records>" + row(7, "Reminder", 1) + "</Records>");
        for (const char* view : {"Customers", "Vendors", "Employees", "Orders"}) {
            host.rows(std::string("SELECT TOP 1 * FROM vwDocumentProcessing_") + view,
                      "<Records><Record><" + std::string(view) + "Name>x</" + view +
                          "Name><City/></Record></Records>");
        }
        host.on("Options.GetUserOption", Variant("O'Dell"));
        host.on("Database.ExecuteScaler", Variant(31));
        host.on("Database.ExecuteNonQueryWithID", Variant(12));
        host.on("ShowMessageStyle2", Variant(6));
    }
    std::int32_t edit(std::int32_t ID, const std::function<void(TemplateEditor&)>& act) {
        desktop.user<TemplateEditor>(frmEditor, act);
        return library->ShowEditEmailTemplate(ID);
    }
    void list(bool oneType, const std::function<void(TemplatesList&)>& act) {
        desktop.user<TemplatesList>(frmList, act);
        library->ShowEmailTemplates(oneType);
    }
};

void fill(TemplateEditor& editor, int type = 0) {
    editor.comboBox("cboGroup").userType("G'1");
    editor.comboBox("cboType").userChoose(type);
    editor.textBox("txtName").userType("N'1");
    editor.checkBox("chkFavorite").userCheck(true);
    editor.textBox("txtDescription").userType("d");
    editor.textBox("txtCc").userType("c@x");
    editor.textBox("txtBcc").userType("b@x");
    editor.textBox("txtSubject").userType("S'1 <<");
    editor.textBox("rtfBody").userType("<b>one</b> <id> >>\r\n");
}

TEST(TemplatesList, ShowsTypesByNameAndOneTypeAtATime) {
    TemplateStage stage;
    stage.list(false, [](TemplatesList& list) {
        EXPECT_EQ(list.control("rptTemplates"), &list.rptItems);
        std::vector<std::string> types;
        for (std::size_t record = 0; record < 3; ++record)
            types.emplace_back(list.rptItems.cell(record, 1));
        EXPECT_THAT(types, ElementsAre("Customer", "Quote/Sale/Order", "Unknown"));
        EXPECT_EQ(list.rptItems.row(0).isGroup(), true);
        EXPECT_TRUE(list.rptItems.checked(0, 2));
    });
    EXPECT_THAT(stage.read(), ElementsAre(loadAll));

    stage.host->forget();
    stage.desktop.user<TemplateEditor>(frmEditor, [](TemplateEditor& editor) {
        fill(editor);
        editor.cmdOK.userPress();
    });
    stage.host->rows("SELECT * FROM EmailTemplates WHERE ID = 12",
                     "<Records>" + row(12, "New", 1) + "</Records>");
    stage.list(true, [](TemplatesList& list) {
        EXPECT_EQ(list.rptItems.recordCount(), 1U);
        list.cboType.userChoose(3);
        EXPECT_EQ(list.rptItems.cell(0, 0), "It's here");
        list.cmdNew.userPress();
        EXPECT_EQ(list.rptItems.recordCount(), 1U) << "the new template is of another type";
    });
    EXPECT_THAT(stage.read(), Contains(loadCustomers));
    EXPECT_THAT(stage.read(), Contains(loadOrders));
}

TEST(TemplatesList, AsksOnceBeforeItDeletesAndNamesWhatCouldNotBeDeleted) {
    TemplateStage stage;
    stage.list(false, [](TemplatesList& list) {
        list.rptItems.userSelect({{1}}, 1);
        list.rptItems.userDeleteKey();
        EXPECT_EQ(list.rptItems.recordCount(), 2U);
    });
    EXPECT_THAT(stage.host->callsOf("ShowMessageStyle2"),
                ElementsAre("Are you sure you want to delete the email template 'Reminder'?, "
                            "Once deleted, the template cannot be recovered., 36, , "));
    EXPECT_THAT(stage.executed(), ElementsAre("DELETE FROM EmailTemplates WHERE ID = 7"));

    stage.host->forget();
    stage.host->on("Database.ExecuteNonQuery",
                   [](Arguments a) { return Variant(!a[0].toText().ends_with("8")); });
    stage.list(false, [](TemplatesList& list) {
        list.rptItems.userSelectAll();
        list.cmdDelete.userPress();
        EXPECT_EQ(list.rptItems.recordCount(), 2U);
    });
    EXPECT_THAT(stage.host->callsOf("ShowMessageStyle2"),
                ElementsAre("Are you sure you want to delete the selected templates?, "
                            "Once deleted, the templates cannot be recovered., 36, , "));
    EXPECT_THAT(stage.failures(),
                ElementsAre(explainedInFull("The email template 'It's here' could not be deleted.")));
    EXPECT_THAT(stage.desktop.boxes, IsEmpty());

    stage.host->forget();
    stage.host->on("ShowMessageStyle2", Variant(7));
    stage.list(false, [](TemplatesList& list) {
        list.rptItems.userSelectAll();
        list.cmdDelete.userPress();
    });
    EXPECT_THAT(stage.executed(), IsEmpty());
}

TEST(TemplatesList, OffersTheDefaultsWhileItIsEmpty) {
    TemplateStage stage;
    stage.host->rows(loadAll, "<Records/>");
    stage.list(false, [](TemplatesList&) {});
    EXPECT_THAT(
        stage.desktop.boxes,
        ElementsAre(testing::Field(&Box::text, "Would you like to install the default email templates?")));
    EXPECT_THAT(stage.host->callsOf("Security.CanDo"), Contains("503, 16"));
}

TEST(TemplateEditor, ATemplateIsInsertedAndUpdatedWithItsEvent) {
    TemplateStage stage;
    EXPECT_EQ(stage.edit(0,
                         [](TemplateEditor& editor) {
                             EXPECT_EQ(editor.caption(), "Edit E-mail Template");
                             EXPECT_FALSE(editor.cmdTest.enabled());
                             fill(editor);
                             editor.cmdOK.userPress();
                         }),
              12);
    EXPECT_THAT(
        stage.inserted(),
        ElementsAre(
            "INSERT INTO EmailTemplates (GroupName, TemplateType, TemplateName, Favorite, Description, "
            "CcAddress, BCcAddress, Subject, BodyText) VALUES('G''1', 1, 'N''1', 1, 'd', 'c@x', "
            "'b@x', 'S''1 <<', '<b>one</b> <id> >>\r\n')"));
    EXPECT_EQ(stage.edit(7, [](TemplateEditor& editor) { editor.cmdOK.userPress(); }), 7);
    EXPECT_THAT(
        stage.executed(),
        ElementsAre("UPDATE emailtemplates SET GroupName = 'G', TemplateType = 1, TemplateName = 'Reminder', "
                    "Favorite = 1, Description = 'd', CcAddress = 'c@x', BccAddress = 'b@x', "
                    "Subject = 'Hello <<City>>', BodyText = 'one\r\ntwo' WHERE ID = 7"));
    EXPECT_THAT(stage.host->callsOf("RecordEvent"),
                ElementsAre("Email template 'N'1' was created.", "Email template 'Reminder' was updated."));
    EXPECT_EQ(stage.host->callsOf("FixForSQLInsert").size(), 14U);
    EXPECT_FALSE(stage.told());

    stage.host->on("Database.ExecuteNonQueryWithID", Variant(0));
    stage.host->on("Database.ExecuteNonQuery", Variant(false));
    EXPECT_EQ(stage.edit(0,
                         [](TemplateEditor& editor) {
                             fill(editor);
                             editor.cmdOK.userPress();
                             EXPECT_EQ(editor.textBox("txtSubject").text(), "S'1 <<");
                         }),
              0);
    stage.edit(7, [](TemplateEditor& editor) { editor.cmdOK.userPress(); });
    EXPECT_THAT(stage.failures(),
                ElementsAre(explainedInFull("The email template 'N'1' could not be created."),
                            explainedInFull("The email template 'Reminder' could not be updated.")));
    EXPECT_THAT(stage.host->callsOf("RecordEvent"), SizeIs(2));
}

TEST(TemplateEditor, NeedsATypeASubjectAndABody) {
    TemplateStage stage;
    stage.edit(0, [&](TemplateEditor& editor) {
        editor.cmdOK.userPress();
        editor.comboBox("cboType").userChoose(1);
        editor.textBox("rtfBody").userType("b");
        editor.cmdOK.userPress();
        EXPECT_EQ(editor.focusedControl(), &editor.textBox("txtSubject"));
        editor.textBox("txtSubject").userType("s");
        editor.textBox("rtfBody").userType(" \t\r\n");
        editor.cmdTest.userPress();
        EXPECT_EQ(editor.focusedControl(), &editor.textBox("rtfBody"));
    });
    const auto empty = "You cannot save an empty subject or message body.";
    EXPECT_THAT(stage.desktop.boxes,
                ElementsAre(exclamation("You must select a type for this email template."),
                            exclamation(empty), exclamation(empty)));
    EXPECT_THAT(stage.inserted(), IsEmpty());
}

TEST(TemplateEditor, MergeFieldsOfTheTypesViewGoInAtTheCaret) {
    TemplateStage stage;
    stage.host->failStatement = "SELECT TOP 1 * FROM vwDocumentProcessing_Employees";
    stage.edit(7, [&](TemplateEditor& editor) {
        EXPECT_EQ(editor.rptFields.rowText(0, 0), "CustomersName");
        EXPECT_EQ(editor.rptFields.rowText(1, 0), "City") << "a column without a value is a field, too";
        TextBox& body = editor.textBox("rtfBody");
        body.userSelect({.start = 3, .length = 0});
        editor.rptFields.userDoubleClick(1);
        EXPECT_EQ(body.text(), "one<<City>>\r\ntwo");
        EXPECT_EQ(editor.focusedControl(), &body);
        editor.lblFields.userFollow("Hyperlink_Fields");
        EXPECT_FALSE(editor.rptFields.visible());
        editor.lblFields.userFollow("Hyperlink_Fields");
        EXPECT_TRUE(editor.rptFields.visible());

        editor.comboBox("cboType").userChoose(2);
        EXPECT_TRUE(stage.told()) << "the view is missing";
        EXPECT_EQ(editor.rptFields.rowCount(), 0U);
        EXPECT_EQ(body.text(), "one<<City>>\r\ntwo");
        editor.comboBox("cboType").userChoose(1);
        EXPECT_EQ(editor.rptFields.rowText(0, 0), "VendorsName");

        body.userSelect({.start = 0, .length = 3});
        stage.desktop.popupChoices = {2, 3};
        body.userContextMenu();
        EXPECT_EQ(stage.desktop.clipboard, "one");
        body.userSelect({.start = 3, .length = 8});
        body.userContextMenu();
        EXPECT_EQ(body.text(), "oneone\r\ntwo");
    });
}

TEST(TemplateEditor, ATestFindsItsRecordByTheType) {
    const struct {
        int type, document;
        const char *typed, *caption, *statement, *notFound;
    } cases[] = {
        {0, 0, " O'Dell ", "Test this template with customer",
         "SELECT ID FROM Customers WHERE CustomerName = 'O''Dell'",
         "The specified customer cannot be found."},
        {1, 0, "V", "Test this template with vendor", "SELECT ID FROM Vendodrs WHERE VendorName = 'V'",
         "The specified vendor cannot be found."},
        {2, 0, "pat", "Test this template with employee (user name)",
         "SELECT ID FROM Employees WHERE UserName = 'pat'", "The specified employee cannot be found."},
        {3, 0, "10003", "Test this template with quote",
         "SELECT ID FROM Orders WHERE State = 1 AND OrderNumber = 10003",
         "The specified quote, sale or order cannot be found."},
        {3, 1, "7", "Test this template with sale",
         "SELECT ID FROM Orders WHERE State = 2 AND OrderNumber = 7",
         "The specified quote, sale or order cannot be found."},
        {3, 2, "7", "Test this template with order",
         "SELECT ID FROM Orders WHERE State = 3 AND OrderNumber = 7",
         "The specified quote, sale or order cannot be found."},
    };
    for (const auto& c : cases) {
        TemplateStage stage;
        stage.edit(0, [&](TemplateEditor& editor) {
            fill(editor, c.type);
            editor.cboTest.userChoose(c.document);
            EXPECT_EQ(editor.cmdTest.caption(), c.caption);
            EXPECT_EQ(editor.cboTest.visible(), c.type == 3);
            editor.txtTestNumber.userType(c.typed);
            EXPECT_TRUE(editor.txtTestNumber.userEnter()) << "Enter tests, and does not save";
            EXPECT_THAT(stage.host->callsOf("Database.ExecuteScaler"), ElementsAre(c.statement));
            EXPECT_THAT(stage.host->callsOf("SendEmailMessageWithTemplateAndUI"),
                        ElementsAre(std::to_string(c.type + 1) + ", 31, S'1 <<, <b>one</b> <id> >>\r\n"));
            for (const Variant& none : {Variant(0), Variant(), Variant(""), Variant(Null())}) {
                stage.host->on("Database.ExecuteScaler", none);
                editor.cmdTest.userPress();
            }
            EXPECT_TRUE(editor.shown());
        });
        EXPECT_THAT(stage.host->callsOf("SendEmailMessageWithTemplateAndUI"), SizeIs(1));
        EXPECT_THAT(stage.desktop.boxes, AllOf(SizeIs(4), Each(exclamation(c.notFound))));
        EXPECT_THAT(stage.host->callsOf("Options.GetUserOption"),
                    ElementsAre("Test Number, Email Templates, "));
        EXPECT_THAT(stage.host->callsOf("Options.SetUserOption"),
                    ElementsAre(std::string("Test Number, Email Templates, ") + c.typed));
    }
    TemplateStage stage;
    stage.edit(0, [&](TemplateEditor& editor) {
        EXPECT_EQ(editor.txtTestNumber.text(), "O'Dell");
        fill(editor, 3);
        editor.txtTestNumber.userType("1 OR 1 = 1");
        editor.cmdTest.userPress();
    });
    EXPECT_THAT(stage.host->callsOf("Database.ExecuteScaler"), IsEmpty()) << "an order number is a number";
    EXPECT_THAT(stage.desktop.boxes, SizeIs(1));
}

TEST(TemplatesList, NoFaultOfTheHostDeletesAnotherTemplate) {
    sweepFaults(
        [](Stage& stage) {
            TemplateStage::furnish(stage);
            stage.desktop.user<TemplatesList>(frmList, [](TemplatesList& list) {
                if (list.rptItems.rowCount() > 1) list.rptItems.userSelect({{1}}, 1);
                list.cmdEdit.userPress();
                list.cmdDelete.userPress();
            });
            stage.library->ShowEmailTemplates(false);
        },
        [](Stage& stage) { EXPECT_THAT(stage.executed(), Each(HasSubstr("ID = 7"))); });
}

}  // namespace
}  // namespace tsln::test
