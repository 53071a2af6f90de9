#pragma once

#include <span>
#include <string>

#include "automation/Object.h"
#include "maintenance/ListDescription.h"
#include "screens/ReportRecords.h"

namespace tsln::bench {

// Other ways to go through a query result.

/// Parses with pugixml, in place, and looks at the text of every field of every row. Returns the bytes seen.
std::size_t visitByPugixml(std::string& text);
/// The result as a document object that has made its nodes.
ObjectPtr parsedDocument(const std::string& text);
/// Asks such a document late-bound: the rows by "selectNodes", each column of each row by "selectSingleNode"
/// and "text".
ReportRecords fillLateBoundByName(Object& document, std::span<const ListColumn> columns);
/// The same by the rows' "childNodes", their "nodeName" and "text": fewer and cheaper calls.
ReportRecords fillLateBoundByChild(Object& document, std::span<const ListColumn> columns);

}  // namespace tsln::bench
