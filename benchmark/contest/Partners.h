#pragma once

#include <span>
#include <string>

#include "automation/Object.h"
#include "maintenance/ListDescription.h"
#include "screens/ReportRecords.h"

namespace tsln::bench {

// Other ways to read a query result.

/// Parses with pugixml in place and reads the text of every field. Returns the number of bytes read.
std::size_t visitByPugixml(std::string& text);
/// Returns the result as a document object that has created its nodes.
ObjectPtr parsedDocument(const std::string& text);
/// Reads such a document late-bound: the rows by "selectNodes", each column of each row by "selectSingleNode" and
/// "text".
ReportRecords fillLateBoundByName(Object& document, std::span<const ListColumn> columns);
/// Reads such a document late-bound by the rows' "childNodes", "nodeName" and "text": fewer and cheaper calls.
ReportRecords fillLateBoundByChild(Object& document, std::span<const ListColumn> columns);

}  // namespace tsln::bench
