#pragma once

#include <cstdint>
#include <optional>

#include "screens/ReportControl.h"

/// What the list screens ask of their list.
namespace tsln::modSharedReportControl {

/// True when at least one selected row is no group row.
bool anySelected(const ReportControl& items);
/// True when a row that is no group row has the focus and the selection is not empty.
bool oneFocused(const ReportControl& items);
/// The record of the focused row, if oneFocused().
std::optional<std::size_t> focusedRecord(const ReportControl& items);
/// The `ID` kept with the focused record, 0 when there is none.
std::int32_t selectedID(const ReportControl& items);

/// Lets the user name a text file and writes the rows to it as they are shown: a line of captions, then a
/// line per row, columns separated by a tab; tabs and line breaks within a value become blanks. UTF-8.
void saveAsText(ReportControl& items);

}  // namespace tsln::modSharedReportControl
