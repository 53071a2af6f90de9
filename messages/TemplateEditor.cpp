#include "messages/TemplateEditor.h"

#include <algorithm>

#include "automation/NumericText.h"
#include "shared/modSharedSQL.h"
#include "shared/modSharedStrings.h"

namespace tsln::messages {
namespace {

using modSharedSQL::format;

constexpr std::string_view screenName = "frmEmailTemplatesEdit";
constexpr std::string_view title = "Edit E-mail Template";

// What the user last tested with, kept for all templates.
constexpr std::string_view testNumberOption = "Test Number";
constexpr std::string_view testNumberSection = "Email Templates";

constexpr int wide = 60;  // characters

enum BodyCommand { bodyMenu = 1, copy, paste };

// The columns of both statements are named apart, because the UPDATE spells the table and a column differently
// (deliberate).
const RecordDescription templateRecord{
    .table = "EmailTemplates",
    .newCaption = title,
    .editCaption = title,
    .fields = {fields::suggested("cboGroup", "&Group:", "GroupName", "<group>", ChoiceQuery{"SELECT DISTINCT GroupName FROM EmailTemplates ORDER BY GroupName", "GroupName"}),
               fields::choice("cboType", "&Type:", "TemplateType", "<type>", templateTypes).required("You must select a type for this email template."),
               fields::text("txtName", "&Name:", "TemplateName", "<name>"),
               fields::check("chkFavorite", "Fa&vorite", "Favorite", "<fav>"),
               fields::text("txtDescription", "&Description:", "Description", "<desc>"),
               fields::text("txtCc", "&Cc:", "CcAddress", "<cc>"),
               fields::text("txtBcc", "&Bcc:", "BCcAddress", "<bcc>"),
               fields::text("txtSubject", "&Subject:", "Subject", "<subject>"),
               fields::lines("rtfBody", "&Message", "BodyText", "<bodytext>").wide(wide)},
    .saveExplanation = saveAgainExplanation,
    .safeText = SafeText::ByHost,
    .closingCancels = true,
    .insert = "INSERT INTO EmailTemplates (GroupName, TemplateType, TemplateName, Favorite, Description, CcAddress, BCcAddress, Subject, BodyText) "
              "VALUES('<group>', <type>, '<name>', <fav>, '<desc>', '<cc>', '<bcc>', '<subject>', '<bodytext>')",
    .update = "UPDATE emailtemplates SET GroupName = '<group>', TemplateType = <type>, TemplateName = '<name>', "
              "Favorite = <fav>, Description = '<desc>', CcAddress = '<cc>', BccAddress = '<bcc>', Subject = '<subject>', "
              "BodyText = '<bodytext>' WHERE ID = <id>",
};

/// True for a text of blanks and line ends only.
bool isBlank(std::string_view text) {
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

}  // namespace

TemplateEditor::TemplateEditor(Library& library)
    : RecordDialog(library, std::string(screenName), templateRecord) {
    rptFields.columns = {{"Merge Fields", 170}};
    rptFields.accessibleName = "Merge fields";
    rptFields.onRowDoubleClick = [this](std::size_t row) { insertField(row); };
    lblFields.onLink = [this](const std::string&) { showMergeFields(!rptFields.visible()); };
    comboBox("cboType").onClick = [this] { typeChosen(); };
    for (const DocumentKind& kind : documentKinds)
        cboTest.addItem(std::string(kind.caption), kind.state);
    cboTest.setListIndex(0);
    cboTest.onClick = [this] { showTestCaption(); };
    cboTest.accessibleName = "Document to test with";
    cboTest.widthInCharacters = 10;
    txtTestNumber.onEnterKey = [this] {
        cmdTest.userPress();  // Enter here must not save and close
        return true;
    };
    cmdTest.onClick = [this] { cmdTest_Click(); };
    cbContext.popups = {{.id = bodyMenu, .caption = "Message", .commands = {{copy, "Copy"}, {paste, "Paste"}}}};
    cbContext.onUpdate = [this](Command& command) {
        command.enabled = command.id == copy ? textBox("rtfBody").selection().length > 0
                                             : !desktop().clipboardText().empty();
    };
    cbContext.onExecute = [this](int id) { runBodyCommand(id); };
    textBox("rtfBody").onContextMenu = [this] { cbContext.showPopup(bodyMenu, textBox("rtfBody")); };
    showMergeFields(true);
}

Layout TemplateEditor::content() {
    using namespace tsln::layout;
    const auto one = [this](std::string_view control) { return fieldOf(control).layout(); };
    return column({form({row({one("cboGroup"), one("cboType"), one("chkFavorite")}), one("txtName"),
                         one("txtDescription"), row({stretch(one("txtCc")), stretch(one("txtBcc"))}), one("txtSubject")}),
                   stretch(row({fill(textBox("rtfBody")), column({item(lblFields), fill(rptFields)})})),
                   framed(grpTest, row({item(cboTest), stretch(field("Test &with:", txtTestNumber)), item(cmdTest)}))});
}

void TemplateEditor::filled() {
    txtTestNumber.setText(host().options().GetUserOption(testNumberOption, testNumberSection, "").toText());
    testNumberRead_ = true;
    typeChosen();
}

void TemplateEditor::Form_Unload() {
    RecordDialog::Form_Unload();
    // A number that could not be read must not be overwritten.
    if (testNumberRead_)
        host().options().SetUserOption(testNumberOption, testNumberSection, txtTestNumber.text());
}

// The type and its merge fields -----------------------------------------------------------------------

const TemplateType* TemplateEditor::type() {
    return findTemplateType(comboBox("cboType").chosen().value_or(0));
}

void TemplateEditor::typeChosen() {
    const TemplateType* chosen = type();
    cboTest.setVisible(chosen && chosen->find.empty());
    cmdTest.setEnabled(chosen != nullptr);
    showTestCaption();
    // A template can be edited and saved without its merge fields.
    handle([this] { loadMergeFields(); });
}

void TemplateEditor::showTestCaption() {
    const TemplateType* chosen = type();
    std::string_view caption = chosen ? chosen->testCaption : "Test this template";
    if (chosen && caption.empty()) {
        const auto kind = std::ranges::find(documentKinds, cboTest.chosen().value_or(0), &DocumentKind::state);
        if (kind != std::end(documentKinds)) caption = kind->testCaption;
    }
    cmdTest.setCaption(std::string(caption));
}

/// The recordset names all columns of the view, also of one without rows and those that are NULL in its first row.
void TemplateEditor::loadMergeFields() {
    rptFields.clearRecords();
    rptFields.populate();
    const TemplateType* chosen = type();
    if (!chosen) return;
    const Recordset columns = host().companyConnection().read("SELECT TOP 1 * FROM " + std::string(chosen->view));
    if (!columns.isOpen()) return;
    const std::int32_t count = columns.fieldCount();
    for (std::int32_t i = 0; i < count; ++i) {
        const std::string name = columns.name(i);
        rptFields.addRecord(i + 1, std::array<std::string_view, 1>{name});
    }
    rptFields.populate();
}

void TemplateEditor::showMergeFields(bool shown) {
    rptFields.setVisible(shown);
    lblFields.setCaption(std::string("<TextBlock><Hyperlink Click='Hyperlink_Fields'>") +
                         (shown ? "Hide merge fields" : "Show merge fields") + "</Hyperlink></TextBlock>");
}

void TemplateEditor::insertField(std::size_t row) {
    TextBox& body = textBox("rtfBody");
    body.insert("<<" + std::string(rptFields.rowText(row, 0)) + ">>");
    body.setFocus();
}

void TemplateEditor::runBodyCommand(int id) {
    TextBox& body = textBox("rtfBody");
    if (id == copy) desktop().setClipboardText(body.selectedText());
    if (id == paste) body.insert(desktop().clipboardText());
}

// Saving ----------------------------------------------------------------------------------------------

bool TemplateEditor::validate() {
    if (!RecordDialog::validate()) return false;
    for (const std::string_view control : {"txtSubject", "rtfBody"}) {
        if (!isBlank(textBox(control).text())) continue;
        refuse("You cannot save an empty subject or message body.", &textBox(control));
        return false;
    }
    return true;
}

bool TemplateEditor::save() {
    const std::string_view done = isNew() ? "created" : "updated";
    if (!RecordDialog::save()) return false;
    // The template is saved, whatever becomes of the event.
    handle([&] {
        host().RecordEvent("Email template '" + textBox("txtName").text() + "' was " + std::string(done) + ".");
    });
    return true;
}

void TemplateEditor::reportSaveFailure() {
    reportDatabaseFailure("The email template '" + textBox("txtName").text() + "' could not be " +
                              (isNew() ? "created." : "updated."),
                          saveAgainExplanation);
}

// The test --------------------------------------------------------------------------------------------

/// The statement that finds the record to test with; nothing for an order number that is none.
std::optional<std::string> TemplateEditor::findStatement(const TemplateType& chosen) {
    const std::string typed = modSharedStrings::trim(txtTestNumber.text());
    if (!chosen.find.empty()) return format(chosen.find, host().FixForSQLInsert(typed));
    std::int32_t number = 0;
    if (readNumber(typed, number) != Reading::Done) return std::nullopt;
    return format(findDocument, cboTest.chosen().value_or(0), number);
}

/// The host gets the subject and the body as they are shown, so that a template can be tested before it is saved. The
/// copy addresses are left out: a test is for the user's eyes.
void TemplateEditor::cmdTest_Click() {
    const Busy busy(*this, {&cmdOK, &cmdCancel, &cmdTest});
    if (!validate()) return;
    const TemplateType& chosen = *type();
    std::int32_t record = 0;
    if (const auto statement = findStatement(chosen)) {
        const Variant found = host().database().ExecuteScaler(*statement);
        if (found.isNumeric()) record = found.toLong();
    }
    if (record < 1) {
        refuse(chosen.notFound, &txtTestNumber);
        return;
    }
    host().SendEmailMessageWithTemplateAndUI(chosen.number, record, textBox("txtSubject").text(),
                                             textBox("rtfBody").text());
}

std::int32_t editTemplate(Library& library, std::int32_t ID) {
    return openRecord(library, screenName, [&] { return std::make_shared<TemplateEditor>(library); }, ID)
        ->result();
}

}  // namespace tsln::messages
