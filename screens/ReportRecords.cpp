#include "screens/ReportRecords.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <stdexcept>

namespace tsln {
namespace {

constexpr double noSortValue = -std::numeric_limits<double>::infinity();
constexpr std::size_t leastToDrop = 1 << 20;  // bytes

}  // namespace

std::size_t ReportRecords::add(std::int32_t id, std::span<const std::string_view> cells) {
    const std::size_t record = ids_.size();
    cells_.resize(cells_.size() + columns_);
    ids_.push_back(id);
    try {
        store(cells_.data() + record * columns_, cells);
    } catch (...) {
        truncate(record);
        throw;
    }
    return record;
}

void ReportRecords::replace(std::size_t record, std::span<const std::string_view> cells) {
    if (record >= count()) throw std::out_of_range("ReportRecords: no such record");
    Text* const place = cells_.data() + record * columns_;
    const std::size_t before = std::accumulate(place, place + columns_, std::size_t{0},
                                               [](std::size_t sum, const Text& t) { return sum + t.length; });
    store(place, cells);
    unused_ += before;
    dropUnusedText();
    for (std::vector<double>& values : sortValues_) {
        if (record < values.size()) values[record] = noSortValue;
    }
}

void ReportRecords::setCell(std::size_t record, std::size_t column, std::string_view text) {
    if (column >= columns_ || record >= count()) throw std::out_of_range("ReportRecords: no such cell");
    Text& place = cells_[record * columns_ + column];
    if (text.size() <= place.length) {
        std::copy(text.begin(), text.end(), text_.begin() + place.offset);
        unused_ += place.length - text.size();
        place.length = static_cast<std::uint32_t>(text.size());
        return;
    }
    checkRoom(text.size());
    const std::size_t at = text_.size();
    text_.append(text);  // `text` may be a part of text_
    unused_ += place.length;
    place = {static_cast<std::uint32_t>(at), static_cast<std::uint32_t>(text.size())};
    dropUnusedText();
}

/// Packs the texts once half of their bytes are unused. So the cost of a setCell() stays proportional to the
/// length of its text on average.
void ReportRecords::dropUnusedText() {
    if (unused_ < leastToDrop || unused_ < text_.size() / 2) return;
    std::string used;
    used.reserve(text_.size() - std::min(unused_, text_.size()));
    for (Text& cell : cells_) {
        const std::size_t at = used.size();
        used.append(text_, cell.offset, cell.length);
        cell.offset = static_cast<std::uint32_t>(at);
    }
    text_ = std::move(used);
    unused_ = 0;
}

void ReportRecords::setSortValue(std::size_t record, std::size_t column, double value) {
    if (column >= columns_ || record >= count()) throw std::out_of_range("ReportRecords: no such cell");
    sortValues_.resize(columns_);
    std::vector<double>& values = sortValues_[column];
    if (values.size() <= record) values.resize(count(), noSortValue);
    values[record] = value;
}

double ReportRecords::sortValue(std::size_t record, std::size_t column) const {
    if (column >= columns_ || record >= count()) throw std::out_of_range("ReportRecords: no such cell");
    if (hasSortValues(column) && record < sortValues_[column].size()) return sortValues_[column][record];
    return noSortValue;
}

bool ReportRecords::hasSortValues(std::size_t column) const {
    return column < sortValues_.size() && !sortValues_[column].empty();
}

void ReportRecords::checkRoom(std::size_t bytes) const {
    if (bytes > std::numeric_limits<std::uint32_t>::max() - text_.size()) {
        throw std::length_error("The list holds more than 4 GB of text.");
    }
}

void ReportRecords::store(Text* place, std::span<const std::string_view> cells) {
    const std::size_t given = std::min(cells.size(), columns_);
    std::size_t at = text_.size();
    std::size_t bytes = 0;
    for (const std::string_view cell : cells.first(given))
        bytes += cell.size();
    checkRoom(bytes);
    text_.resize(at + bytes);
    for (const std::string_view cell : cells.first(given)) {
        *place++ = {static_cast<std::uint32_t>(at), static_cast<std::uint32_t>(cell.size())};
        cell.copy(text_.data() + at, cell.size());
        at += cell.size();
    }
    std::fill_n(place, columns_ - given, Text());
}

void ReportRecords::move(std::size_t from, std::size_t to) {
    if (from >= count() || to > from) throw std::out_of_range("ReportRecords: no such record");
    if (to == from) return;
    ids_[to] = ids_[from];
    std::copy_n(cells_.data() + from * columns_, columns_, cells_.data() + to * columns_);
    for (std::vector<double>& values : sortValues_) {
        if (to >= values.size()) continue;
        values[to] = noSortValue;
        if (from < values.size()) values[to] = values[from];
    }
}

void ReportRecords::truncate(std::size_t count) {
    ids_.resize(std::min(count, ids_.size()));
    cells_.resize(ids_.size() * columns_);
    for (std::vector<double>& values : sortValues_)
        values.resize(std::min(values.size(), ids_.size()));
}

void ReportRecords::clear() {
    text_.clear();
    sortValues_.clear();
    unused_ = 0;
    cells_.clear();
    ids_.clear();
}

void ReportRecords::reserve(std::size_t records, std::size_t textBytes) {
    text_.reserve(textBytes);
    cells_.reserve(records * columns_);
    ids_.reserve(records);
}

std::string_view ReportRecords::cell(std::size_t record, std::size_t column) const {
    if (column >= columns_ || record >= count()) throw std::out_of_range("ReportRecords: no such cell");
    const Text& text = cells_[record * columns_ + column];
    return {text_.data() + text.offset, text.length};
}

}  // namespace tsln
