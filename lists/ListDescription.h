#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "bridge/Operations.h"

namespace tsln::lists {

/// A column of a list: its caption, its width in the report control's units and the field that fills it.
struct ListColumn {
    std::string_view caption;
    int width = 100;
    std::string_view field;
    bool numeric = false;
};

/// A table whose rows may refer to the rows of a list, and how a refusal to delete reads.
struct DeletionCheck {
    std::string_view count;    ///< counts the references; {0} is the row's `ID`
    std::string_view message;  ///< {0} is the row's name, {1} the count; may hold "<Bold>" markup
    std::string_view advice;
};

/// A package of default rows, offered while the list is empty.
struct DefaultSet {
    std::string_view question;
    std::string_view packageKey;
};

/// Everything that tells one lookup list from another.
struct ListDescription {
    std::string_view screenName;
    std::string_view caption;
    std::string_view table;
    std::string_view orderBy;
    std::span<const ListColumn> columns;             ///< the first holds the row's name
    std::optional<std::int32_t> securityArea;        ///< none: no rights are checked
    std::optional<std::int16_t> listKind;            ///< none: no import and export
    std::optional<std::int16_t> moveReferencesCode;  ///< none: no "Move References"
    std::optional<DefaultSet> defaults;
    std::span<const DeletionCheck> deletionChecks;
    std::string_view deleteFailure;
    Operation edit;          ///< the entry point of the edit dialog
    bool busyState = false;  ///< shown as busy while it loads or deletes
};

/// A field of an edit dialog, its control, its column and its tag in the statements.
struct EditField {
    enum class Kind {
        Name,     ///< required text, trimmed, checked for duplicates
        Whole,    ///< a whole number
        Percent,  ///< shown as a percentage, stored as a fraction with four decimals
        Check,    ///< a check box
    };
    Kind kind;
    std::string_view control;
    std::string_view label;
    std::string_view column;
    std::string_view tag;
    double maximum = 0;  ///< Whole, Percent: the largest entry; the least and the default are 0
};

/// Everything that tells one edit dialog from another.
struct EditDescription {
    std::string_view screenName;
    std::string_view table;
    std::string_view newCaption;
    std::string_view editCaption;
    std::span<const EditField> fields;  ///< in the order their tags are filled; the first is the name
    std::string_view required;          ///< told when the name is empty
    std::string_view duplicate;         ///< told when another row has the name; empty: not checked
    std::string_view saveFailure;
    std::string_view insert;
    std::string_view update;  ///< "<id>" is the row's `ID`
};

}  // namespace tsln::lists
