#pragma once

#include <span>
#include <string>
#include <vector>

#include "bridge/Connection.h"
#include "maintenance/ListDescription.h"
#include "screens/ReportRecords.h"
#include "shared/RowReader.h"

namespace tsln {

/// The rows of a list, in the form that its report control takes.
struct ListRows {
    ReportRecords records;
    std::vector<ReportControl::Style> styles;  ///< one per record; empty when all rows are plain
    ReportRecords kept;                        ///< by record the texts of further fields, which are not shown
};

/// Reads the rows of a query result, taking over its text: each row's `ID`, the columns as the list shows them, and the
/// fields to be kept. Text that is not XML raises HostError(code::fail).
ListRows readListRows(std::string text, std::span<const ListColumn> columns, const ListRowStyle& style = {},
                      modSharedXML::RowReader::Way way = modSharedXML::RowReader::Way::OnePass,
                      std::span<const std::string_view> kept = {});
/// Reads the rows of a recordset, from its current row to its end. May raise HostError.
ListRows readListRows(const Recordset& rows, std::span<const ListColumn> columns,
                      const ListRowStyle& style = {}, std::span<const std::string_view> kept = {});

}  // namespace tsln
