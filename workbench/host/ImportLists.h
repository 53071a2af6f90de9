#pragma once

#include <array>
#include <span>
#include <string_view>

namespace tsln::workbench {

/// A row of another table that an exported list names, whose key is what is stored.
struct ImportReference {
    struct Name {
        std::string_view column;      ///< in the file
        std::string_view nameColumn;  ///< in the other table
    };

    std::string_view keyColumn;  ///< in the list's own table
    std::string_view table;      ///< that it names a row of
    std::array<Name, 2> names;   ///< one or two
    bool optional = false;       ///< an empty name refers to nothing

    std::span<const Name> nameColumns() const {
        return std::span(names).first(names[1].column.empty() ? 1 : 2);
    }
};

/// A list that can be imported.
struct ImportList {
    std::string_view name;  ///< of its section in the file and of its table
    /// The table's columns that tell its rows apart; the first must not be empty in a row.
    std::span<const std::string_view> keys;
    std::span<const ImportReference> references{};
    /// Several rows may have the same keys: the first of them in the file is the first of the table, and so
    /// on.
    bool rowsRepeat = false;
};

/// The list of that name; null when there is none that can be imported.
const ImportList* findImportList(std::string_view name);

}  // namespace tsln::workbench
