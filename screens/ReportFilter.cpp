#include "screens/ReportFilter.h"

#include <algorithm>
#include <functional>
#include <string>

#include "shared/modSharedStrings.h"

namespace tsln {

ReportFilter::ReportFilter(const ReportRecords& records, const std::vector<ReportColumn>& columns) {
    std::vector<std::size_t> searched;
    for (std::size_t column = 0; column < columns.size(); ++column) {
        if (columns[column].kind != ReportColumn::Kind::Check) searched.push_back(column);
    }
    std::size_t most = 0;
    for (std::size_t record = 0; record < records.count(); ++record) {
        for (const std::size_t column : searched)
            most += modSharedStrings::sortKeySize(records.cell(record, column)) + 1;
    }
    texts_ = std::make_unique_for_overwrite<char[]>(most);
    starts_.reserve(records.count() + 1);
    char* at = texts_.get();
    for (std::size_t record = 0; record < records.count(); ++record) {
        starts_.push_back(static_cast<std::size_t>(at - texts_.get()));
        for (const std::size_t column : searched) {
            at = modSharedStrings::writeSortKey(at, records.cell(record, column));
            *at++ = '\0';  // keys contain no zero, so no match spans two cells
        }
    }
    starts_.push_back(static_cast<std::size_t>(at - texts_.get()));
}

std::vector<bool> ReportFilter::find(std::string_view text) const {
    std::vector<bool> found(starts_.size() - 1);
    std::string key(modSharedStrings::sortKeySize(text), '\0');
    key.resize(static_cast<std::size_t>(modSharedStrings::writeSortKey(key.data(), text) - key.data()));
    const std::boyer_moore_horspool_searcher search(key.begin(), key.end());
    const char* const end = texts_.get() + starts_.back();
    const char* at = texts_.get();
    for (std::size_t record = 0;; at = texts_.get() + starts_[record]) {
        const auto hit = static_cast<std::size_t>(std::search(at, end, search) - texts_.get());
        while (record < found.size() && starts_[record + 1] <= hit)
            ++record;
        if (record == found.size()) return found;
        found[record++] = true;
    }
}

}  // namespace tsln
