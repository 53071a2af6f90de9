#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "screens/ReportRecords.h"

namespace tsln {

/// Puts record indexes in the order of a column's texts, without letter case as
/// modSharedStrings::compareNoCase has it. Equal ones keep the order they come in. `order` holds indexes of
/// records, each at most once.
void sortByText(std::span<std::uint32_t> order, const ReportRecords& records, std::size_t column,
                bool descending);
/// The same by the numbers that the texts read as; text that is no number counts as below all numbers.
void sortByNumber(std::span<std::uint32_t> order, const ReportRecords& records, std::size_t column,
                  bool descending);
/// The same by the sort values of the column's cells; a cell without one counts as below all values.
void sortByValue(std::span<std::uint32_t> order, const ReportRecords& records, std::size_t column,
                 bool descending);

/// The different texts of a column, told apart without letter case.
struct TextNumbers {
    std::vector<std::uint32_t> numbers;  ///< of each record's text, from 0 in the order of their appearance
    std::vector<std::uint32_t> first;    ///< by number: the first record with that text
};
TextNumbers numberTexts(const ReportRecords& records, std::size_t column);
/// For each record the rank of its text in a column among all different ones, from 0 in the order of
/// sortByText.
std::vector<std::uint32_t> rankTexts(const ReportRecords& records, std::size_t column);
/// Puts record indexes in the order of their ranks, as rankTexts gives them; equal ones keep their order.
void sortByRank(std::span<std::uint32_t> order, std::span<const std::uint32_t> ranks);

}  // namespace tsln
