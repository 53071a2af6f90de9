#include "maintenance/modSharedReportControl.h"

#include <algorithm>
#include <ostream>

#include "bridge/HostScreen.h"
#include "maintenance/TextFile.h"

namespace tsln::modSharedReportControl {
namespace {

struct LayoutPlace {
    std::string key, value;
};

/// Lists without a key of their own keep their columns with the values of their window.
LayoutPlace placeOf(const ReportControl& items, std::string_view key) {
    if (key.empty()) return {windowPositionKey(items.screen()), "Columns"};
    return {std::string(settingsKey) + "\\Column Layouts", std::string(key)};
}

void appendValue(std::string& line, std::string_view value) {
    for (const char c : value)
        line += c == '\t' || c == '\r' || c == '\n' ? ' ' : c;
}

void writeRows(std::ostream& file, const ReportControl& items) {
    std::string text;
    for (std::size_t c = 0; c < items.columns.size(); ++c) {
        if (c > 0) text += '\t';
        appendValue(text, items.columns[c].caption);
    }
    text += "\r\n";
    for (std::size_t row = 0; row < items.rowCount(); ++row) {
        for (std::size_t c = 0; c < items.columns.size(); ++c) {
            if (c > 0) text += '\t';
            appendValue(text, items.rowText(row, c));
        }
        text += "\r\n";
    }
    file << text;
}

}  // namespace

bool anySelected(const ReportControl& items) {
    return std::ranges::any_of(items.selectedRows(),
                               [&](std::size_t row) { return !items.row(row).isGroup(); });
}

bool oneFocused(const ReportControl& items) {
    return focusedRecord(items).has_value();
}

std::optional<std::size_t> focusedRecord(const ReportControl& items) {
    const auto focused = items.focusedRow();
    if (!focused || items.selectedRows().empty() || items.row(*focused).isGroup()) return std::nullopt;
    return items.row(*focused).record;
}

std::int32_t selectedID(const ReportControl& items) {
    const auto record = focusedRecord(items);
    return record ? items.id(*record) : 0;
}

void saveAsText(ReportControl& items, std::string& file) {
    saveTextFile(items.screen(), file, [&](std::ostream& stream) { writeRows(stream, items); });
}

void restoreColumnLayout(ReportControl& items, std::string_view key) {
    const LayoutPlace place = placeOf(items, key);
    if (const auto layout = items.screen().desktop().readSetting(place.key, place.value))
        items.setColumnLayout(*layout);
}

void saveColumnLayout(const ReportControl& items, std::string_view key) {
    const LayoutPlace place = placeOf(items, key);
    items.screen().desktop().writeSetting(place.key, place.value, items.columnLayout());
}

}  // namespace tsln::modSharedReportControl
