#pragma once

#include <span>
#include <string>

#include "maintenance/ListDescription.h"
#include "screens/ReportRecords.h"

namespace tsln::bench {

/// Makes libxml2's document of it and asks an XPath, compiled beforehand, for each column of each row.
ReportRecords fillByLibxml2(const std::string& text, std::span<const ListColumn> columns);

}  // namespace tsln::bench
