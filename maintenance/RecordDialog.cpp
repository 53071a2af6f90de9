#include "maintenance/RecordDialog.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "maintenance/ExpressionEditor.h"
#include "maintenance/Statements.h"
#include "screens/TabControl.h"

namespace tsln {
namespace {

using modSharedSQL::format;

bool holds(const Layout& layout, const Control& control) {
    return layout.control == &control ||
           std::ranges::any_of(layout.children, [&](const Layout& child) { return holds(child, control); });
}

/// Selects the pages of tab controls in the layout that contain the control.
void turnTo(const Layout& layout, const Control& control) {
    for (std::size_t i = 0; i < layout.children.size(); ++i) {
        if (!holds(layout.children[i], control)) continue;
        if (layout.kind == Layout::Kind::Tabs)
            dynamic_cast<TabControl&>(*layout.control).select(static_cast<int>(i));
        turnTo(layout.children[i], control);
    }
}

}  // namespace

std::string dialogName(const ListDescription& list) {
    return std::string(list.screenName) + "_Edit";
}

RecordDialog::RecordDialog(Library& library, std::string name) : HostScreen(library, std::move(name)) {
    lblMissing.setVisible(false);
    cmdOK.onClick = [this] { cmdOK_Click(); };
    cmdCancel.onClick = [this] { cancel(); };
}

RecordDialog::RecordDialog(Library& library, std::string name, const RecordDescription& record)
    : RecordDialog(library, std::move(name)) {
    record_ = &record;
    table_ = record.table;
    Cancelled = record.closingCancels;
    makeFields();
}

RecordDialog::RecordDialog(Library& library, const ListDescription& list)
    : RecordDialog(library, dialogName(list), list.dialog) {
    table_ = list.table;
}

void RecordDialog::makeFields() {
    for (const FieldDescription& description : record_->fields) {
        Field& field = fields_.emplace_back(*this, description, validateAddresses_);
        if (field.hasSeveralLines()) {
            keepsEnter(field.text(), [&field] { field.left(); });
        } else if (field.control()) {
            field.control()->onLeave = [&field] { field.left(); };
        }
    }
    if (record_->expression) {
        cmdExpression_ = std::make_unique<Button>(*this, "cmdExpression", "E&xpression...");
        cmdExpression_->onClick = [this] { cmdExpression_Click(); };
    }
}

Field& RecordDialog::fieldOf(std::string_view name) {
    return const_cast<Field&>(std::as_const(*this).fieldOf(name));
}

const Field& RecordDialog::fieldOf(std::string_view name) const {
    const auto found = std::ranges::find_if(fields_, [&](const Field& field) {
        return field.description().control == name || field.description().column == name;
    });
    if (found == fields_.end()) throw std::out_of_range("no field " + std::string(name));
    return *found;
}

void RecordDialog::keepsEnter(TextBox& box, std::function<void()> onLeave) {
    box.multiLine = true;
    box.onEnter = [this] { cmdOK.setRole(Button::Role::Plain); };
    box.onLeave = [this, onLeave = std::move(onLeave)] {
        cmdOK.setRole(Button::Role::Default);
        if (onLeave) onLeave();
    };
}

// Layout ----------------------------------------------------------------------------------------------

Layout RecordDialog::layout() {
    using namespace tsln::layout;
    std::vector<Layout> buttons = besideButtons();
    buttons.insert(buttons.end(), {spring(), item(cmdOK), item(cmdCancel)});
    return column({stretch(content()), item(lblMissing), row(std::move(buttons))});
}

Layout RecordDialog::content() {
    std::vector<Layout> rows;
    for (const Field& field : fields_) {
        if (field.control()) rows.push_back(field.layout());
    }
    return layout::form(std::move(rows));
}

Layout RecordDialog::formOf(std::initializer_list<std::string_view> controls) {
    std::vector<Layout> rows;
    for (const std::string_view control : controls)
        rows.push_back(fieldOf(control).layout());
    return layout::form(std::move(rows));
}

std::vector<Layout> RecordDialog::slots(std::string_view kind, int count) {
    std::vector<Layout> rows;
    for (int i = 1; i <= count; ++i) {
        const std::string slot = std::string(kind) + std::to_string(i);
        rows.push_back(
            layout::row({fieldOf("cbo" + slot + "Label").layout(), layout::fill(textBox("txt" + slot))}));
    }
    return rows;
}

std::vector<Layout> RecordDialog::besideButtons() {
    if (!cmdExpression_) return {};
    return {layout::item(*cmdExpression_)};
}

// Opening and filling ---------------------------------------------------------------------------------

void RecordDialog::Form_Load() {
    restoreWindowPosition(*this, record_ ? record_->windowValues : WindowValues::Place);
}

void RecordDialog::Form_Unload() {
    saveWindowPosition(*this, record_ ? record_->windowValues : WindowValues::Place);
}

bool RecordDialog::open(std::int32_t recordID) {
    ID = recordID;
    return !record_ || !record_->filledBeforeShown || handle([this] { fillFields(); });
}

void RecordDialog::Form_Activate() {
    if (activated_) return;
    activated_ = true;
    desktop().yield();
    if (record_ && !record_->filledBeforeShown) fillFields();
    opened();
}

void RecordDialog::fillFields() {
    const bool newCaption = record_->filledBeforeShown ? isNew() : ID == 0;
    setCaption(std::string(newCaption ? record_->newCaption : record_->editCaption));
    filling();
    focusFirstField();
    // A row that could not be read must not be overwritten with empty fields.
    cmdOK.setEnabled(isNew());
    for (Field& field : fields_)
        field.loadEntries();
    if (isNew()) {
        for (Field& field : fields_)
            field.showDefault();
        defaultsShown();
        for (Field& field : fields_)
            field.showFirst();
    } else {
        const bool found = readRow();
        cmdOK.setEnabled(found);
        lblMissing.setVisible(!found);
    }
    // A percentage is shown in its normal form from the start.
    for (Field& field : fields_) {
        if (field.description().rule == Rule::Percent) field.normalize();
    }
    filled();
    focusFirstField();
}

void RecordDialog::focusFirstField() {
    const auto usable = [](const Field& field) { return field.control() && field.control()->enabled(); };
    if (const auto first = std::ranges::find_if(fields_, usable); first != fields_.end())
        setFocus(*first->control());
}

bool RecordDialog::readRow() {
    const std::string statement = format("SELECT * FROM {0} WHERE ID = {1}", table_, ID);
    if (record_->source == RecordDescription::Source::Query) {
        const Records records = host().database().ExecuteRead(statement);
        showRow(RecordRow(records.first()));
        return records.count() > 0;
    }
    const Recordset rows = host().companyConnection().read(statement);
    const bool found = rows.isOpen() && !rows.atEnd();
    if (found) showRow(RecordsetRow(rows));
    return found;
}

void RecordDialog::showRow(const Row& row) {
    for (Field& field : fields_)
        field.show(row);
    rowShown(row);
}

void RecordDialog::lockFields() {
    for (Field& field : fields_) {
        if (field.description().locks) field.control()->setEnabled(false);
    }
}

// OK --------------------------------------------------------------------------------------------------

void RecordDialog::cmdOK_Click() {
    bool done = false;
    {
        const Busy busy(*this, {&cmdOK, &cmdCancel});
        done = validate() && save();
    }
    if (done) saved();
}

void RecordDialog::accept() {
    Cancelled = false;
    hide();
}

void RecordDialog::cancel() {
    Cancelled = true;
    hide();
}

void RecordDialog::normalizeFields() {
    for (Field& field : fields_)
        field.normalize();
}

bool RecordDialog::validate() {
    normalizeFields();
    return std::ranges::all_of(fields_, [this](Field& field) { return validateField(field); });
}

bool RecordDialog::validateField(Field& field) {
    if (const std::string_view complaint = field.complaint(); !complaint.empty()) {
        refuse(complaint, field.control());
        return false;
    }
    const FieldDescription& description = field.description();
    if (description.duplicateText.empty() ||
        !host().common().RecordExists(table_, description.column, field.text().text(), ID)) {
        return true;
    }
    tell(description.duplicateText, MessageIcon::Exclamation);
    return false;
}

void RecordDialog::refuse(std::string_view message, Control* control) {
    tell(message, MessageIcon::Exclamation);
    if (control) goTo(*control);
}

void RecordDialog::goTo(Control& control) {
    turnTo(layout(), control);
    cmdOK.setRole(Button::Role::Default);  // a box of several lines may have taken the role away
    control.setFocus();
}

std::string RecordDialog::statement() {
    StatementTags tags(host(), record_->safeText);
    addTags(tags);
    for (Field& field : fields_) {
        const FieldDescription& description = field.description();
        if (description.rule == Rule::ValidateAddresses) {
            tags.plain(description.tag, validateAddresses());
        } else if (description.rule == Rule::Computed) {
            if (isNew()) tags.plain(description.tag, computed(description.column));
        } else {
            field.addTags(tags);
        }
    }
    // The INSERT of a master record and one of the description's own contain no such tag, but the user's text might.
    if (!isNew() || (!record_->history && record_->insert.empty())) tags.plain("<id>", ID);
    return tags.fill(isNew() ? insertStatement(table_, *record_, fields_)
                             : updateStatement(table_, *record_, fields_));
}

bool RecordDialog::save() {
    if (record_->history) {
        return saveWithHistory(*this, *record_->history, ID,
                               {.table = table_,
                                .name = recordName(),
                                .statement = [this] { return statement(); },
                                .further = [this] { saveFurther(); }});
    }
    const bool saved = writeRow();
    if (!saved) reportSaveFailure();
    return saved;
}

bool RecordDialog::writeRow() {
    if (!isNew()) return host().database().ExecuteNonQuery(statement());
    ID = host().database().ExecuteNonQueryWithID(statement());
    return ID >= 1;
}

std::string RecordDialog::recordName() const {
    return fields_.front().text().text();
}

void RecordDialog::cmdExpression_Click() {
    TextBox& first = fields_.front().text();
    if (const auto edited = editExpression(*this, first.text(), caption())) first.setText(*edited);
    first.setFocus();
}

}  // namespace tsln
