#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tsln {

/// What a report control shows: records, each an `ID` and a text per column. Cell texts lie in one block of
/// memory, so 100,000 records cost a handful of allocations. Indexes are zero-based; one that does not exist
/// raises std::out_of_range.
class ReportRecords {
  public:
    explicit ReportRecords(std::size_t columns = 0) : columns_(columns) {}

    std::size_t columns() const noexcept { return columns_; }
    std::size_t count() const noexcept { return ids_.size(); }
    std::size_t textBytes() const noexcept { return text_.size(); }

    /// Adds a record and returns its index; missing cells are empty, surplus ones are passed over. Raises
    /// std::length_error beyond 4 GB of text.
    std::size_t add(std::int32_t id, std::span<const std::string_view> cells);
    void replace(std::size_t record, std::span<const std::string_view> cells);
    /// Replaces one cell's text; texts of cells obtained before are no longer valid.
    void setCell(std::size_t record, std::size_t column, std::string_view text);
    /// What the cell sorts by in place of its text, in any unit: a date's day number, say. A new text in the
    /// cell leaves it as it is, replace() takes it away.
    void setSortValue(std::size_t record, std::size_t column, double value);
    /// The cell's sort value; below all others where none was set.
    double sortValue(std::size_t record, std::size_t column) const;
    /// Whether any cell of the column has one.
    bool hasSortValues(std::size_t column) const;
    /// Moves a record to an index before its own, over what is there.
    void move(std::size_t from, std::size_t to);
    /// Drops the records behind the first `count`.
    void truncate(std::size_t count);
    void clear();
    /// Room for so many records and bytes of text in all, to spare growing in steps.
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
    std::string text_;         // every cell's characters, one after another
    std::vector<Text> cells_;  // count * columns
    std::vector<std::int32_t> ids_;
    std::vector<std::vector<double>> sortValues_;  // by column and record; those without any are shorter
    std::size_t unused_ = 0;                       // bytes of text_ that setCell() left behind
};

}  // namespace tsln
