#include "maintenance/Field.h"

#include <algorithm>
#include <cmath>

#include "automation/NumericText.h"
#include "shared/modSharedStrings.h"

namespace tsln {
namespace {

// characters
constexpr int numberWidth = 10;
constexpr int linesWidth = 40;
constexpr int addressWidth = 34;

constexpr float percent = 100;

/// Removes the trailing zeros that the database may add to a stored number. Other text is returned unchanged.
std::string normalNumber(const std::string& text) {
    const auto number = parseNumber(text);
    return number ? numberText(*number) : text;
}

/// Converts a typed percentage to the stored fraction: four decimals, half to even.
double fractionOf(const std::string& percentage) {
    float typed = 0;  // text that is no number reads as 0
    readNumber(percentage, typed);
    return std::nearbyint(static_cast<double>(typed) / percent * 10'000) / 10'000;
}

/// Converts a number to the form that a statement accepts: a host may leave a number such as "$5" or "1,000".
std::string statementNumber(const std::string& text) {
    if (text.find_first_not_of("0123456789.-") == std::string::npos) return text;
    return normalNumber(text);
}

}  // namespace

Field::Field(HostScreen& screen, const FieldDescription& description, bool& validateAddresses)
    : screen_(screen), description_(description), validateAddresses_(validateAddresses) {
    make();
    if (!control_) return;
    // A box of several lines may be shown without its label.
    control_->accessibleName = description.accessibleName.empty() && hasSeveralLines()
                                   ? modSharedStrings::replaceAll(description.label, "&", "")
                                   : description.accessibleName;
}

void Field::make() {
    std::string name(description_.control);
    switch (description_.rule) {
        case Rule::ValidateAddresses:
        case Rule::Computed:
            return;
        case Rule::Check:
            control_ = std::make_unique<CheckBox>(screen_, std::move(name), std::string(description_.label));
            return;
        case Rule::Choice:
        case Rule::Key:
        case Rule::KeyOrNull:
        case Rule::Label: {
            auto combo = std::make_unique<ComboBox>(screen_, std::move(name));
            combo->editable = description_.rule == Rule::Label;
            if (description_.width > 0) combo->widthInCharacters = description_.width;
            for (const tsln::Choice& choice : description_.choices)
                combo->addItem(std::string(choice.caption), choice.number);
            control_ = std::move(combo);
            return;
        }
        case Rule::Date:
            control_ = std::make_unique<DateBox>(screen_, std::move(name));
            return;
        case Rule::Text:
        case Rule::Trimmed:
        case Rule::TrimmedOrNull:
        case Rule::Password:
        case Rule::Lines:
        case Rule::PostalAddress:
        case Rule::Whole:
        case Rule::Decimal:
        case Rule::Amount:
        case Rule::Percent:
        case Rule::Margin: {
            auto box = std::make_unique<TextBox>(screen_, std::move(name));
            box->multiLine = hasSeveralLines();
            box->password = description_.rule == Rule::Password;
            box->rightAligned = !isText();
            if (!isText()) box->widthInCharacters = numberWidth;
            if (description_.rule == Rule::Lines) box->widthInCharacters = linesWidth;
            if (description_.rule == Rule::PostalAddress) box->widthInCharacters = addressWidth;
            if (description_.width > 0) box->widthInCharacters = description_.width;
            control_ = std::move(box);
            return;
        }
    }
}

bool Field::hasSeveralLines() const noexcept {
    return description_.rule == Rule::Lines || description_.rule == Rule::PostalAddress;
}

bool Field::isText() const noexcept {
    switch (description_.rule) {
        case Rule::Text:
        case Rule::Trimmed:
        case Rule::TrimmedOrNull:
        case Rule::Password:
        case Rule::Lines:
        case Rule::Label:
        case Rule::PostalAddress:
            return true;
        default:
            return false;
    }
}

Control* Field::control() const {
    return control_.get();
}

Layout Field::layout() const {
    if (description_.rule == Rule::Check) return layout::item(*control_);
    Layout made = layout::field(std::string(description_.label), *control_);
    return hasSeveralLines() ? layout::stretch(std::move(made)) : made;
}

// Showing ---------------------------------------------------------------------------------------------

void Field::loadEntries() {
    const ChoiceQuery& query = description_.query;
    if (!description_.loader && query.sql.empty()) return;
    const std::string typed = combo().text();
    const Common common = screen_.host().common();
    if (description_.loader) {
        (common.*description_.loader)(combo());
    } else {
        common.LoadComboFromQuery(combo(), query.sql, query.column, "", false);
    }
    if (combo().editable) combo().setText(typed);
}

void Field::showDefault() {
    if (description_.rule == Rule::Choice && description_.requiredText.empty()) combo().setListIndex(0);
    if (description_.tickedByDefault) check().setChecked(true);
    const DefaultOption& option = description_.option;
    if (option.name.empty()) return;
    const std::string value =
        screen_.host().options().GetCompanyOption(option.name, option.section, option.otherwise).toText();
    if (description_.rule == Rule::Label) {
        combo().setText(modSharedStrings::trim(value));
        return;
    }
    std::int32_t number = -1;
    readNumber(value, number);
    combo().choose(number);
}

void Field::showFirst() {
    if (description_.firstByDefault && combo().listIndex() < 0) combo().setListIndex(0);
}

void Field::show(const Row& row) {
    const std::string_view column = description_.column;
    switch (description_.rule) {
        case Rule::Text:
        case Rule::Trimmed:
        case Rule::TrimmedOrNull:
        case Rule::Password:
        case Rule::Lines:
        case Rule::Whole:
            text().setText(row.text(column));
            break;
        case Rule::Date:
            date().setDate(row.date(column));
            break;
        case Rule::Decimal:
        case Rule::Amount:
            text().setText(normalNumber(row.text(column)));
            break;
        case Rule::Percent:
            text().setText(numberText(row.single(column) * percent));
            break;
        case Rule::Margin:
            text().setText(numberText(row.single(column) * percent));
            correctNumber();
            break;
        case Rule::Label:
            combo().setText(row.text(column));
            break;
        case Rule::Choice:
            chooseStored(row.number(column));
            break;
        case Rule::Key:
        case Rule::KeyOrNull:
            if (!combo().choose(row.number(column))) combo().setListIndex(-1);
            break;
        case Rule::Check:
            check().setChecked(row.boolean(column));
            break;
        case Rule::PostalAddress: {
            Address address;
            for (std::size_t i = 0; i < address.size(); ++i)
                address[i] = row.text(std::string(column) + std::string(addressColumns[i]));
            text().setText(screen_.host().CombineAddress(address));
            break;
        }
        case Rule::ValidateAddresses:
            validateAddresses_ = row.boolean(column);
            break;
        case Rule::Computed:
            break;
    }
}

void Field::chooseStored(std::int32_t number) {
    if (combo().choose(number)) return;
    combo().setListIndex(-1);
    // A stored number that is not among the choices is kept: saving must not change it to one of them.
    if (number != 0) combo().setListIndex(combo().addItem(std::to_string(number), number));
}

// User input ------------------------------------------------------------------------------------------

void Field::left() {
    if (description_.rule == Rule::PostalAddress) {
        // After an address was cleared, the next one is validated.
        if (text().text().empty()) validateAddresses_ = true;
        std::string shown = text().text();
        screen_.host().ParseAddress(shown, validateAddresses_);
        text().setText(std::move(shown));
    } else if (description_.rule == Rule::Amount) {
        // "$1,000" is a number to the user, but would be read as 0. The box shows what will be saved.
        text().setText(normalNumber(text().text()));
    } else {
        correctNumber();
    }
}

void Field::correctNumber() {
    switch (description_.rule) {
        case Rule::Whole:
            checkWholeNumberField(text(), description_.bounds);
            break;
        case Rule::Decimal:
        case Rule::Percent:
        case Rule::Margin:
            checkDecimalField(text(), description_.bounds);
            break;
        default:
            break;
    }
}

void Field::normalize() {
    if (description_.rule == Rule::Trimmed || description_.rule == Rule::TrimmedOrNull) {
        text().setText(modSharedStrings::trim(text().text()));
    } else if (description_.rule != Rule::Margin) {
        correctNumber();
    }
}

std::string_view Field::complaint() const {
    if (description_.requiredText.empty()) return {};
    if (description_.rule == Rule::Date)
        return date().isNone() ? description_.requiredText : std::string_view();
    const auto* combo = dynamic_cast<const ComboBox*>(control());
    const bool open = combo && !combo->editable ? !combo->chosen()
                      : combo                   ? combo->text().empty()
                                                : text().text().empty();
    return open ? description_.requiredText : std::string_view();
}

// Writing ---------------------------------------------------------------------------------------------

void Field::addTags(StatementTags& tags) {
    const std::string_view tag = description_.tag;
    switch (description_.rule) {
        case Rule::Text:
        case Rule::Trimmed:
        case Rule::Password:
        case Rule::Lines:
            tags.text(tag, text().text());
            break;
        case Rule::TrimmedOrNull:
            if (text().text().empty()) {
                tags.plain(tag, "NULL");
            } else {
                tags.quoted(tag, text().text());
            }
            break;
        case Rule::Amount:
            tags.plain(tag, numberText(leadingNumber(text().text())));
            break;
        case Rule::Date:
            tags.plain(tag, date().isNone() ? "NULL"
                                            : "'" + screen_.host().FixDateForSQLInsert(date().text()) + "'");
            break;
        case Rule::Label:
            tags.text(tag, combo().text());
            break;
        case Rule::Whole:
        case Rule::Decimal:
            tags.plain(tag, statementNumber(text().text()));
            break;
        case Rule::Percent:
            tags.plain(tag, numberText(fractionOf(text().text())));
            break;
        case Rule::Margin: {
            float typed = 0;  // text that is no number, such as the empty box of a missing record, reads as 0
            readNumber(text().text(), typed);
            tags.plain(tag, numberText(typed / percent));
            break;
        }
        case Rule::Choice:
        case Rule::Key:
            tags.plain(tag, combo().chosen().value_or(0));
            break;
        case Rule::KeyOrNull:
            tags.plain(tag, combo().text().empty() ? "NULL" : std::to_string(combo().chosen().value_or(0)));
            break;
        case Rule::Check:
            tags.plain(tag, check().value());
            break;
        case Rule::PostalAddress: {
            std::string shown = text().text();
            const Address parts = screen_.host().ParseAddress(shown, validateAddresses_);
            for (std::size_t i = 0; i < parts.size(); ++i)
                tags.text(description_.tags[i], parts[i]);
            break;
        }
        case Rule::ValidateAddresses:
            tags.plain(tag, validateAddresses_);
            break;
        case Rule::Computed:
            break;  // the dialog adds it
    }
}

std::vector<std::pair<std::string, std::string>> Field::columns() const {
    const auto placeholder = [this](std::string_view tag) {
        const bool quoted = isText() && description_.rule != Rule::TrimmedOrNull;
        return quoted ? "'" + std::string(tag) + "'" : std::string(tag);
    };
    if (description_.rule != Rule::PostalAddress)
        return {{std::string(description_.column), placeholder(description_.tag)}};
    std::vector<std::pair<std::string, std::string>> columns;
    for (std::size_t i = 0; i < addressColumns.size(); ++i) {
        columns.emplace_back(std::string(description_.column) + std::string(addressColumns[i]),
                             placeholder(description_.tags[i]));
    }
    return columns;
}

}  // namespace tsln
