#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "screens/ReportColumns.h"
#include "screens/ReportRecords.h"

namespace tsln {

/// The texts of records, prepared for a search that ignores letter case as modSharedStrings::compareNoCase
/// does.
class ReportFilter {
  public:
    /// Copies the records' texts, except those of check boxes.
    ReportFilter(const ReportRecords& records, const std::vector<ReportColumn>& columns);

    /// For each record whether any of its texts contains `text`.
    std::vector<bool> find(std::string_view text) const;

  private:
    std::unique_ptr<char[]> texts_;    // of all records and columns in sequence, each zero-terminated
    std::vector<std::size_t> starts_;  // by record; the last element is the end of `texts_`
};

}  // namespace tsln
