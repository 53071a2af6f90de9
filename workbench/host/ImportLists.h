#pragma once

#include <span>
#include <string_view>

namespace tsln::workbench {

/// A column of an exported list that names a row of another table, whose key is what is stored.
struct ImportReference {
    std::string_view column;  ///< in the file
    std::string_view table;   ///< that it names a row of
    std::string_view nameColumn;
    std::string_view keyColumn;  ///< in the list's own table
};

/// A list that can be imported.
struct ImportList {
    std::string_view list;  ///< its name in the file
    std::string_view table;
    /// What tells its rows apart; the first must not be empty.
    std::span<const std::string_view> keys;
    const ImportReference* reference = nullptr;
};

/// The list of that name; null when there is none that can be imported.
const ImportList* findImportList(std::string_view list);

}  // namespace tsln::workbench
