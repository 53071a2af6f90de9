#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "workbench/host/RecordLists.h"

namespace tsln::workbench {

/// The records of a table, as the host lists them for the user to choose from.
struct SearchList {
    std::string_view table;
    std::span<const std::string_view> columns;  ///< captions
    std::string_view list;                      ///< query: the identifier, then one field per column
};

/// Returns the list of a table's records, by its name without letter case; null for a table that is not listed.
const SearchList* searchListOf(std::string_view table);

/// Returns the records of the list, in display order. Throws SqlError.
std::vector<ListedRecord> listRecords(Company& company, const SearchList& list);

}  // namespace tsln::workbench
