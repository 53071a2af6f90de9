#include "screens/ReportColumns.h"

#include <algorithm>
#include <charconv>

namespace tsln {
namespace {

// "Name,200,+;Due days,65": caption, width and, for the sort column, the direction.
constexpr char betweenColumns = ';';
constexpr char betweenParts = ',';
constexpr char escape = '\\';
constexpr std::string_view ascending = "+";
constexpr std::string_view descending = "-";

constexpr int leastWidth = 5;
constexpr int mostWidth = 5000;

void appendEscaped(std::string& text, std::string_view part) {
    for (const char c : part) {
        if (c == betweenColumns || c == betweenParts || c == escape) text += escape;
        text += c;
    }
}

/// For each column in the text its parts, unescaped.
std::vector<std::vector<std::string>> split(std::string_view text) {
    std::vector<std::vector<std::string>> columns{{""}};
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == betweenColumns) {
            columns.push_back({""});
        } else if (text[i] == betweenParts) {
            columns.back().emplace_back();
        } else {
            if (text[i] == escape && i + 1 < text.size()) ++i;
            columns.back().back() += text[i];
        }
    }
    return columns;
}

}  // namespace

std::string columnLayoutText(const std::vector<ReportColumn>& columns, const ColumnLayout& layout) {
    std::string text;
    for (const std::size_t column : layout.order) {
        if (!text.empty()) text += betweenColumns;
        appendEscaped(text, columns[column].caption);
        text += betweenParts + std::to_string(layout.widths[column]);
        if (!layout.sort || layout.sort->column != column) continue;
        text += betweenParts;
        text += layout.sort->descending ? descending : ascending;
    }
    return text;
}

void readColumnLayout(std::string_view text, const std::vector<ReportColumn>& columns, ColumnLayout& layout) {
    std::vector<std::size_t> left = layout.order;
    std::vector<std::size_t> named;
    for (const std::vector<std::string>& parts : split(text)) {
        const auto found =
            std::ranges::find(left, parts[0], [&](std::size_t column) { return columns[column].caption; });
        if (found == left.end() || parts.size() < 2) continue;
        const std::size_t column = *found;
        left.erase(found);
        named.push_back(column);
        int width = 0;
        const char* const end = parts[1].data() + parts[1].size();
        const auto [stop, error] = std::from_chars(parts[1].data(), end, width);
        if (error == std::errc() && stop == end && width >= leastWidth && width <= mostWidth &&
            columns[column].resizable) {
            layout.widths[column] = width;
        }
        if (parts.size() > 2 && (parts[2] == ascending || parts[2] == descending))
            layout.sort = SortOrder{column, parts[2] == descending};
    }
    named.insert(named.end(), left.begin(), left.end());
    layout.order = std::move(named);
}

}  // namespace tsln
