#include "lists/FieldControl.h"

#include <cmath>

#include "automation/NumericText.h"
#include "bridge/NumericField.h"
#include "shared/modSharedSQL.h"

namespace tsln::lists {
namespace {

using Kind = EditField::Kind;
using modSharedSQL::doubleQuotes;

constexpr int numberWidth = 10;  // characters
constexpr int memoWidth = 40;

/// A percentage as it is typed, as the fraction that is stored: four decimals, half to even.
double fractionOf(const std::string& percentage) {
    const double fraction = static_cast<double>(Variant(percentage).toSingle()) / 100;
    return std::nearbyint(fraction * 10'000) / 10'000;
}

/// A stored number without the zeros that the database may add; other text as it is.
std::string normalNumber(const std::string& text) {
    const auto number = parseNumber(text);
    return number ? numberText(*number) : text;
}

}  // namespace

FieldControl::FieldControl(HostScreen& screen, const EditField& description) : description_(description) {
    std::string name(description.control);
    switch (description.kind) {
        case Kind::Check:
            check_ = std::make_unique<CheckBox>(screen, std::move(name), std::string(description.label));
            break;
        case Kind::Choice:
            combo_ = std::make_unique<ComboBox>(screen, std::move(name));
            for (const Choice& choice : description.choices)
                combo_->addItem(std::string(choice.caption), choice.number);
            break;
        case Kind::PhoneLabel:
            combo_ = std::make_unique<ComboBox>(screen, std::move(name));
            combo_->editable = true;
            combo_->widthInCharacters = 14;
            break;
        default:
            text_ = std::make_unique<TextBox>(screen, std::move(name));
            break;
    }
    if (description.kind == Kind::Memo) {
        text_->multiLine = true;
        text_->widthInCharacters = memoWidth;
    }
    if (isNumeric()) {
        text_->rightAligned = true;
        text_->widthInCharacters = numberWidth;
    }
}

Control& FieldControl::control() const {
    if (text_) return *text_;
    if (combo_) return *combo_;
    return *check_;
}

Layout FieldControl::layout() const {
    if (check_) return tsln::layout::item(*check_);
    Layout field = tsln::layout::field(std::string(description_.label), control());
    return description_.kind == Kind::Memo ? tsln::layout::stretch(std::move(field)) : field;
}

void FieldControl::loadEntries(const Host& host) {
    if (description_.kind != Kind::PhoneLabel) return;
    const std::string typed = combo_->text();
    host.common().LoadPhoneLabels(*combo_);
    combo_->setText(typed);
}

void FieldControl::showNew() {
    if (description_.kind == Kind::Choice && description_.unchosen.empty()) combo_->setListIndex(0);
}

void FieldControl::show(const Record& row) {
    const std::string_view column = description_.column;
    switch (description_.kind) {
        case Kind::Name:
        case Kind::Text:
        case Kind::Memo:
        case Kind::Whole:
            text_->setText(modSharedXML::readText(column, row));
            break;
        case Kind::Decimal:
            text_->setText(normalNumber(modSharedXML::readText(column, row)));
            break;
        case Kind::Percent:
            text_->setText(numberText(modSharedXML::readSingle(column, row) * 100));
            break;
        case Kind::Choice:
            chooseStored(modSharedXML::readLong(column, row));
            break;
        case Kind::Check:
            check_->setChecked(modSharedXML::readBoolean(column, row));
            break;
        case Kind::PhoneLabel:
            combo_->setText(modSharedXML::readText(column, row));
            break;
    }
}

void FieldControl::chooseStored(std::int32_t number) {
    if (combo_->choose(number)) return;
    combo_->setListIndex(-1);
    // A number of another version's choices is kept: saving must not turn it into one of these.
    if (number != 0) combo_->setListIndex(combo_->addItem(std::to_string(number), number));
}

bool FieldControl::isNumeric() const noexcept {
    return description_.kind == Kind::Whole || description_.kind == Kind::Decimal ||
           description_.kind == Kind::Percent;
}

void FieldControl::correct() {
    if (!isNumeric()) return;
    const NumericBounds bounds{.maximum = description_.maximum};
    if (description_.kind == Kind::Whole) {
        checkWholeNumberField(*text_, bounds);
    } else {
        checkDecimalField(*text_, bounds);
    }
}

std::string_view FieldControl::complaint() const {
    const bool open = description_.kind == Kind::Choice && !combo_->chosen();
    return open ? description_.unchosen : std::string_view();
}

std::string FieldControl::statementText() const {
    switch (description_.kind) {
        case Kind::Name:
        case Kind::Text:
        case Kind::Memo:
            return doubleQuotes(text_->text());
        case Kind::Whole:
        case Kind::Decimal:
            return text_->text();
        case Kind::Percent:
            return numberText(fractionOf(text_->text()));
        case Kind::Choice:
            return std::to_string(combo_->chosen().value_or(0));
        case Kind::Check:
            return std::to_string(check_->value());
        case Kind::PhoneLabel:
            return doubleQuotes(combo_->text());
    }
    return {};
}

std::string FieldControl::placeholder() const {
    switch (description_.kind) {
        case Kind::Name:
        case Kind::Text:
        case Kind::Memo:
        case Kind::PhoneLabel:
            return "'" + std::string(description_.tag) + "'";
        default:
            return std::string(description_.tag);
    }
}

}  // namespace tsln::lists
