#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "bridge/Host.h"
#include "bridge/Operations.h"

namespace tsln::lists {

/// What a stored number stands for.
struct Choice {
    std::int32_t number;
    std::string_view caption;
};

/// A column of a list: its caption, its width in the report control's units, the field that fills it and how
/// the field's value is shown.
struct ListColumn {
    enum class Show {
        Text,
        Number,  ///< as it is, to the right, sorted by value
        YesNo,
        Choice,  ///< the caption of the stored number; a number that has none is shown itself
    };
    std::string_view caption;
    int width = 100;
    std::string_view field;
    Show show = Show::Text;
    std::span<const Choice> choices = {};
};

/// A table whose rows may refer to the rows of a list, and how a refusal to delete reads.
struct DeletionCheck {
    std::string count;    ///< counts the references; {0} is the row's `ID`
    std::string message;  ///< {0} is the row's name, {1} the count; may hold "<Bold>" markup
    std::string advice;
};
/// The statement that counts a table's references to the row {0}.
std::string countReferences(std::string_view table, std::string_view column);
/// The check as most lists word it: `noun` is what is to be deleted, `users` are the rows that refer to it.
DeletionCheck referencedBy(std::string_view noun, std::string_view table, std::string_view column,
                           std::string_view users);
/// The two places that most lists are referred to from.
DeletionCheck referencedByCustomers(std::string_view noun, std::string_view column);
DeletionCheck referencedByOrders(std::string_view noun, std::string_view column);

/// A package of default rows, offered while the list is empty.
struct DefaultSet {
    std::string_view question;
    std::string_view packageKey;
};

/// A field of an edit dialog, its control, its column and its tag in the statements.
struct EditField {
    enum class Kind {
        Name,        ///< required text, trimmed, checked for duplicates
        Text,        ///< text as it is typed
        Memo,        ///< text of several lines
        Whole,       ///< a whole number
        Decimal,     ///< a number
        Percent,     ///< shown as a percentage, stored as a fraction with four decimals
        Choice,      ///< a stored number, chosen by its caption
        Check,       ///< a check box
        PhoneLabel,  ///< text, typed or chosen from the company's phone labels
    };
    Kind kind;
    std::string_view control;
    std::string_view label;
    std::string_view column;
    std::string_view tag;
    double maximum = 0;                    ///< of a number; the least and the default are 0
    std::span<const Choice> choices = {};  ///< Choice: the first is the default where none is required
    std::string_view unchosen = {};        ///< Choice: told when nothing is chosen; empty: not required
};

/// What tells one edit dialog from another. Its screen is named after the list's.
struct DialogDescription {
    std::string_view newCaption;
    std::string_view editCaption;
    std::vector<EditField> fields;  ///< in the order of the statements and their tags; the first is the name
    std::string_view required;      ///< told when the name is empty
    std::string_view duplicate;     ///< told when another row has the name; empty: not checked
    std::string_view saveFailure;
    std::string_view saveExplanation = standardExplanation;
    /// "<id>" is the row's `ID`. Empty: the columns and tags of the fields in their order.
    std::string_view insert = {};
    std::string_view update = {};
    /// The name can be handed to the host's expression editor.
    bool expression = false;
};

/// Everything that tells one lookup list and its dialog from another.
struct ListDescription {
    Operation open;  ///< the entry point of the list
    Operation edit;  ///< the entry point of the dialog
    std::string_view screenName;
    std::string_view caption;
    std::string_view table;
    std::string_view view = {};  ///< the list reads its rows here; empty: from the table
    std::string_view orderBy;
    std::vector<ListColumn> columns;                      ///< the first holds the row's name
    std::optional<std::int32_t> securityArea = {};        ///< none: no rights are checked
    std::optional<std::int16_t> listKind = {};            ///< none: no import and export
    std::optional<std::int16_t> moveReferencesCode = {};  ///< none: no "Move References"
    std::optional<DefaultSet> defaults = {};
    std::vector<DeletionCheck> deletionChecks = {};
    std::string_view deleteFailure;
    bool busyState = false;  ///< shown as busy while it loads or deletes
    DialogDescription dialog = {};
};

}  // namespace tsln::lists
