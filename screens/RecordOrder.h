#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "screens/ReportRecords.h"

namespace tsln {

/// Sorts record indexes by the texts of a column, ignoring letter case as modSharedStrings::compareNoCase
/// does. Records with equal texts keep their order. `order` holds indexes of records, each at most once.
void sortByText(std::span<std::uint32_t> order, const ReportRecords& records, std::size_t column,
                bool descending);
/// Sorts record indexes by the numbers in a column's texts. Text that is not a number sorts below all
/// numbers. Records with equal numbers keep their order.
void sortByNumber(std::span<std::uint32_t> order, const ReportRecords& records, std::size_t column,
                  bool descending);
/// Sorts record indexes by the sort values of a column's cells. A cell without one sorts below all values.
/// Records with equal values keep their order.
void sortByValue(std::span<std::uint32_t> order, const ReportRecords& records, std::size_t column,
                 bool descending);

/// The distinct texts of a column, ignoring letter case.
struct TextNumbers {
    std::vector<std::uint32_t> numbers;  ///< by record: the number of its text, from 0 in order of appearance
    std::vector<std::uint32_t> first;    ///< by number: the first record with that text
};
TextNumbers numberTexts(const ReportRecords& records, std::size_t column);
/// For each record the rank of its text among the distinct texts of the column, from 0 in the order of
/// sortByText().
std::vector<std::uint32_t> rankTexts(const ReportRecords& records, std::size_t column);
/// Sorts record indexes by rank. Records with equal ranks keep their order. `ranks` is indexed by record, as
/// rankTexts() returns it.
void sortByRank(std::span<std::uint32_t> order, std::span<const std::uint32_t> ranks);

}  // namespace tsln
