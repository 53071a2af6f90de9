#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tsln {

/// The records of a report control, each with an `ID` and a text per column. All cell texts are in one block
/// of memory, so that 100,000 records need few allocations. Indexes are zero-based; an index that does not
/// exist raises std::out_of_range.
class ReportRecords {
  public:
    explicit ReportRecords(std::size_t columns = 0) : columns_(columns) {}

    std::size_t columns() const noexcept { return columns_; }
    std::size_t count() const noexcept { return ids_.size(); }
    std::size_t textBytes() const noexcept { return text_.size(); }

    /// Adds a record and returns its index. Missing cells are empty, surplus cells are ignored. Raises
    /// std::length_error beyond 4 GB of text.
    std::size_t add(std::int32_t id, std::span<const std::string_view> cells);
    void replace(std::size_t record, std::span<const std::string_view> cells);
    /// Replaces one cell's text. Cell texts obtained before are no longer valid.
    void setCell(std::size_t record, std::size_t column, std::string_view text);
    /// Sets the value by which the cell sorts instead of its text, in any unit, for example a date's day
    /// number. setCell() keeps the value, replace() removes it.
    void setSortValue(std::size_t record, std::size_t column, double value);
    /// The cell's sort value; without one, a value below all others.
    double sortValue(std::size_t record, std::size_t column) const;
    /// Whether any cell of the column has a sort value.
    bool hasSortValues(std::size_t column) const;
    /// Moves a record to a lower index and overwrites the record there.
    void move(std::size_t from, std::size_t to);
    /// Removes all records after the first `count`.
    void truncate(std::size_t count);
    void clear();
    /// Reserves memory for this many records and bytes of text in total.
    void reserve(std::size_t records, std::size_t textBytes);

    std::int32_t id(std::size_t record) const { return ids_.at(record); }
    const std::vector<std::int32_t>& ids() const noexcept { return ids_; }
    std::string_view cell(std::size_t record, std::size_t column) const;

  private:
    struct Text {
        std::uint32_t offset = 0;
        std::uint32_t length = 0;
    };
    void store(Text* place, std::span<const std::string_view> cells);
    void checkRoom(std::size_t bytes) const;
    void dropUnusedText();

    std::size_t columns_;
    std::string text_;         // the characters of all cells
    std::vector<Text> cells_;  // count() * columns_
    std::vector<std::int32_t> ids_;
    std::vector<std::vector<double>> sortValues_;  // by column and record; may be shorter than count()
    std::size_t unused_ = 0;                       // bytes of text_ that no cell uses
};

}  // namespace tsln
