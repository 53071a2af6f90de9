#include "lists/EditDialog.h"

#include <algorithm>
#include <stdexcept>

#include "lists/ExpressionEditor.h"
#include "shared/modSharedStrings.h"

namespace tsln::lists {
namespace {

using modSharedSQL::fillTags;
using modSharedSQL::format;
using modSharedSQL::Tag;

/// True while the dialog works; a request to close it from the close box is refused meanwhile.
class Working {
  public:
    explicit Working(bool& busy) : busy_(busy) { busy_ = true; }
    ~Working() { busy_ = false; }
    Working(const Working&) = delete;
    Working& operator=(const Working&) = delete;

  private:
    bool& busy_;
};

}  // namespace

EditDialog::EditDialog(Library& library, const ListDescription& description)
    : TaskDialog(library, screenName(description)), list_(description), description_(description.dialog) {
    for (const EditField& field : description_.fields)
        fields_.emplace_back(*this, field);
    for (FieldControl& field : fields_) {
        if (field.isNumeric()) field.control().onLeave = [&field] { field.correct(); };
    }
    if (description_.expression) {
        cmdExpression_ = std::make_unique<Button>(*this, "cmdExpression", "E&xpression...");
        cmdExpression_->onClick = [this] { cmdExpression_Click(); };
    }
    Cancelled = false;
}

std::string EditDialog::screenName(const ListDescription& description) {
    return std::string(description.screenName) + "_Edit";
}

std::vector<Layout> EditDialog::furtherButtons() {
    if (!cmdExpression_) return {};
    return {layout::item(*cmdExpression_)};
}

Layout EditDialog::fieldLayout() {
    std::vector<Layout> rows;
    for (const FieldControl& field : fields_)
        rows.push_back(field.layout());
    return tsln::layout::form(std::move(rows));
}

FieldControl& EditDialog::field(std::string_view control) {
    const auto found = std::ranges::find_if(
        fields_, [&](const FieldControl& field) { return field.description().control == control; });
    if (found == fields_.end()) throw std::out_of_range("no field " + std::string(control));
    return *found;
}

void EditDialog::opened() {
    loadRow();
    loaded();
}

bool EditDialog::Form_QueryUnload(bool byCloseBox) {
    return !(byCloseBox && busy_);
}

void EditDialog::loadRow() {
    setCaption(std::string(ID == 0 ? description_.newCaption : description_.editCaption));
    setFocus(fields_.front().control());
    // A row that could not be read must not be saved over with empty fields.
    cmdOK.setEnabled(ID <= 0);
    for (FieldControl& field : fields_)
        field.loadEntries(host());
    if (ID > 0) {
        const Records records =
            host().database().ExecuteRead(format("SELECT * FROM {0} WHERE ID = {1}", list_.table, ID));
        for (FieldControl& field : fields_)
            showField(field, records.first());
        cmdOK.setEnabled(true);
    } else {
        for (FieldControl& field : fields_)
            field.showNew();
    }
    for (FieldControl& field : fields_) {
        if (field.description().kind == EditField::Kind::Percent) field.correct();
    }
}

bool EditDialog::validate() {
    for (FieldControl& field : fields_)
        field.correct();

    const FieldControl& nameField = fields_.front();
    TextBox& name = nameField.text();
    name.setText(modSharedStrings::trim(name.text()));
    if (name.text().empty()) {
        tell(description_.required, MessageIcon::Exclamation);
        name.setFocus();
        return false;
    }
    if (!description_.duplicate.empty() &&
        host().common().RecordExists(list_.table, nameField.description().column, name.text(), ID)) {
        tell(description_.duplicate, MessageIcon::Exclamation);
        return false;
    }
    for (const FieldControl& field : fields_) {
        if (field.complaint().empty()) continue;
        tell(field.complaint(), MessageIcon::Exclamation);
        field.control().setFocus();
        return false;
    }
    return true;
}

std::string EditDialog::insertStatement() const {
    if (!description_.insert.empty()) return std::string(description_.insert);
    std::string columns, values;
    for (const FieldControl& field : fields_) {
        columns += (columns.empty() ? "" : ",") + std::string(field.description().column);
        values += (values.empty() ? "" : ", ") + field.placeholder();
    }
    return format("INSERT INTO {0} ({1}) VALUES({2})", list_.table, columns, values);
}

std::string EditDialog::updateStatement() const {
    if (!description_.update.empty()) return std::string(description_.update);
    std::string assignments;
    for (const FieldControl& field : fields_) {
        if (!assignments.empty()) assignments += ", ";
        assignments += std::string(field.description().column) + " = " + field.placeholder();
    }
    return format("UPDATE {0} SET {1} WHERE ID = <id>", list_.table, assignments);
}

void EditDialog::addTags(FieldControl& field, std::vector<Tag>& tags) {
    tags.emplace_back(field.description().tag, field.statementText());
}

std::string EditDialog::filled(std::string_view statement) {
    std::vector<Tag> tags;
    for (FieldControl& field : fields_)
        addTags(field, tags);
    tags.emplace_back("<id>", ID);
    return fillTags(statement, tags);
}

bool EditDialog::save() {
    bool saved = false;
    if (ID > 0) {
        saved = host().database().ExecuteNonQuery(filled(updateStatement()));
    } else {
        ID = host().database().ExecuteNonQueryWithID(filled(insertStatement()));
        saved = ID >= 1;
    }
    if (!saved) reportDatabaseFailure(description_.saveFailure, description_.saveExplanation);
    return saved;
}

void EditDialog::cmdOK_Click() {
    const Working working(busy_);
    if (validate() && save()) accept();
}

void EditDialog::cmdExpression_Click() {
    TextBox& name = fields_.front().text();
    if (const auto edited = editExpression(*this, name.text())) name.setText(*edited);
    name.setFocus();
}

}  // namespace tsln::lists
