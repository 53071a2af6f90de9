#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "bridge/Operations.h"
#include "workbench/company/Company.h"

namespace tsln::workbench {

/// A kind of record that an operation of the library edits by its identifier.
struct RecordKind {
    Operation edit;
    std::string_view caption;                   ///< "Vendors"
    std::span<const std::string_view> columns;  ///< captions of the list's columns
    std::string_view list;                      ///< query: the identifier, then one field per column
    std::string_view history;  ///< query: date and text of the entries of record {0}, latest first
};

/// Returns the kind of record that the operation edits; null for an operation that edits none or whose records are
/// not listed.
const RecordKind* recordKindOf(Operation operation);

struct ListedRecord {
    std::int32_t ID = 0;
    std::vector<std::string> cells;  ///< one per column of its kind
};
/// Returns all records of the kind, in display order. Throws SqlError.
std::vector<ListedRecord> listRecords(Company& company, const RecordKind& kind);
/// Returns the rows of a query: the identifier, then so many columns. Throws SqlError.
std::vector<ListedRecord> listRecords(Company& company, std::string_view query, std::size_t columns);

struct HistoryEntry {
    std::string date;  ///< UTC, as "2011-03-04 10:20:30"
    std::string text;
};
/// Returns the record's history, latest first. Throws SqlError.
std::vector<HistoryEntry> historyOf(Company& company, const RecordKind& kind, std::int32_t ID);

}  // namespace tsln::workbench
