#pragma once

#include <array>
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
    std::string_view name;  ///< of its section in the file and of its table
    /// The columns that tell its rows apart, one or two; the first must not be empty in a row.
    std::array<std::string_view, 2> keys;
    const ImportReference* reference = nullptr;

    std::span<const std::string_view> keyColumns() const {
        return std::span(keys).first(keys[1].empty() ? 1 : 2);
    }
};

/// The list of that name; null when there is none that can be imported.
const ImportList* findImportList(std::string_view name);

}  // namespace tsln::workbench
