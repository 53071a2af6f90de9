#pragma once

#include <span>
#include <string>

#include "maintenance/ListDescription.h"
#include "screens/ReportRecords.h"

namespace tsln::bench {

/// Parses the text with libxml2 and evaluates a precompiled XPath for each column of each row.
ReportRecords fillByLibxml2(const std::string& text, std::span<const ListColumn> columns);

}  // namespace tsln::bench
