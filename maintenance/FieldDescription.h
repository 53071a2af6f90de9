#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "bridge/Common.h"
#include "bridge/NumericField.h"

namespace tsln {

/// The caption of a stored number.
struct Choice {
    std::int32_t number;
    std::string_view caption;
};

/// How the value of a field is shown, checked and written.
enum class Rule {
    Text,           ///< text, as typed
    Trimmed,        ///< text without the blanks at its ends
    TrimmedOrNull,  ///< like Trimmed, but NULL for the empty text
    Lines,          ///< several lines of text, as typed
    Label,          ///< text, typed or chosen from a list that the host fills, or of fixed texts
    Whole,          ///< a whole number, corrected when the control is left and before saving
    Decimal,        ///< a decimal number, corrected when the control is left and before saving
    Amount,         ///< the number with which the text begins, 0 when it begins with none; has no bounds
    Percent,        ///< shown as a percentage, stored as a fraction of four decimals; corrected like Decimal
    Margin,         ///< shown as a percentage, stored as a fraction of single precision; corrected when left
    Choice,         ///< one of fixed numbers, chosen by its caption
    Key,            ///< the stored number of the chosen entry of a list that the host fills; 0 for no choice
    KeyOrNull,      ///< like Key, but NULL when the list shows no text
    Check,          ///< 1 or 0
    Date,           ///< a date, converted for statements by the host; NULL for "None"
    Password,       ///< text, as typed, shown masked
    PostalAddress,  ///< an address of six columns, edited in one box of several lines and parsed by the host
    ValidateAddresses,  ///< no control: whether the record's addresses are to be validated
    Computed,           ///< no control: the dialog computes the value of a new record
};

/// The endings of an address's column names, in the order of the columns.
inline constexpr std::array<std::string_view, 6> addressColumns{"Address1", "Address2", "City",
                                                                "State",    "Zip",      "Country"};

/// A company option that holds a new record's value. `otherwise` is the option's default; an empty name means no
/// option.
struct DefaultOption {
    std::string_view name, section, otherwise;
};

/// A query of the host whose rows fill a list of choices with the texts of one column. An empty query means none.
struct ChoiceQuery {
    std::string_view sql, column;
};

/// A field of a record dialog: its control, label, column, tag in the statements, and rule. The functions of the
/// namespace `fields` create one.
struct FieldDescription {
    Rule rule = Rule::Text;
    std::string_view control;
    std::string_view label;
    std::string_view column;                     ///< PostalAddress: the prefix of its six columns
    std::string_view tag;                        ///< "<name>"; PostalAddress: see `tags`
    std::array<std::string_view, 6> tags = {};   ///< PostalAddress: one tag per column
    NumericBounds bounds = {};                   ///< for numbers
    std::span<const tsln::Choice> choices = {};  ///< Choice, Label
    void (Common::*loader)(ComboBox& combo) const = nullptr;  ///< fills the list of a Label, Key or KeyOrNull
    ChoiceQuery query = {};                                   ///< fills the list of a Label, instead of `loader`
    DefaultOption option = {};
    bool tickedByDefault = false;          ///< Check: ticked in a new record
    bool firstByDefault = false;           ///< a new record without another default selects the first entry
    std::string_view requiredText = {};    ///< message when the field is empty or nothing is chosen
    std::string_view duplicateText = {};   ///< message when another row has this value
    std::string_view accessibleName = {};  ///< empty: the label is used
    int width = 0;                         ///< in characters; 0: the usual width of the rule
    bool locks = false;                    ///< cannot be changed while the record is locked
    /// Positions among the columns of the two statements: lower numbers first, equal numbers in the order of the
    /// fields.
    std::int8_t insertPlace = 0, updatePlace = 0;

    /// Requires a text or a choice. `message` is shown when it is missing.
    constexpr FieldDescription required(std::string_view message) const {
        return with([&](auto& f) { f.requiredText = message; });
    }
    /// Requires a value that no other row has. `message` is shown for a duplicate.
    constexpr FieldDescription unique(std::string_view message) const {
        return with([&](auto& f) { f.duplicateText = message; });
    }
    /// The list offers the values of the field's column in the rows of this query.
    constexpr FieldDescription from(std::string_view sql) const {
        return with([&](auto& f) { f.query = {sql, f.column}; });
    }
    constexpr FieldDescription wide(int characters) const {
        return with([&](auto& f) { f.width = characters; });
    }
    constexpr FieldDescription named(std::string_view name) const {
        return with([&](auto& f) { f.accessibleName = name; });
    }
    constexpr FieldDescription lockable() const {
        return with([](auto& f) { f.locks = true; });
    }
    constexpr FieldDescription placed(std::int8_t inInsert, std::int8_t inUpdate) const {
        return with([&](auto& f) { f.insertPlace = inInsert, f.updatePlace = inUpdate; });
    }
    /// The default of a new record is the company option's value: the stored number of an entry, or a text.
    constexpr FieldDescription byDefault(DefaultOption from) const {
        return with([&](auto& f) { f.option = from; });
    }
    constexpr FieldDescription ticked() const {
        return with([](auto& f) { f.tickedByDefault = true; });
    }
    constexpr FieldDescription orFirst() const {
        return with([](auto& f) { f.firstByDefault = true; });
    }

  private:
    template <class Change>
    constexpr FieldDescription with(Change change) const {
        FieldDescription changed = *this;
        change(changed);
        return changed;
    }
};

namespace fields {

using Name = std::string_view;
using Loader = void (Common::*)(ComboBox& combo) const;

constexpr FieldDescription text(Name control, Name label, Name column, Name tag) {
    return {.control = control, .label = label, .column = column, .tag = tag};
}
constexpr FieldDescription of(Rule rule, Name control, Name label, Name column, Name tag) {
    FieldDescription made = text(control, label, column, tag);
    made.rule = rule;
    return made;
}
constexpr FieldDescription trimmed(Name control, Name label, Name column, Name tag) {
    return of(Rule::Trimmed, control, label, column, tag);
}
constexpr FieldDescription trimmedOrNull(Name control, Name label, Name column, Name tag) {
    return of(Rule::TrimmedOrNull, control, label, column, tag);
}
/// The name of a row of a lookup list. It must not be empty, and must be unique where `duplicate` is not empty.
constexpr FieldDescription name(Name control, Name label, Name column, Name tag, Name required,
                                Name duplicate = {}) {
    return trimmed(control, label, column, tag).required(required).unique(duplicate);
}
constexpr FieldDescription lines(Name control, Name label, Name column, Name tag) {
    return of(Rule::Lines, control, label, column, tag);
}
constexpr FieldDescription label(Name control, Name label, Name column, Name tag,
                                 Loader loader = nullptr) {
    FieldDescription made = of(Rule::Label, control, label, column, tag);
    made.loader = loader;
    return made;
}
/// A text, typed or chosen from the texts that a query finds.
constexpr FieldDescription suggested(Name control, Name label, Name column, Name tag, ChoiceQuery query) {
    FieldDescription made = of(Rule::Label, control, label, column, tag);
    made.query = query;
    return made;
}
/// A text, typed or chosen from fixed texts.
constexpr FieldDescription suggested(Name control, Name label, Name column, Name tag,
                                     std::span<const Choice> choices) {
    FieldDescription made = of(Rule::Label, control, label, column, tag);
    made.choices = choices;
    return made;
}
/// A number from 0 to `maximum`, 0 by default.
constexpr FieldDescription number(Rule rule, Name control, Name label, Name column, Name tag,
                                  double maximum) {
    FieldDescription made = of(rule, control, label, column, tag);
    made.bounds = {.maximum = maximum};
    return made;
}
constexpr FieldDescription whole(Name control, Name label, Name column, Name tag, NumericBounds bounds) {
    FieldDescription made = of(Rule::Whole, control, label, column, tag);
    made.bounds = bounds;
    return made;
}
constexpr FieldDescription whole(Name control, Name label, Name column, Name tag, double maximum) {
    return number(Rule::Whole, control, label, column, tag, maximum);
}
constexpr FieldDescription decimal(Name control, Name label, Name column, Name tag, double maximum) {
    return number(Rule::Decimal, control, label, column, tag, maximum);
}
constexpr FieldDescription percent(Name control, Name label, Name column, Name tag, double maximum) {
    return number(Rule::Percent, control, label, column, tag, maximum);
}
constexpr FieldDescription margin(Name control, Name label, Name column, Name tag, NumericBounds bounds) {
    FieldDescription made = of(Rule::Margin, control, label, column, tag);
    made.bounds = bounds;
    return made;
}
/// A new record selects the first choice, unless the field is required().
constexpr FieldDescription choice(Name control, Name label, Name column, Name tag,
                                  std::span<const Choice> choices) {
    FieldDescription made = of(Rule::Choice, control, label, column, tag);
    made.choices = choices;
    return made;
}
constexpr FieldDescription key(Name control, Name label, Name column, Name tag, Loader loader) {
    FieldDescription made = of(Rule::Key, control, label, column, tag);
    made.loader = loader;
    return made;
}
constexpr FieldDescription keyOrNull(Name control, Name label, Name column, Name tag, Loader loader) {
    FieldDescription made = key(control, label, column, tag, loader);
    made.rule = Rule::KeyOrNull;
    return made;
}
constexpr FieldDescription date(Name control, Name label, Name column, Name tag) {
    return of(Rule::Date, control, label, column, tag);
}
constexpr FieldDescription password(Name control, Name label, Name column, Name tag) {
    return of(Rule::Password, control, label, column, tag);
}
/// `caption` is shown beside the box.
constexpr FieldDescription check(Name control, Name caption, Name column, Name tag) {
    return of(Rule::Check, control, caption, column, tag);
}
constexpr FieldDescription address(Name control, Name label, Name columnPrefix, std::array<Name, 6> tags) {
    FieldDescription made = of(Rule::PostalAddress, control, label, columnPrefix, {});
    made.tags = tags;
    return made;
}
constexpr FieldDescription amount(Name control, Name label, Name column, Name tag) {
    return of(Rule::Amount, control, label, column, tag);
}
/// For a dialog with statements of its own: a generated UPDATE would contain the tag.
constexpr FieldDescription computed(Name column, Name tag) {
    return of(Rule::Computed, {}, {}, column, tag);
}
constexpr FieldDescription validateAddresses() {
    return of(Rule::ValidateAddresses, {}, {}, "ValidateAddresses", "<validateaddresses>");
}

/// The phone numbers 1 to `count` (at most 4), each a label and a number: cboPhone1Label, txtPhone1 and so on.
/// `rule`, Text or Trimmed, applies to the numbers. With `defaults`, new records get the labels of the company's
/// options.
std::vector<FieldDescription> phones(int count, Rule rule, bool defaults);
/// The e-mail addresses 1 to `count` (at most 2), each a label and an address, trimmed and with default labels.
std::vector<FieldDescription> emails(int count);

/// Returns the fields, marked as not editable while the record is locked.
std::vector<FieldDescription> lockable(std::vector<FieldDescription> fields);

/// Joins fields and lists of fields into one list.
template <class... Parts>
std::vector<FieldDescription> join(const Parts&... parts) {
    std::vector<FieldDescription> all;
    const auto add = [&all](const auto& part) {
        if constexpr (requires { part.begin(); }) {
            all.insert(all.end(), part.begin(), part.end());
        } else {
            all.push_back(part);
        }
    };
    (add(parts), ...);
    return all;
}

}  // namespace fields
}  // namespace tsln
