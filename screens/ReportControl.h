#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "screens/Control.h"
#include "screens/ReportColumns.h"
#include "screens/ReportFilter.h"
#include "screens/ReportRecords.h"

namespace tsln {

/// A list of records in columns: sortable by header, optionally filtered and grouped, with a selection and a
/// focused row, and cells that may be edited in place.
///
/// Two views of the same data: *records* in the order they were added, each with its `ID` and its cells, and
/// *rows* as the user sees them, sorted and with group rows between; populate() makes the rows from the
/// records. Indexes are zero-based. An index that does not exist raises std::out_of_range.
class ReportControl : public Control {
  public:
    ReportControl(Screen& screen, std::string name) : Control(screen, std::move(name)) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    using Column = ReportColumn;
    std::vector<Column> columns;  ///< define them before the first record

    // Records -----------------------------------------------------------------------------------------
    std::size_t recordCount() const noexcept;  ///< without the removed ones
    /// Adds a record and returns its index; missing cells are empty. It is shown from the next populate() on.
    std::size_t addRecord(std::int32_t id, std::span<const std::string_view> cells);
    /// Replaces all cells; sort values of theirs go.
    void replaceRecord(std::size_t record, std::span<const std::string_view> cells);
    /// Takes the record out; indexes of the others stay as they are until the next populate().
    void removeRecord(std::size_t record);
    void clearRecords();
    /// Takes these, which have as many columns, in place of all records there are.
    void setRecords(ReportRecords records);
    std::int32_t id(std::size_t record) const;
    std::string_view cell(std::size_t record, std::size_t column) const;
    /// Replaces one cell's text. It shows at once, in its row; sorting, filter and groups follow with the
    /// next populate(), setFilter() or click on a header. Texts obtained before are no longer valid.
    void setCell(std::size_t record, std::size_t column, std::string_view text);
    /// What a cell sorts by in place of its text, in any unit that grows with the time.
    void setSortValue(std::size_t record, std::size_t column, double value);
    /// Whether a check box is ticked.
    bool checked(std::size_t record, std::size_t column) const;
    /// The record with this `ID`, if there is one.
    std::optional<std::size_t> findRecord(std::int32_t id) const;

    struct Style {
        bool bold = false;
        std::optional<std::uint32_t> color;  ///< of the text, 0x00BBGGRR
    };
    void setStyle(std::size_t record, Style style);
    Style style(std::size_t record) const;

    // Rows --------------------------------------------------------------------------------------------
    /// Makes the rows anew from the records, sorted, filtered and grouped; selection and focus stay with
    /// their records, and the focus of a record that is no longer shown goes to the row that took its place.
    void populate();
    struct Row {
        static constexpr std::uint32_t noRecord = UINT32_MAX;
        std::uint32_t record = noRecord;        ///< the record, or noRecord for a group row
        std::uint32_t firstOfGroup = noRecord;  ///< for a group row: a record that holds the group's text
        bool isGroup() const noexcept { return record == noRecord; }
    };
    std::size_t rowCount() const noexcept { return rows_.size(); }
    const Row& row(std::size_t row) const { return rows_.at(row); }
    /// Changes whenever the rows are made anew; a cell with a new text leaves it.
    std::uint64_t rowsVersion() const noexcept { return rowsVersion_; }
    /// The row that shows this record, if one does.
    std::optional<std::size_t> findRow(std::size_t record) const;
    /// The text shown in a row's column; a group row shows the group's text in the first column.
    std::string_view rowText(std::size_t row, std::size_t column) const;

    // Filter ------------------------------------------------------------------------------------------
    /// Shows only records of which any column but a check box contains the text, without letter case. Empty
    /// shows all.
    void setFilter(std::string text);
    const std::string& filter() const noexcept { return filter_; }
    /// Shows only records that also fulfil this; null shows all. It is asked again by every populate() and
    /// setFilter(). What it throws leaves the list without rows.
    void setFilterPredicate(std::function<bool(std::size_t record)> shows);

    // Order -------------------------------------------------------------------------------------------
    using SortOrder = tsln::SortOrder;
    const std::optional<SortOrder>& sortOrder() const noexcept { return sortOrder_; }
    /// Sorts the rows (text without letter case, equal rows keep their order); no value is the records'
    /// order.
    void sortBy(std::optional<SortOrder> order);
    struct Grouping {
        enum class Order { ByText, ByAppearance };
        std::size_t column = 0;
        Order order = Order::ByText;  ///< by appearance: in the order of their first records
        /// An order of the groups' texts of its own, in place of `order`.
        std::function<bool(std::string_view a, std::string_view b)> before;
        std::string emptyText;  ///< stands for the group of the records that have no text
    };
    /// Groups the rows by a column's text, or ungroups them.
    void groupBy(std::optional<std::size_t> column);
    void groupBy(Grouping grouping);
    std::optional<std::size_t> groupColumn() const noexcept;
    /// The user clicked a column's header: sort by it, or turn its order round.
    void userClickHeader(std::size_t column);

    // Columns as the user arranged them ---------------------------------------------------------------
    /// The columns as they stand from left to right.
    std::vector<std::size_t> columnOrder() const;
    /// Widths, order and sort order of the columns as one text, to be kept for the user.
    std::string columnLayout() const;
    /// Arranges the columns by such a text; what is wrong in it or fits no column is passed over.
    void setColumnLayout(std::string_view text);
    /// The user made a column so wide, in pixels at 96 per inch.
    void userColumnWidth(std::size_t column, int width);
    /// The user moved columns; `order` holds each column once.
    void userColumnOrder(std::vector<std::size_t> order);

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
    /// The row, which is selected by then, or rowCount() when none was hit; then nothing is selected.
    std::function<void(std::size_t row)> onContextMenu;
    /// The user's selection and focus as they are now. `selected` holds ascending rows.
    void userSelect(std::span<const std::size_t> selected, std::optional<std::size_t> focused);
    void userSelectAll();
    void userDoubleClick(std::size_t row);
    void userInsertKey();
    void userDeleteKey();
    void userContextMenu(std::size_t row);

    // Editing in place --------------------------------------------------------------------------------
    struct Cell {
        std::size_t row = 0;
        std::size_t column = 0;
        friend bool operator==(Cell, Cell) = default;
    };
    /// Whether a cell of an editable column may be edited; null: all may. Must not change the records.
    std::function<bool(std::size_t record, std::size_t column)> cellEditable;
    /// The user edited a cell, which holds the new text.
    std::function<void(std::size_t record, std::size_t column)> onCellEdited;
    /// Some column can be edited.
    bool hasEditableColumns() const;
    /// Whether the user may edit the cell now. Throws nothing.
    bool canEdit(Cell cell) const noexcept;
    /// The next cell the user may edit, to the right and then in the rows below, or the other way.
    std::optional<Cell> nextEditable(Cell from, bool backwards) const;
    /// The user typed or chose a text; it is cut to the column's length. Nothing happens where the cell holds
    /// it already or takes none: a check box, a text that is no choice.
    void userEdit(std::size_t row, std::size_t column, std::string_view text);
    /// The user ticked or cleared a check box.
    void userCheck(std::size_t row, std::size_t column, bool checked);

    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    void recordsChanged();
    std::vector<std::uint32_t> compact();
    void makeOrder();
    std::vector<std::uint32_t> rankGroups() const;
    std::vector<bool> shownRecords();
    void updateRows();
    void makeRows();
    void edit(Cell cell, std::string_view text);
    ColumnLayout arrangement() const;

    ReportRecords records_;
    std::vector<bool> removed_;  // by record
    std::size_t removedCount_ = 0;
    std::vector<Style> styles_;  // by record; records behind its end have none
    std::vector<Row> rows_;
    std::uint64_t rowsVersion_ = 0;
    std::vector<std::size_t> selected_;  // ascending, so that what a selection costs depends on its own size
    std::optional<std::size_t> focusedRow_;
    std::optional<SortOrder> sortOrder_;
    std::optional<Grouping> grouping_;
    std::string filter_;
    std::function<bool(std::size_t)> filterPredicate_;
    std::optional<ReportFilter> filterTexts_;  // of the records as they are; made when first needed
    std::vector<std::uint32_t> order_;         // all records as rows would show them; empty while unknown
    std::vector<std::uint32_t> groups_;        // by record, where they are grouped
    std::vector<std::size_t> columnOrder_;     // empty: as they are defined
};

}  // namespace tsln
