#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "screens/ReportColumns.h"
#include "screens/ReportRecords.h"

namespace tsln {

/// The texts of records made ready for finding those that hold a text, without letter case as
/// modSharedStrings::compareNoCase has it.
class ReportFilter {
  public:
    /// Reads the records' texts; those of check boxes are left out.
    ReportFilter(const ReportRecords& records, const std::vector<ReportColumn>& columns);

    /// By record: whether any of its columns contains the text.
    std::vector<bool> find(std::string_view text) const;

  private:
    std::unique_ptr<char[]> texts_;    // of all columns and records one after another, a zero after each
    std::vector<std::size_t> starts_;  // by record, and the end of the last one
};

}  // namespace tsln
