#include "screens/ReportRecords.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace tsln {

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
    store(cells_.data() + record * columns_, cells);
}

void ReportRecords::store(Text* place, std::span<const std::string_view> cells) {
    const std::size_t given = std::min(cells.size(), columns_);
    std::size_t at = text_.size();
    std::size_t end = at;
    for (const std::string_view cell : cells.first(given))
        end += cell.size();
    if (end > std::numeric_limits<std::uint32_t>::max()) {
        throw std::length_error("The list holds more than 4 GB of text.");
    }
    text_.resize(end);
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
}

void ReportRecords::truncate(std::size_t count) {
    ids_.resize(std::min(count, ids_.size()));
    cells_.resize(ids_.size() * columns_);
}

void ReportRecords::clear() {
    text_.clear();
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
