#pragma once

#include <array>
#include <span>
#include <string_view>

namespace tsln::workbench {

/// A reference to another table's row: the list stores the row's key, the file contains its name.
struct ImportReference {
    struct Name {
        std::string_view column;      ///< in the file
        std::string_view nameColumn;  ///< in the other table
    };

    std::string_view keyColumn;  ///< in the list's own table
    std::string_view table;      ///< the referenced table
    std::array<Name, 2> names;   ///< one or two
    bool optional = false;       ///< an empty name is stored as NULL
    /// The file's column with the identity of the referenced row; empty: the first name's, with "UniqueID" behind it.
    std::string_view identity{};

    std::span<const Name> nameColumns() const {
        return std::span(names).first(names[1].column.empty() ? 1 : 2);
    }
};

/// A list that can be imported.
struct ImportList {
    std::string_view name;  ///< the name of its section in the file and of its table
    /// The columns that identify a row. The first one must not be empty. Without any, the table has one row.
    std::span<const std::string_view> keys;
    std::span<const ImportReference> references{};
    /// Several rows may have equal keys: the file's n-th row with these keys is the table's n-th.
    bool rowsRepeat = false;
};

/// Returns the list with this name; null when no such list can be imported. An upgrade from version 4.2 imports further
/// tables.
const ImportList* findImportList(std::string_view name, bool upgrade);

}  // namespace tsln::workbench
