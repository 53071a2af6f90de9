#include "lists/EditDialog.h"

#include <cmath>

#include "automation/NumericText.h"
#include "bridge/NumericField.h"
#include "shared/modSharedSQL.h"
#include "shared/modSharedStrings.h"

namespace tsln::lists {
namespace {

using modSharedSQL::doubleQuotes;
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

/// A percentage as it is typed, as the fraction that is stored: four decimals, half to even.
double fractionOf(const std::string& percentage) {
    const double fraction = static_cast<double>(Variant(percentage).toSingle()) / 100;
    return std::nearbyint(fraction * 10'000) / 10'000;
}

}  // namespace

EditDialog::EditDialog(Library& library, const EditDescription& description)
    : HostScreen(library, std::string(description.screenName)), description_(description) {
    for (const EditField& field : description.fields) {
        Field& made = fields_.emplace_back(Field{field, nullptr, nullptr});
        if (field.kind == EditField::Kind::Check) {
            made.check =
                std::make_unique<CheckBox>(*this, std::string(field.control), std::string(field.label));
            continue;
        }
        made.text = std::make_unique<TextBox>(*this, std::string(field.control));
        if (field.kind == EditField::Kind::Name) continue;
        made.text->rightAligned = true;
        made.text->widthInCharacters = 10;
    }
    for (Field& field : fields_) {
        if (field.text && field.description.kind != EditField::Kind::Name) {
            field.text->onLeave = [this, &field] { checkNumber(field); };
        }
    }
    cmdOK.onClick = [this] { cmdOK_Click(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
}

Layout EditDialog::layout() {
    using namespace tsln::layout;
    std::vector<Layout> rows;
    for (const Field& field : fields_) {
        rows.push_back(field.check ? item(*field.check)
                                   : tsln::layout::field(std::string(field.description.label), *field.text));
    }
    return column({form(std::move(rows)), spring(), row({spring(), item(cmdOK), item(cmdCancel)})});
}

void EditDialog::Form_Load() {
    restoreWindowPosition(*this);
}

void EditDialog::Form_Activate() {
    if (activated_) return;
    activated_ = true;
    desktop().yield();
    loadRow();
}

bool EditDialog::Form_QueryUnload(bool byCloseBox) {
    return !(byCloseBox && busy_);
}

void EditDialog::Form_Unload() {
    saveWindowPosition(*this);
}

void EditDialog::loadRow() {
    setCaption(std::string(ID == 0 ? description_.newCaption : description_.editCaption));
    setFocus(*fields_.front().text);
    if (ID > 0) {
        // A row that could not be read must not be saved over with empty fields.
        cmdOK.setEnabled(false);
        const Records records =
            host().database().ExecuteRead(format("SELECT * FROM {0} WHERE ID = {1}", description_.table, ID));
        for (Field& field : fields_)
            fill(field, records.first());
        cmdOK.setEnabled(true);
    }
    for (Field& field : fields_) {
        if (field.description.kind == EditField::Kind::Percent) checkNumber(field);
    }
}

void EditDialog::fill(Field& field, const Record& row) {
    const std::string_view column = field.description.column;
    switch (field.description.kind) {
        case EditField::Kind::Name:
        case EditField::Kind::Whole:
            field.text->setText(modSharedXML::readText(column, row));
            break;
        case EditField::Kind::Percent:
            field.text->setText(numberText(modSharedXML::readSingle(column, row) * 100));
            break;
        case EditField::Kind::Check:
            field.check->setChecked(modSharedXML::readBoolean(column, row));
            break;
    }
}

void EditDialog::checkNumber(Field& field) {
    const NumericBounds bounds{.maximum = field.description.maximum};
    switch (field.description.kind) {
        case EditField::Kind::Whole:
            checkWholeNumberField(*field.text, bounds);
            break;
        case EditField::Kind::Percent:
            checkDecimalField(*field.text, bounds);
            break;
        case EditField::Kind::Name:
        case EditField::Kind::Check:
            break;
    }
}

bool EditDialog::validate() {
    for (Field& field : fields_)
        checkNumber(field);

    const Field& nameField = fields_.front();
    TextBox& name = *nameField.text;
    name.setText(modSharedStrings::trim(name.text()));
    if (name.text().empty()) {
        tell(description_.required, MessageIcon::Exclamation);
        name.setFocus();
        return false;
    }
    if (!description_.duplicate.empty() &&
        host().common().RecordExists(description_.table, nameField.description.column, name.text(), ID)) {
        tell(description_.duplicate, MessageIcon::Exclamation);
        return false;
    }
    return true;
}

std::string EditDialog::value(const Field& field) const {
    switch (field.description.kind) {
        case EditField::Kind::Name:
            return doubleQuotes(field.text->text());
        case EditField::Kind::Whole:
            return field.text->text();
        case EditField::Kind::Percent:
            return numberText(fractionOf(field.text->text()));
        case EditField::Kind::Check:
            return std::to_string(field.check->value());
    }
    return {};
}

std::string EditDialog::filled(std::string_view statement) const {
    std::vector<Tag> tags;
    for (const Field& field : fields_)
        tags.emplace_back(field.description.tag, value(field));
    tags.emplace_back("<id>", ID);
    return fillTags(statement, tags);
}

bool EditDialog::save() {
    bool saved = false;
    if (ID > 0) {
        saved = host().database().ExecuteNonQuery(filled(description_.update));
    } else {
        ID = host().database().ExecuteNonQueryWithID(filled(description_.insert));
        saved = ID >= 1;
    }
    if (!saved) reportDatabaseFailure(description_.saveFailure);
    return saved;
}

void EditDialog::cmdOK_Click() {
    const Working working(busy_);
    if (!validate() || !save()) return;
    Cancelled = false;
    hide();
}

void EditDialog::cmdCancel_Click() {
    Cancelled = true;
    hide();
}

std::int32_t showDialog(Library& library, const EditDescription& description, std::int32_t ID) {
    const auto closed = library.screens().show(
        description.screenName, [&] { return std::make_shared<EditDialog>(library, description); },
        [&](EditDialog& dialog) { dialog.ID = ID; });
    return closed->Cancelled ? 0 : closed->ID;
}

}  // namespace tsln::lists
