#include "desktop/ReportTexts.h"

#include <algorithm>

#include <wx/window.h>

#include "desktop/Text.h"

namespace tsln::desktop {
namespace {

constexpr int headerPadding = 28;  // around a column's caption, so that it and a sort arrow are shown whole
constexpr std::size_t mostShown = 1000;  // bytes of a cell that are drawn; no column is wider

}  // namespace

wxString onOneLine(std::string_view text) {
    if (text.size() > mostShown) {
        std::size_t end = mostShown;
        while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80)
            --end;  // whole characters
        text = text.substr(0, end);
    }
    wxString shown = toWx(text);
    shown.Replace("\r\n", " ");
    shown.Replace("\n", " ");
    shown.Replace("\r", " ");
    return shown;
}

wxString shownText(const ReportControl& report, std::size_t row, std::size_t column) {
    const ReportControl::Row& shown = report.row(row);
    if (!shown.isGroup() && report.columns[column].kind == ReportColumn::Kind::Check)
        return report.checked(shown.record, column) ? wxString("Yes") : wxString();
    return onOneLine(report.rowText(row, column));
}

void GroupTexts::count() {
    rows_.clear();
    if (!report_.groupColumn()) return;
    for (std::size_t row = 0; row < report_.rowCount(); ++row) {
        if (report_.row(row).isGroup()) rows_.push_back(static_cast<std::uint32_t>(row));
    }
}

wxString GroupTexts::text(std::size_t row) const {
    const wxString text = toWx(report_.rowText(row, 0));
    const auto group = std::ranges::lower_bound(rows_, row);
    if (group == rows_.end() || *group != row) return text;
    const std::size_t next = group + 1 == rows_.end() ? report_.rowCount() : group[1];
    return wxString::Format("%s (%zu)", text, next - row - 1);
}

int naturalWidth(const wxWindow& window, const ReportControl::Column& column) {
    return std::max(window.FromDIP(column.width),
                    window.GetTextExtent(toWx(column.caption)).x + window.FromDIP(headerPadding));
}

int naturalWidth(const wxWindow& window, const ReportControl& report) {
    int wide = 0;
    for (const ReportControl::Column& column : report.columns)
        wide += naturalWidth(window, column);
    return wide;
}

std::size_t stretchedColumn(const ReportControl& report) {
    const std::vector<std::size_t> order = report.columnOrder();
    const auto found =
        std::ranges::find_if(order, [&](std::size_t column) { return !report.columns[column].rightAligned; });
    return found == order.end() ? order.front() : *found;
}

std::optional<std::size_t> findText(const ReportControl& report, const wxString& start, std::size_t from) {
    const std::size_t column = report.sortOrder() ? report.sortOrder()->column : 0;
    const std::size_t count = report.rowCount();
    for (std::size_t i = 0; i < count && column < report.columns.size(); ++i) {
        const std::size_t row = (from + i) % count;
        if (report.row(row).isGroup()) continue;
        const std::string_view text = report.rowText(row, column);
        if (toWx(text).Left(start.size()).IsSameAs(start, false)) return row;
    }
    return std::nullopt;
}

}  // namespace tsln::desktop
