#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "bridge/Operations.h"
#include "maintenance/RecordDescription.h"

namespace tsln {

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
    RecordDescription dialog = {};
};

}  // namespace tsln
