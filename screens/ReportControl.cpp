#include "screens/ReportControl.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>
#include <utility>

#include "automation/NumericText.h"
#include "screens/RecordOrder.h"
#include "screens/Screen.h"

namespace tsln {

// Records ---------------------------------------------------------------------------------------------

std::size_t ReportControl::recordCount() const noexcept {
    return records_.count() - removedCount_;
}

/// Drops the order and the filter texts, which were built from the old records.
void ReportControl::recordsChanged() {
    order_.clear();
    filterTexts_.reset();
}

std::size_t ReportControl::addRecord(std::int32_t id, std::span<const std::string_view> cells) {
    if (records_.columns() != columns.size() && records_.count() == 0) {
        records_ = ReportRecords(columns.size());
    }
    const std::size_t record = records_.add(id, cells);
    removed_.push_back(false);
    recordsChanged();
    return record;
}

void ReportControl::replaceRecord(std::size_t record, std::span<const std::string_view> cells) {
    records_.replace(record, cells);
    recordsChanged();
}

void ReportControl::removeRecord(std::size_t record) {
    if (removed_.at(record)) return;
    removed_[record] = true;
    ++removedCount_;
    recordsChanged();
}

void ReportControl::clearRecords() {
    setRecords(ReportRecords(columns.size()));
}

void ReportControl::setRecords(ReportRecords records) {
    if (records.columns() != columns.size()) throw std::out_of_range("ReportControl: other columns");
    records_ = std::move(records);
    removed_.assign(records_.count(), false);
    removedCount_ = 0;
    styles_.clear();
    rows_.clear();
    ++rowsVersion_;
    selected_.clear();
    focusedRow_.reset();
    recordsChanged();
}

std::int32_t ReportControl::id(std::size_t record) const {
    return records_.id(record);
}

std::string_view ReportControl::cell(std::size_t record, std::size_t column) const {
    return records_.cell(record, column);
}

void ReportControl::setCell(std::size_t record, std::size_t column, std::string_view text) {
    records_.setCell(record, column, text);
    recordsChanged();
    changed();
}

void ReportControl::setSortValue(std::size_t record, std::size_t column, double value) {
    records_.setSortValue(record, column, value);
    recordsChanged();
}

bool ReportControl::checked(std::size_t record, std::size_t column) const {
    bool ticked = false;
    return readBoolean(cell(record, column), ticked) == Reading::Done && ticked;
}

std::optional<std::size_t> ReportControl::findRecord(std::int32_t id) const {
    const std::vector<std::int32_t>& ids = records_.ids();
    for (std::size_t i = 0; i < ids.size(); ++i) {
        if (ids[i] == id && !removed_[i]) return i;
    }
    return std::nullopt;
}

void ReportControl::setStyle(std::size_t record, Style style) {
    if (record >= records_.count()) throw std::out_of_range("ReportControl: no such record");
    if (styles_.size() <= record) styles_.resize(records_.count());
    styles_[record] = style;
    changed();
}

ReportControl::Style ReportControl::style(std::size_t record) const {
    return record < styles_.size() ? styles_[record] : Style();
}

// Rows ------------------------------------------------------------------------------------------------

/// Closes the gaps left by removed records. Returns, by old index, the new index of each record.
std::vector<std::uint32_t> ReportControl::compact() {
    std::vector<std::uint32_t> moved(records_.count(), Row::noRecord);
    std::size_t kept = 0;
    for (std::size_t i = 0; i < moved.size(); ++i) {
        if (removed_[i]) continue;
        moved[i] = static_cast<std::uint32_t>(kept);
        if (kept < styles_.size()) styles_[kept] = style(i);
        records_.move(i, kept++);
    }
    records_.truncate(kept);
    styles_.resize(std::min(styles_.size(), kept));
    removed_.assign(kept, false);
    removedCount_ = 0;
    return moved;
}

void ReportControl::makeOrder() {
    std::vector<std::uint32_t> order(records_.count());
    std::iota(order.begin(), order.end(), 0U);
    if (sortOrder_ && sortOrder_->column < columns.size()) {
        const std::size_t column = sortOrder_->column;
        const auto sort = records_.hasSortValues(column) ? sortByValue
                          : columns[column].numeric      ? sortByNumber
                                                         : sortByText;
        sort(order, records_, column, sortOrder_->descending);
    }
    groups_ = groupColumn() ? rankGroups() : std::vector<std::uint32_t>();
    if (groupColumn()) sortByRank(order, groups_);
    order_ = std::move(order);
}

/// For each record the rank of its group among the groups.
std::vector<std::uint32_t> ReportControl::rankGroups() const {
    if (!grouping_->before && grouping_->order == Grouping::Order::ByText)
        return rankTexts(records_, grouping_->column);
    TextNumbers texts = numberTexts(records_, grouping_->column);
    if (!grouping_->before) return std::move(texts.numbers);
    std::vector<std::uint32_t> numbers(texts.first.size());
    std::iota(numbers.begin(), numbers.end(), 0U);
    std::ranges::stable_sort(numbers, [&](std::uint32_t a, std::uint32_t b) {
        return grouping_->before(cell(texts.first[a], grouping_->column),
                                 cell(texts.first[b], grouping_->column));
    });
    std::vector<std::uint32_t> rankOf(numbers.size());
    for (std::size_t rank = 0; rank < numbers.size(); ++rank)
        rankOf[numbers[rank]] = static_cast<std::uint32_t>(rank);
    for (std::uint32_t& number : texts.numbers)
        number = rankOf[number];
    return std::move(texts.numbers);
}

/// For each record whether the filters show it.
std::vector<bool> ReportControl::shownRecords() {
    std::vector<bool> shown;
    if (filter_.empty()) {
        shown.assign(records_.count(), true);
    } else {
        if (!filterTexts_) filterTexts_.emplace(records_, columns);
        shown = filterTexts_->find(filter_);
    }
    for (std::size_t record = 0; filterPredicate_ && record < shown.size(); ++record) {
        if (shown[record]) shown[record] = filterPredicate_(record);
    }
    return shown;
}

void ReportControl::populate() {
    recordsChanged();  // the columns may have changed, too
    updateRows();
}

void ReportControl::updateRows() {
    try {
        makeRows();
    } catch (...) {  // thrown by the screen's group order or filter predicate
        changed();
        throw;
    }
    changed();
}

/// Leaves the control without rows when it throws.
void ReportControl::makeRows() {
    const std::vector<Row> before = std::exchange(rows_, {});
    const std::vector<std::size_t> selectedBefore = std::exchange(selected_, {});
    const std::optional<std::size_t> focusBefore = std::exchange(focusedRow_, std::nullopt);
    ++rowsVersion_;

    const auto moved = removedCount_ > 0 ? compact() : std::vector<std::uint32_t>();
    const auto recordNow = [&](const Row& row) {
        return row.isGroup() || moved.empty() ? row.record : moved[row.record];
    };
    if (order_.empty()) makeOrder();
    const std::vector<bool> shown = shownRecords();

    std::vector<bool> wasSelected(records_.count());
    for (const std::size_t row : selectedBefore) {
        const std::uint32_t record = recordNow(before[row]);
        if (record != Row::noRecord) wasSelected[record] = true;
    }
    const std::uint32_t focusedRecord = focusBefore ? recordNow(before[*focusBefore]) : Row::noRecord;
    // The number of records before the focus that are still shown: the position of the focus's successor.
    const auto placeOfFocus = std::count_if(
        before.begin(), before.begin() + static_cast<std::ptrdiff_t>(focusBefore.value_or(0)),
        [&](const Row& row) { return recordNow(row) != Row::noRecord && shown[recordNow(row)]; });

    rows_.reserve(records_.count());
    std::uint32_t previous = Row::noRecord;
    std::ptrdiff_t place = 0;
    std::optional<std::size_t> successor;
    for (const std::uint32_t record : order_) {
        if (!shown[record]) continue;
        if (!groups_.empty() && (previous == Row::noRecord || groups_[previous] != groups_[record])) {
            rows_.push_back({.firstOfGroup = record});
        }
        previous = record;
        if (place++ <= placeOfFocus) successor = rows_.size();
        if (record == focusedRecord) focusedRow_ = rows_.size();
        if (wasSelected[record]) selected_.push_back(rows_.size());
        rows_.push_back({.record = record});
    }
    if (focusBefore && !focusedRow_) focusedRow_ = successor;
}

std::optional<std::size_t> ReportControl::findRow(std::size_t record) const {
    const auto found = std::ranges::find(rows_, record, &Row::record);
    if (found == rows_.end()) return std::nullopt;
    return static_cast<std::size_t>(found - rows_.begin());
}

std::string_view ReportControl::rowText(std::size_t row, std::size_t column) const {
    const Row& shown = rows_.at(row);
    if (!shown.isGroup()) return cell(shown.record, column);
    if (column != 0) return {};
    const std::string_view text = cell(shown.firstOfGroup, grouping_->column);
    return text.empty() ? grouping_->emptyText : text;
}

// Filter ----------------------------------------------------------------------------------------------

void ReportControl::setFilter(std::string text) {
    if (text == filter_ && filter_.empty()) return;
    filter_ = std::move(text);
    updateRows();
}

void ReportControl::setFilterPredicate(std::function<bool(std::size_t)> shows) {
    filterPredicate_ = std::move(shows);
    updateRows();
}

// Order -----------------------------------------------------------------------------------------------

void ReportControl::sortBy(std::optional<SortOrder> order) {
    sortOrder_ = order;
    populate();
}

void ReportControl::groupBy(std::optional<std::size_t> column) {
    if (column) return groupBy(Grouping{.column = *column});
    grouping_.reset();
    populate();
}

void ReportControl::groupBy(Grouping grouping) {
    grouping_ = std::move(grouping);
    populate();
}

std::optional<std::size_t> ReportControl::groupColumn() const noexcept {
    if (!grouping_ || grouping_->column >= columns.size()) return std::nullopt;
    return grouping_->column;
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
    if (!enabled()) return;
    if (row < rows_.size() ? !isSelected(row) : !selected_.empty()) {
        if (row < rows_.size()) {
            selectRow(row);
        } else {
            clearSelection();
        }
        fire(onSelectionChanged);
    }
    if (!onContextMenu) return;
    screen().handle([&] { onContextMenu(row); });
}

Variant ReportControl::invoke(std::string_view member, Access access, Arguments arguments) {
    if (sameName(member, "RecordCount") && access != Access::Put) {
        return static_cast<std::int32_t>(recordCount());
    }
    return Control::invoke(member, access, arguments);
}

}  // namespace tsln
