#include "screens/ReportControl.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>

#include "screens/RecordOrder.h"
#include "screens/Screen.h"

namespace tsln {

// Records ---------------------------------------------------------------------------------------------

std::size_t ReportControl::recordCount() const noexcept {
    return records_.count() - removedCount_;
}

std::size_t ReportControl::addRecord(std::int32_t id, std::span<const std::string_view> cells) {
    if (records_.columns() != columns.size() && records_.count() == 0) {
        records_ = ReportRecords(columns.size());
    }
    const std::size_t record = records_.add(id, cells);
    removed_.push_back(false);
    return record;
}

void ReportControl::replaceRecord(std::size_t record, std::span<const std::string_view> cells) {
    records_.replace(record, cells);
}

void ReportControl::removeRecord(std::size_t record) {
    if (removed_.at(record)) return;
    removed_[record] = true;
    ++removedCount_;
}

void ReportControl::clearRecords() {
    setRecords(ReportRecords(columns.size()));
}

void ReportControl::setRecords(ReportRecords records) {
    if (records.columns() != columns.size()) throw std::out_of_range("ReportControl: other columns");
    records_ = std::move(records);
    removed_.assign(records_.count(), false);
    removedCount_ = 0;
    rows_.clear();
    selected_.clear();
    focusedRow_.reset();
}

std::int32_t ReportControl::id(std::size_t record) const {
    return records_.id(record);
}

std::string_view ReportControl::cell(std::size_t record, std::size_t column) const {
    return records_.cell(record, column);
}

std::optional<std::size_t> ReportControl::findRecord(std::int32_t id) const {
    const std::vector<std::int32_t>& ids = records_.ids();
    for (std::size_t i = 0; i < ids.size(); ++i) {
        if (ids[i] == id && !removed_[i]) return i;
    }
    return std::nullopt;
}

// Rows ------------------------------------------------------------------------------------------------

/// Closes the gaps that removed records left; returns each record's new index by its old one.
std::vector<std::uint32_t> ReportControl::compact() {
    std::vector<std::uint32_t> moved(records_.count(), Row::noRecord);
    std::size_t kept = 0;
    for (std::size_t i = 0; i < moved.size(); ++i) {
        if (removed_[i]) continue;
        moved[i] = static_cast<std::uint32_t>(kept);
        records_.move(i, kept++);
    }
    records_.truncate(kept);
    removed_.assign(kept, false);
    removedCount_ = 0;
    return moved;
}

std::vector<std::uint32_t> ReportControl::orderedRecords() const {
    std::vector<std::uint32_t> order(records_.count());
    std::iota(order.begin(), order.end(), 0U);
    if (sortOrder_ && sortOrder_->column < columns.size()) {
        const auto sort = columns[sortOrder_->column].numeric ? sortByNumber : sortByText;
        sort(order, records_, sortOrder_->column, sortOrder_->descending);
    }
    return order;
}

void ReportControl::populate() {
    std::vector<bool> wasSelected(records_.count());
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
        std::vector<bool> stillSelected(records_.count());
        for (std::size_t i = 0; i < wasSelected.size(); ++i) {
            if (wasSelected[i] && moved[i] != Row::noRecord) stillSelected[moved[i]] = true;
        }
        wasSelected = std::move(stillSelected);
        if (focusedRecord != Row::noRecord) focusedRecord = moved[focusedRecord];
    }

    rows_.clear();
    selected_.clear();
    focusedRow_.reset();
    rows_.reserve(records_.count());
    std::vector<std::uint32_t> order = orderedRecords();
    std::vector<std::uint32_t> groups;  // by record
    if (groupColumn_ && *groupColumn_ < columns.size()) {
        groups = rankTexts(records_, *groupColumn_);
        sortByRank(order, groups);
    }
    std::uint32_t before = Row::noRecord;
    std::ptrdiff_t place = 0;
    std::optional<std::size_t> successor;
    for (const std::uint32_t record : order) {
        if (!groups.empty() && (before == Row::noRecord || groups[before] != groups[record])) {
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

// Order -----------------------------------------------------------------------------------------------

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

// Selection -------------------------------------------------------------------------------------------

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
