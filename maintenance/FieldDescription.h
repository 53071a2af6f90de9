#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "bridge/Common.h"
#include "bridge/NumericField.h"

namespace tsln {

/// What a stored number stands for.
struct Choice {
    std::int32_t number;
    std::string_view caption;
};

/// How the value of a field is shown, checked and written.
enum class Rule {
    Text,               ///< text as it is typed
    Trimmed,            ///< text without the blanks at its ends
    Lines,              ///< text of several lines, as it is typed
    Label,              ///< text, typed or chosen from a list that the host fills
    Whole,              ///< a whole number, checked when it is left and before it is saved
    Decimal,            ///< a decimal number, checked likewise
    Percent,            ///< shown as a percentage, stored as a fraction of four decimals; checked likewise
    Margin,             ///< shown as a percentage, stored as a fraction of single precision; checked when it is left
    Choice,             ///< one of fixed numbers, chosen by its caption
    Key,                ///< the stored number of the chosen entry of a list that the host fills, or 0
    KeyOrNull,          ///< likewise, or NULL when the list shows no text
    Check,              ///< 1 or 0
    Date,               ///< a date, made ready for statements by the host, or NULL for "None"
    Password,           ///< text as it is typed, shown masked
    PostalAddress,      ///< an address of six columns in one box of several lines, parsed by the host
    ValidateAddresses,  ///< without a control: the record's wish to have its addresses validated
};

/// The columns of an address end so, in this order.
inline constexpr std::array<std::string_view, 6> addressColumns{"Address1", "Address2", "City",
                                                                "State",    "Zip",      "Country"};

/// A company option that gives a new record its value. `otherwise` is its default; an empty name means no option.
struct DefaultOption {
    std::string_view name, section, otherwise;
};

/// A field of a record dialog: its control, its label, its column and its tag in the statements, and its rule. The
/// functions of the namespace `fields` make one.
struct FieldDescription {
    Rule rule = Rule::Text;
    std::string_view control;
    std::string_view label;
    std::string_view column;                       ///< PostalAddress: what its six columns begin with
    std::string_view tag;                          ///< "<name>"; Address: see `tags`
    std::array<std::string_view, 6> tags = {};     ///< PostalAddress: a tag a column
    NumericBounds bounds = {};                     ///< of a number
    std::span<const tsln::Choice> choices = {};    ///< Choice
    void (Common::*loader)(ComboBox& combo) const = nullptr;  ///< fills the list of a Label, Key or KeyOrNull
    DefaultOption option = {};
    bool tickedByDefault = false;         ///< Check: a new record starts with it ticked
    bool firstByDefault = false;          ///< a new record without another choice takes the first entry
    std::string_view requiredText = {};   ///< told when the field is empty or nothing is chosen
    std::string_view duplicateText = {};  ///< told when another row has the value
    std::string_view accessibleName = {};  ///< empty: the label
    int width = 0;                        ///< in characters; 0: as usual for the rule
    bool locks = false;                   ///< cannot be changed while the record is locked
    /// Places among the columns of the two statements: lower ones come first, equal ones in the order of the fields.
    std::int8_t insertPlace = 0, updatePlace = 0;

    /// The text must not be empty, or something must be chosen; else `message` is told.
    constexpr FieldDescription required(std::string_view message) const {
        return with([&](auto& f) { f.requiredText = message; });
    }
    /// No other row may have the value; else `message` is told.
    constexpr FieldDescription unique(std::string_view message) const {
        return with([&](auto& f) { f.duplicateText = message; });
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
    /// A new record takes the company option's value: an entry's stored number, or a text.
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
/// The name of a row of a lookup list: it must not be empty and, where `duplicate` says something, not taken.
constexpr FieldDescription name(Name control, Name label, Name column, Name tag, Name required,
                                Name duplicate = {}) {
    return trimmed(control, label, column, tag).required(required).unique(duplicate);
}
constexpr FieldDescription lines(Name control, Name label, Name column, Name tag) {
    return of(Rule::Lines, control, label, column, tag);
}
constexpr FieldDescription label(Name control, Name label, Name column, Name tag, Loader loader) {
    FieldDescription made = of(Rule::Label, control, label, column, tag);
    made.loader = loader;
    return made;
}
/// A number from 0 to `maximum`, by default 0.
constexpr FieldDescription number(Rule rule, Name control, Name label, Name column, Name tag, double maximum) {
    FieldDescription made = of(rule, control, label, column, tag);
    made.bounds = {.maximum = maximum};
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
/// Unless required() says otherwise a new record takes the first choice.
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
/// `caption` stands beside the box.
constexpr FieldDescription check(Name control, Name caption, Name column, Name tag) {
    return of(Rule::Check, control, caption, column, tag);
}
constexpr FieldDescription address(Name control, Name label, Name columnPrefix,
                                   std::array<Name, 6> tags) {
    FieldDescription made = of(Rule::PostalAddress, control, label, columnPrefix, {});
    made.tags = tags;
    return made;
}
constexpr FieldDescription validateAddresses() {
    return of(Rule::ValidateAddresses, {}, {}, "ValidateAddresses", "<validateaddresses>");
}

/// The phone numbers 1 to `count` (at most 4), each a label and a number: cboPhone1Label, txtPhone1 and so on. The
/// numbers are written by `rule`, Text or Trimmed; `defaults` gives new records the labels of the company's options.
std::vector<FieldDescription> phones(int count, Rule rule, bool defaults);
/// The e-mail addresses 1 to `count` (at most 2), likewise, trimmed and with default labels.
std::vector<FieldDescription> emails(int count);

/// Fields that cannot be changed while the record is locked.
std::vector<FieldDescription> lockable(std::vector<FieldDescription> fields);

/// Several parts in one list: fields, and lists of fields.
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
