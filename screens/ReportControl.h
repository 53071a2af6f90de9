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

/// A list of records in columns. The user sorts it by clicks on the headers and may edit cells in place. It
/// has a selection and a focused row, and may be filtered and grouped.
///
/// *Records* are in the order in which they were added; each has an `ID` and cells. *Rows* are the records as
/// the user sees them, sorted, with group rows between them; populate() builds the rows from the records.
/// Indexes are zero-based. An index that does not exist raises std::out_of_range.
class ReportControl : public Control {
  public:
    ReportControl(Screen& screen, std::string name) : Control(screen, std::move(name)) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    using Column = ReportColumn;
    std::vector<Column> columns;  ///< set before the first record is added
    int rowsAtFirst = 0;  ///< rows that the window has room for at first; 0: as many as lists usually have

    // Records -----------------------------------------------------------------------------------------
    std::size_t recordCount() const noexcept;  ///< without removed records
    /// Adds a record and returns its index; missing cells are empty. The next populate() shows it.
    std::size_t addRecord(std::int32_t id, std::span<const std::string_view> cells);
    /// Replaces all cells of the record and removes their sort values.
    void replaceRecord(std::size_t record, std::span<const std::string_view> cells);
    /// Removes the record. The indexes of the other records stay valid until the next populate().
    void removeRecord(std::size_t record);
    void clearRecords();
    /// Replaces all records. `records` must have as many columns as the control.
    void setRecords(ReportRecords records);
    std::int32_t id(std::size_t record) const;
    std::string_view cell(std::size_t record, std::size_t column) const;
    /// Replaces one cell's text and shows it at once in its row. The next populate(), setFilter() or click on
    /// a header sorts, filters and groups by it. Texts obtained before are no longer valid.
    void setCell(std::size_t record, std::size_t column, std::string_view text);
    /// Sets the value by which a cell sorts instead of its text. The unit is free; a later time is a greater
    /// value.
    void setSortValue(std::size_t record, std::size_t column, double value);
    /// Whether a check box is ticked.
    bool checked(std::size_t record, std::size_t column) const;
    /// The record with this `ID`; no value when there is none.
    std::optional<std::size_t> findRecord(std::int32_t id) const;

    struct Style {
        bool bold = false;
        std::optional<std::uint32_t> color;       ///< of the text, 0x00BBGGRR
        std::optional<std::uint32_t> background;  ///< without `color`, the text is black or white on it
    };
    void setStyle(std::size_t record, Style style);
    Style style(std::size_t record) const;

    // Rows --------------------------------------------------------------------------------------------
    /// Rebuilds the rows from the records, sorted, filtered and grouped. Selection and focus stay with their
    /// records. The focus of a record that is no longer shown moves to the row that took its place.
    void populate();
    struct Row {
        static constexpr std::uint32_t noRecord = UINT32_MAX;
        std::uint32_t record = noRecord;        ///< the record, or noRecord for a group row
        std::uint32_t firstOfGroup = noRecord;  ///< for a group row: a record that holds the group's text
        bool isGroup() const noexcept { return record == noRecord; }
    };
    std::size_t rowCount() const noexcept { return rows_.size(); }
    const Row& row(std::size_t row) const { return rows_.at(row); }
    /// Changes when the rows are rebuilt, but not when a cell gets a new text.
    std::uint64_t rowsVersion() const noexcept { return rowsVersion_; }
    /// The row that shows this record; no value when none does.
    std::optional<std::size_t> findRow(std::size_t record) const;
    /// The text shown in a cell of a row. A group row shows the group's text in the first column.
    std::string_view rowText(std::size_t row, std::size_t column) const;

    // Filter ------------------------------------------------------------------------------------------
    /// Shows only records that contain the text in any column except check boxes, ignoring letter case. An
    /// empty text shows all.
    void setFilter(std::string text);
    const std::string& filter() const noexcept { return filter_; }
    /// Shows only records for which `shows` also returns true; null shows all. Every populate() and
    /// setFilter() calls it for each record. An exception from it leaves the list without rows and is passed
    /// on.
    void setFilterPredicate(std::function<bool(std::size_t record)> shows);

    // Order -------------------------------------------------------------------------------------------
    using SortOrder = tsln::SortOrder;
    const std::optional<SortOrder>& sortOrder() const noexcept { return sortOrder_; }
    /// Sorts the rows: text ignoring letter case, equal rows in the order of their records. No value restores
    /// the order of the records.
    void sortBy(std::optional<SortOrder> order);
    struct Grouping {
        enum class Order { ByText, ByAppearance };
        std::size_t column = 0;
        Order order = Order::ByText;  ///< by appearance: in the order of the groups' first records
        /// Orders the groups by their texts; replaces `order` when set.
        std::function<bool(std::string_view a, std::string_view b)> before;
        std::string emptyText;  ///< shown for the group of records without a text
    };
    /// Groups the rows by a column's text; no value ungroups them.
    void groupBy(std::optional<std::size_t> column);
    void groupBy(Grouping grouping);
    std::optional<std::size_t> groupColumn() const noexcept;
    /// The user clicked a column's header: sorts by it, or reverses its order.
    void userClickHeader(std::size_t column);

    // Columns as the user arranged them ---------------------------------------------------------------
    /// The columns from left to right.
    std::vector<std::size_t> columnOrder() const;
    /// Widths, positions and sort order of the columns as one text, to be saved for the user.
    std::string columnLayout() const;
    /// Arranges the columns by a text from columnLayout(). Parts that are invalid or match no column are
    /// ignored.
    void setColumnLayout(std::string_view text);
    /// The user changed a column's width. `width` is in pixels at 96 per inch.
    void userColumnWidth(std::size_t column, int width);
    /// The user moved columns; `order` holds each column once.
    void userColumnOrder(std::vector<std::size_t> order);

    // Selection ---------------------------------------------------------------------------------------
    /// The selected rows from the first to the last, group rows included.
    const std::vector<std::size_t>& selectedRows() const noexcept { return selected_; }
    bool isSelected(std::size_t row) const;
    std::optional<std::size_t> focusedRow() const noexcept { return focusedRow_; }
    /// Selects only this row and gives it the focus.
    void selectRow(std::size_t row);
    void clearSelection();

    std::function<void()> onSelectionChanged;
    std::function<void(std::size_t row)> onRowDoubleClick;  ///< a double click, or Enter on the focused row
    std::function<void()> onInsertKey;
    std::function<void()> onDeleteKey;
    /// The user opened the context menu on `row`, which is selected first. A click on no row passes
    /// rowCount() and clears the selection.
    std::function<void(std::size_t row)> onContextMenu;
    /// The user changed selection or focus. `selected` holds the selected rows in ascending order.
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
    /// Whether a cell of an editable column may be edited; null allows all. Must not change the records.
    std::function<bool(std::size_t record, std::size_t column)> cellEditable;
    /// Returns the text to be stored for the one that the user typed or chose; no value when it is refused, and the cell
    /// keeps its text. Null stores every text as typed.
    std::function<std::optional<std::string>(std::size_t record, std::size_t column, std::string_view typed)>
        correctEdit;
    /// The user edited a cell; the cell already holds the new text.
    std::function<void(std::size_t record, std::size_t column)> onCellEdited;
    /// Whether any column can be edited.
    bool hasEditableColumns() const;
    /// Whether the user may edit the cell now.
    bool canEdit(Cell cell) const noexcept;
    /// The next cell that the user may edit: to the right of `from`, then in the rows below. `backwards`
    /// searches to the left and above. No value when there is none.
    std::optional<Cell> nextEditable(Cell from, bool backwards) const;
    /// Asks the front end to open the editor in a cell of this record once it has drawn the rows. Nothing happens when
    /// the cell cannot be edited.
    void beginEdit(std::size_t record, std::size_t column);
    /// The cell of the last beginEdit(), for the front end, which takes it once.
    std::optional<Cell> takeEditRequest();
    /// The user typed or chose a text, which is cut to the column's length. Ignored when the cell already
    /// holds the text, is a check box, or does not offer the text as a choice.
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
    std::vector<Style> styles_;  // by record; records beyond its end have none
    std::vector<Row> rows_;
    std::uint64_t rowsVersion_ = 0;
    std::vector<std::size_t> selected_;  // ascending; a vector, so that its cost depends on its own size
    std::optional<std::size_t> focusedRow_;
    std::optional<SortOrder> sortOrder_;
    std::optional<Grouping> grouping_;
    std::string filter_;
    std::function<bool(std::size_t)> filterPredicate_;
    std::optional<ReportFilter> filterTexts_;  // of the current records; built when first needed
    std::vector<std::uint32_t> order_;         // all records in the order of the rows; empty while unknown
    std::vector<std::uint32_t> groups_;        // by record the rank of its group; empty without groups
    std::vector<std::size_t> columnOrder_;     // empty: the order of `columns`
    std::optional<Cell> editRequest_;
};

}  // namespace tsln
