#pragma once

#include <span>
#include <string>
#include <vector>

#include "bridge/Connection.h"
#include "maintenance/ListDescription.h"
#include "screens/ReportRecords.h"
#include "shared/RowReader.h"

namespace tsln {

/// The rows of a list as its report control takes them.
struct ListRows {
    ReportRecords records;
    std::vector<ReportControl::Style> styles;  ///< by record; empty where all rows are plain
};

/// The rows of a query result, whose text is taken over: their `ID` and the columns as the list shows them. Text that
/// is no XML raises HostError(code::fail).
ListRows readListRows(std::string text, std::span<const ListColumn> columns, const ListRowStyle& style = {},
                      modSharedXML::RowReader::Way way = modSharedXML::RowReader::Way::OnePass);
/// The rows of a recordset, from its current one to its end. May raise HostError.
ListRows readListRows(const Recordset& rows, std::span<const ListColumn> columns, const ListRowStyle& style = {});

}  // namespace tsln
