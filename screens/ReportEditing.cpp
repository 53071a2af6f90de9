// User actions on the cells and columns of a report control.

#include <algorithm>
#include <numeric>
#include <stdexcept>
#include <utility>

#include "screens/ReportControl.h"
#include "screens/Screen.h"

namespace tsln {
namespace {

using Kind = ReportColumn::Kind;

/// At most the first `most` characters of the text.
std::string_view firstCharacters(std::string_view text, std::size_t most) {
    std::size_t characters = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool continues = (static_cast<unsigned char>(text[i]) & 0xC0U) == 0x80;
        if (!continues && characters++ == most) return text.substr(0, i);
    }
    return text;
}

bool takesEdits(const ReportColumn& column) {
    return column.editable && column.kind != Kind::Date && column.kind != Kind::DateTime;
}

}  // namespace

// Cells -----------------------------------------------------------------------------------------------

bool ReportControl::hasEditableColumns() const {
    return std::ranges::any_of(columns, takesEdits);
}

bool ReportControl::canEdit(Cell cell) const noexcept {
    if (!enabled() || cell.row >= rows_.size() || rows_[cell.row].isGroup()) return false;
    if (cell.column >= columns.size() || !takesEdits(columns[cell.column])) return false;
    try {
        return !cellEditable || cellEditable(rows_[cell.row].record, cell.column);
    } catch (...) {
        return false;  // called while drawing, where no error can be reported
    }
}

std::optional<ReportControl::Cell> ReportControl::nextEditable(Cell from, bool backwards) const {
    if (!hasEditableColumns()) return std::nullopt;
    const std::vector<std::size_t> order = columnOrder();
    auto place = std::ranges::find(order, from.column) - order.begin();
    const auto last = std::ssize(order) - 1;
    while (from.row < rows_.size()) {
        place += backwards ? -1 : 1;
        if (place < 0 || place > last) {
            place = backwards ? last : 0;
            from.row += backwards ? std::size_t(-1) : 1;  // wraps before row 0, which ends the loop
        }
        const Cell at{from.row, order[static_cast<std::size_t>(place)]};
        if (canEdit(at)) return at;
    }
    return std::nullopt;
}

void ReportControl::userEdit(std::size_t row, std::size_t column, std::string_view text) {
    if (!canEdit({row, column}) || columns[column].kind == Kind::Check) return;
    const Column& edited = columns[column];
    if (edited.kind == Kind::Choice) {
        if (std::ranges::find(edited.choices, text, &Column::Choice::caption) == edited.choices.end()) return;
    } else if (edited.maxLength > 0) {
        text = firstCharacters(text, edited.maxLength);
    }
    if (text == rowText(row, column)) return;
    std::optional<std::string> corrected;
    if (correctEdit) {
        screen().handle([&] { corrected = correctEdit(rows_[row].record, column, text); });
        if (!corrected || *corrected == rowText(row, column))
            return changed();  // the old text is drawn again
        text = *corrected;
    }
    edit({row, column}, text);
}

void ReportControl::beginEdit(std::size_t record, std::size_t column) {
    const auto row = findRow(record);
    if (!row) return;
    editRequest_ = Cell{*row, column};
    changed();
}

std::optional<ReportControl::Cell> ReportControl::takeEditRequest() {
    return std::exchange(editRequest_, std::nullopt);
}

void ReportControl::userCheck(std::size_t row, std::size_t column, bool ticked) {
    if (!canEdit({row, column}) || columns[column].kind != Kind::Check) return;
    if (checked(rows_[row].record, column) != ticked) edit({row, column}, ticked ? "1" : "0");
}

void ReportControl::edit(Cell cell, std::string_view text) {
    const std::size_t record = rows_[cell.row].record;
    setCell(record, cell.column, text);
    if (onCellEdited) screen().handle([&] { onCellEdited(record, cell.column); });
}

// Columns ---------------------------------------------------------------------------------------------

std::vector<std::size_t> ReportControl::columnOrder() const {
    if (columnOrder_.size() == columns.size()) return columnOrder_;
    std::vector<std::size_t> order(columns.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    return order;
}

ColumnLayout ReportControl::arrangement() const {
    ColumnLayout layout{columnOrder(), {}, sortOrder_};
    for (const Column& column : columns)
        layout.widths.push_back(column.width);
    return layout;
}

std::string ReportControl::columnLayout() const {
    return columnLayoutText(columns, arrangement());
}

void ReportControl::setColumnLayout(std::string_view text) {
    ColumnLayout layout = arrangement();
    readColumnLayout(text, columns, layout);
    columnOrder_ = std::move(layout.order);
    for (std::size_t i = 0; i < columns.size(); ++i)
        columns[i].width = layout.widths[i];
    if (layout.sort != sortOrder_) sortBy(layout.sort);
    changed();
}

void ReportControl::userColumnWidth(std::size_t column, int width) {
    if (column < columns.size() && columns[column].resizable && width > 0) columns[column].width = width;
}

void ReportControl::userColumnOrder(std::vector<std::size_t> order) {
    std::vector<std::size_t> all(order);
    std::ranges::sort(all);
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i] != i) return;
    }
    if (all.size() == columns.size()) columnOrder_ = std::move(order);
}

}  // namespace tsln
