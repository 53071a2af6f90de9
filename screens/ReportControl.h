#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "screens/Control.h"
#include "screens/ReportRecords.h"

namespace tsln {

/// A list of records in columns: sortable by header, optionally grouped, with a selection and a focused row.
///
/// Two views of the same data: *records* in the order they were added, each with its `ID` and its cells, and
/// *rows* as the user sees them, sorted and with group rows between; populate() makes the rows from the
/// records. Indexes are zero-based. An index that does not exist raises std::out_of_range.
class ReportControl : public Control {
  public:
    ReportControl(Screen& screen, std::string name) : Control(screen, std::move(name)) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    struct Column {
        std::string caption;
        int width = 100;  ///< in the report control's units: pixels at 96 per inch
        bool rightAligned = false;
        bool numeric = false;  ///< sorts by value, text that is no number first
        bool resizable = true;
    };
    std::vector<Column> columns;  ///< define them before the first record

    // Records -----------------------------------------------------------------------------------------
    std::size_t recordCount() const noexcept;  ///< without the removed ones
    /// Adds a record and returns its index; missing cells are empty. It is shown from the next populate() on.
    std::size_t addRecord(std::int32_t id, std::span<const std::string_view> cells);
    void replaceRecord(std::size_t record, std::span<const std::string_view> cells);
    /// Takes the record out; indexes of the others stay as they are until the next populate().
    void removeRecord(std::size_t record);
    void clearRecords();
    /// Takes these, which have as many columns, in place of all records there are.
    void setRecords(ReportRecords records);
    std::int32_t id(std::size_t record) const;
    std::string_view cell(std::size_t record, std::size_t column) const;
    /// The record with this `ID`, if there is one.
    std::optional<std::size_t> findRecord(std::int32_t id) const;

    // Rows --------------------------------------------------------------------------------------------
    /// Makes the rows anew from the records, sorted and grouped; selection and focus stay with their records,
    /// and the focus of a removed record goes to the row that took its place.
    void populate();
    struct Row {
        static constexpr std::uint32_t noRecord = UINT32_MAX;
        std::uint32_t record = noRecord;        ///< the record, or noRecord for a group row
        std::uint32_t firstOfGroup = noRecord;  ///< for a group row: a record that holds the group's text
        bool isGroup() const noexcept { return record == noRecord; }
    };
    std::size_t rowCount() const noexcept { return rows_.size(); }
    const Row& row(std::size_t row) const { return rows_.at(row); }
    /// The row that shows this record, if one does.
    std::optional<std::size_t> findRow(std::size_t record) const;
    /// The text shown in a row's column; a group row shows the group's text in the first column.
    std::string_view rowText(std::size_t row, std::size_t column) const;

    // Order -------------------------------------------------------------------------------------------
    struct SortOrder {
        std::size_t column = 0;
        bool descending = false;
        friend bool operator==(SortOrder, SortOrder) = default;
    };
    const std::optional<SortOrder>& sortOrder() const noexcept { return sortOrder_; }
    /// Sorts the rows (text without letter case, equal rows keep their order); no value is the records'
    /// order.
    void sortBy(std::optional<SortOrder> order);
    /// Groups the rows by a column's text, or ungroups them.
    void groupBy(std::optional<std::size_t> column);
    std::optional<std::size_t> groupColumn() const noexcept { return groupColumn_; }
    /// The user clicked a column's header: sort by it, or turn its order round.
    void userClickHeader(std::size_t column);

    // Selection ---------------------------------------------------------------------------------------
    /// The selected rows from the first to the last, group rows included.
    const std::vector<std::size_t>& selectedRows() const noexcept { return selected_; }
    bool isSelected(std::size_t row) const;
    std::optional<std::size_t> focusedRow() const noexcept { return focusedRow_; }
    /// Selects just this row and gives it the focus.
    void selectRow(std::size_t row);
    void clearSelection();

    std::function<void()> onSelectionChanged;
    std::function<void(std::size_t row)> onRowDoubleClick;  ///< a double click, or Enter on the focused row
    std::function<void()> onInsertKey;
    std::function<void()> onDeleteKey;
    std::function<void(std::size_t row)> onContextMenu;  ///< the row, or rowCount() when none was hit
    /// The user's selection and focus as they are now. `selected` holds ascending rows.
    void userSelect(std::span<const std::size_t> selected, std::optional<std::size_t> focused);
    void userSelectAll();
    void userDoubleClick(std::size_t row);
    void userInsertKey();
    void userDeleteKey();
    void userContextMenu(std::size_t row);

    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    std::vector<std::uint32_t> compact();
    std::vector<std::uint32_t> orderedRecords() const;

    ReportRecords records_;
    std::vector<bool> removed_;  // by record
    std::size_t removedCount_ = 0;
    std::vector<Row> rows_;
    std::vector<std::size_t> selected_;  // ascending, so that what a selection costs depends on its own size
    std::optional<std::size_t> focusedRow_;
    std::optional<SortOrder> sortOrder_;
    std::optional<std::size_t> groupColumn_;
};

}  // namespace tsln
