#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace tsln::lists {

/// A column of another table that refers to the entries of a list.
struct Reference {
    std::string_view table;
    std::string_view column;
    /// What is told when the references of this table cannot be moved.
    std::string_view failure() const;
};

/// A list whose references can be moved from one entry to another.
struct ReferencedList {
    std::int16_t code;
    std::string_view table;
    std::string_view nameColumn;  ///< as the statements name it
    std::string_view heading;
    std::span<const Reference> references;  ///< in the order they are moved
    /// The references may be moved to no entry at all. That cannot be turned back, so it is offered only
    /// where nothing is computed or decided by the reference; they become Null, which is read as "none".
    bool blankAllowed = false;
};

/// The list of that code, or null.
const ReferencedList* findReferencedList(std::int16_t code);

}  // namespace tsln::lists
