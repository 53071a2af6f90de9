#include "screens/ReportControl.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <stdexcept>

#include "automation/NumericText.h"
#include "screens/Screen.h"
#include "shared/modSharedStrings.h"

namespace tsln {

// Records
// ---------------------------------------------------------------------------------------------------------

std::size_t ReportControl::recordCount() const noexcept {
    return ids_.size() - removedCount_;
}

ReportControl::Text ReportControl::store(std::string_view text) {
    if (text_.size() + text.size() > std::numeric_limits<std::uint32_t>::max()) {
        throw std::length_error("The list holds more than 4 GB of text.");
    }
    const Text stored{static_cast<std::uint32_t>(text_.size()), static_cast<std::uint32_t>(text.size())};
    text_.append(text);
    return stored;
}

void ReportControl::storeCells(std::size_t record, std::span<const std::string_view> cells) {
    for (std::size_t c = 0; c < columns.size(); ++c) {
        cells_[record * columns.size() + c] = c < cells.size() ? store(cells[c]) : Text{};
    }
}

std::size_t ReportControl::addRecord(std::int32_t id, std::span<const std::string_view> cells) {
    const std::size_t record = ids_.size();
    cells_.resize(cells_.size() + columns.size());
    storeCells(record, cells);
    ids_.push_back(id);
    removed_.push_back(false);
    return record;
}

void ReportControl::replaceRecord(std::size_t record, std::span<const std::string_view> cells) {
    if (record >= ids_.size()) throw std::out_of_range("ReportControl: no such record");
    storeCells(record, cells);
}

void ReportControl::removeRecord(std::size_t record) {
    if (removed_.at(record)) return;
    removed_[record] = true;
    ++removedCount_;
}

void ReportControl::clearRecords() {
    text_.clear();
    cells_.clear();
    ids_.clear();
    removed_.clear();
    removedCount_ = 0;
    rows_.clear();
    selected_.clear();
    focusedRow_.reset();
}

void ReportControl::reserve(std::size_t records, std::size_t textBytes) {
    text_.reserve(text_.size() + textBytes);
    cells_.reserve(cells_.size() + records * columns.size());
    ids_.reserve(ids_.size() + records);
    removed_.reserve(removed_.size() + records);
}

std::int32_t ReportControl::id(std::size_t record) const {
    return ids_.at(record);
}

std::string_view ReportControl::cell(std::size_t record, std::size_t column) const {
    if (column >= columns.size()) throw std::out_of_range("ReportControl: no such column");
    const Text& text = cells_.at(record * columns.size() + column);
    return std::string_view(text_).substr(text.offset, text.length);
}

std::optional<std::size_t> ReportControl::findRecord(std::int32_t id) const {
    for (std::size_t i = 0; i < ids_.size(); ++i) {
        if (ids_[i] == id && !removed_[i]) return i;
    }
    return std::nullopt;
}

// Rows
// ------------------------------------------------------------------------------------------------------------

/// Closes the gaps that removed records left; returns each record's new index by its old one.
std::vector<std::uint32_t> ReportControl::compact() {
    std::vector<std::uint32_t> moved(ids_.size());
    std::size_t kept = 0;
    for (std::size_t i = 0; i < ids_.size(); ++i) {
        if (removed_[i]) {
            moved[i] = Row::noRecord;
            continue;
        }
        moved[i] = static_cast<std::uint32_t>(kept);
        ids_[kept] = ids_[i];
        std::copy_n(cells_.begin() + static_cast<std::ptrdiff_t>(i * columns.size()), columns.size(),
                    cells_.begin() + static_cast<std::ptrdiff_t>(kept * columns.size()));
        ++kept;
    }
    ids_.resize(kept);
    cells_.resize(kept * columns.size());
    removed_.assign(kept, false);
    removedCount_ = 0;
    return moved;
}

std::vector<std::uint32_t> ReportControl::orderedRecords() const {
    std::vector<std::uint32_t> order(ids_.size());
    std::iota(order.begin(), order.end(), 0U);
    const auto sortByText = [&](std::size_t column, bool descending) {
        std::ranges::stable_sort(order, [&](std::uint32_t a, std::uint32_t b) {
            const int compared = modSharedStrings::compareNoCase(cell(a, column), cell(b, column));
            return descending ? compared > 0 : compared < 0;
        });
    };
    if (sortOrder_ && sortOrder_->column < columns.size()) {
        const std::size_t column = sortOrder_->column;
        const bool descending = sortOrder_->descending;
        if (columns[column].numeric) {
            std::vector<double> keys(ids_.size());
            for (std::size_t i = 0; i < keys.size(); ++i) {
                keys[i] = parseNumber(cell(i, column)).value_or(-std::numeric_limits<double>::infinity());
            }
            std::ranges::stable_sort(order, [&](std::uint32_t a, std::uint32_t b) {
                return descending ? keys[a] > keys[b] : keys[a] < keys[b];
            });
        } else {
            sortByText(column, descending);
        }
    }
    if (groupColumn_ && *groupColumn_ < columns.size()) sortByText(*groupColumn_, false);
    return order;
}

void ReportControl::populate() {
    std::vector<bool> wasSelected(ids_.size());
    for (const std::size_t row : selected_) {
        if (!rows_[row].isGroup()) wasSelected[rows_[row].record] = true;
    }
    const bool hadFocus = focusedRow_.has_value();
    std::uint32_t focusedRecord = hadFocus ? rows_[*focusedRow_].record : Row::noRecord;
    // How many records that are still there stood before the focus: the place of its successor.
    const auto placeOfFocus =
        std::count_if(rows_.begin(), rows_.begin() + static_cast<std::ptrdiff_t>(focusedRow_.value_or(0)),
                      [&](const Row& row) { return !row.isGroup() && !removed_[row.record]; });

    if (removedCount_ > 0) {
        const auto moved = compact();
        std::vector<bool> stillSelected(ids_.size());
        for (std::size_t i = 0; i < wasSelected.size(); ++i) {
            if (wasSelected[i] && moved[i] != Row::noRecord) stillSelected[moved[i]] = true;
        }
        wasSelected = std::move(stillSelected);
        if (focusedRecord != Row::noRecord) focusedRecord = moved[focusedRecord];
    }

    rows_.clear();
    selected_.clear();
    focusedRow_.reset();
    rows_.reserve(ids_.size());
    const bool grouped = groupColumn_ && *groupColumn_ < columns.size();
    std::uint32_t before = Row::noRecord;
    std::ptrdiff_t place = 0;
    std::optional<std::size_t> successor;
    for (const std::uint32_t record : orderedRecords()) {
        if (grouped &&
            (before == Row::noRecord || modSharedStrings::compareNoCase(cell(before, *groupColumn_),
                                                                        cell(record, *groupColumn_)) != 0)) {
            rows_.push_back({.firstOfGroup = record});
        }
        before = record;
        if (place++ <= placeOfFocus) successor = rows_.size();
        if (record == focusedRecord) focusedRow_ = rows_.size();
        if (wasSelected[record]) selected_.push_back(rows_.size());
        rows_.push_back({.record = record});
    }
    if (hadFocus && !focusedRow_) focusedRow_ = successor;
    changed();
}

std::optional<std::size_t> ReportControl::findRow(std::size_t record) const {
    const auto found = std::ranges::find(rows_, record, &Row::record);
    if (found == rows_.end()) return std::nullopt;
    return static_cast<std::size_t>(found - rows_.begin());
}

std::string_view ReportControl::rowText(std::size_t row, std::size_t column) const {
    const Row& shown = rows_.at(row);
    if (!shown.isGroup()) return cell(shown.record, column);
    return column == 0 ? cell(shown.firstOfGroup, *groupColumn_) : std::string_view();
}

// Order
// -----------------------------------------------------------------------------------------------------------

void ReportControl::sortBy(std::optional<SortOrder> order) {
    sortOrder_ = order;
    populate();
}

void ReportControl::groupBy(std::optional<std::size_t> column) {
    groupColumn_ = column;
    populate();
}

void ReportControl::userClickHeader(std::size_t column) {
    if (column >= columns.size()) return;
    const bool again = sortOrder_ && sortOrder_->column == column;
    sortBy(SortOrder{column, again && !sortOrder_->descending});
    fire(onSelectionChanged);
}

// Selection
// -------------------------------------------------------------------------------------------------------

bool ReportControl::isSelected(std::size_t row) const {
    return std::ranges::binary_search(selected_, row);
}

void ReportControl::selectRow(std::size_t row) {
    if (row >= rows_.size()) throw std::out_of_range("ReportControl: no such row");
    selected_.assign(1, row);
    focusedRow_ = row;
    changed();
}

void ReportControl::clearSelection() {
    selected_.clear();
    focusedRow_.reset();
    changed();
}

void ReportControl::userSelect(std::span<const std::size_t> selected, std::optional<std::size_t> focused) {
    if (!enabled()) return;
    selected_.assign(selected.begin(), selected.end());
    std::erase_if(selected_, [&](std::size_t row) { return row >= rows_.size(); });
    focusedRow_ = focused && *focused < rows_.size() ? focused : std::nullopt;
    fire(onSelectionChanged);
}

void ReportControl::userSelectAll() {
    std::vector<std::size_t> all(rows_.size());
    std::iota(all.begin(), all.end(), std::size_t{0});
    const auto focused = focusedRow_ || all.empty() ? focusedRow_ : std::optional<std::size_t>(0);
    userSelect(all, focused);
    changed();
}

void ReportControl::userDoubleClick(std::size_t row) {
    if (!enabled() || row >= rows_.size() || !onRowDoubleClick) return;
    screen().handle([&] { onRowDoubleClick(row); });
}

void ReportControl::userInsertKey() {
    if (enabled()) fire(onInsertKey);
}

void ReportControl::userDeleteKey() {
    if (enabled()) fire(onDeleteKey);
}

void ReportControl::userContextMenu(std::size_t row) {
    if (!enabled() || !onContextMenu) return;
    screen().handle([&] { onContextMenu(row); });
}

Variant ReportControl::invoke(std::string_view member, Access access, Arguments arguments) {
    if (sameName(member, "RecordCount") && access != Access::Put) {
        return static_cast<std::int32_t>(recordCount());
    }
    return Control::invoke(member, access, arguments);
}

}  // namespace tsln
