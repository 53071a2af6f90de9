#pragma once

#include <span>
#include <string>

#include "maintenance/ListDescription.h"
#include "screens/ReportRecords.h"
#include "shared/RowReader.h"

namespace tsln {

/// A query result's rows as the records of a list: their `ID` and the columns as the list shows them. Takes
/// the text over; text that is no XML raises HostError(code::fail).
ReportRecords readListRows(std::string text, std::span<const ListColumn> columns,
                           modSharedXML::RowReader::Way way = modSharedXML::RowReader::Way::OnePass);

}  // namespace tsln
