#include "screens/ReportRecords.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace tsln {

std::size_t ReportRecords::add(std::int32_t id, std::span<const std::string_view> cells) {
    const std::size_t record = ids_.size();
    cells_.resize(cells_.size() + columns_);
    store(cells_.data() + record * columns_, cells);
    ids_.push_back(id);
    return record;
}

void ReportRecords::replace(std::size_t record, std::span<const std::string_view> cells) {
    if (record >= count()) throw std::out_of_range("ReportRecords: no such record");
    store(cells_.data() + record * columns_, cells);
}

void ReportRecords::store(Text* place, std::span<const std::string_view> cells) {
    for (std::size_t c = 0; c < columns_; ++c) {
        const std::string_view cell = c < cells.size() ? cells[c] : std::string_view();
        if (text_.size() + cell.size() > std::numeric_limits<std::uint32_t>::max()) {
            throw std::length_error("The list holds more than 4 GB of text.");
        }
        place[c] = {static_cast<std::uint32_t>(text_.size()), static_cast<std::uint32_t>(cell.size())};
        text_.append(cell);
    }
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
