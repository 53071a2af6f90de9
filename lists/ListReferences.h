#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace tsln::lists {

/// A column of another table that refers to the entries of a list.
struct Reference {
    std::string_view table;
    std::string_view column;
    /// The message for a failure to move the references of this table.
    std::string_view failure() const;
};

/// A list whose references can be moved from one entry to another.
struct ReferencedList {
    std::int16_t code;
    std::string_view table;
    std::string_view nameColumn;  ///< in the form the statements use
    std::string_view heading;
    std::span<const Reference> references;  ///< in the order they are moved
    /// The references may be set to NULL, which reads as "none". This cannot be undone, so it is offered only where
    /// no computation and no decision depends on the reference.
    bool blankAllowed = false;
};

/// Returns the list with this code, or null.
const ReferencedList* findReferencedList(std::int16_t code);

}  // namespace tsln::lists
