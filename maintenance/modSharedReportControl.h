#pragma once

#include <cstdint>
#include <optional>

#include "screens/ReportControl.h"

/// Functions of the list screens on their report control.
namespace tsln::modSharedReportControl {

/// True when at least one selected row is not a group row.
bool anySelected(const ReportControl& items);
/// True when a row that is not a group row has the focus and the selection is not empty.
bool oneFocused(const ReportControl& items);
/// The record of the focused row, if oneFocused().
std::optional<std::size_t> focusedRecord(const ReportControl& items);
/// The `ID` stored with the focused record, 0 without one.
std::int32_t selectedID(const ReportControl& items);

/// Asks for a file name and writes the rows as they are shown to this text file, in UTF-8: a line of captions, then
/// one line per row, columns separated by tabs. Tabs and line breaks in values become blanks.
/// `file` is the proposed name or path, and then the chosen path.
void saveAsText(ReportControl& items, std::string& file);

/// Arranges the columns as the user left them, by the layout kept under this key of the user's settings. A layout that
/// is missing or does not fit leaves the columns as they are defined.
void restoreColumnLayout(ReportControl& items, std::string_view key);
/// Keeps the widths, the order and the sort order of the columns under this key of the user's settings.
void saveColumnLayout(const ReportControl& items, std::string_view key);

}  // namespace tsln::modSharedReportControl
