#include "maintenance/ListRows.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace tsln {
namespace {

using modSharedXML::RowReader;

constexpr std::size_t sample = 64;  // rows by which the room for all of them is reckoned
constexpr std::size_t spare = 32;   // of the reckoned room one part in so many is added

/// What a column shows in place of its field's text; nothing where it shows just that.
std::optional<std::string_view> shownInstead(const ListColumn& column, const RowReader& rows,
                                             std::size_t field) {
    if (column.show == ListColumn::Show::YesNo) return rows.readBoolean(field) ? "Yes" : "No";
    const auto choice = std::ranges::find(column.choices, rows.readLong(field), &Choice::number);
    if (choice == column.choices.end()) return std::nullopt;
    return choice->caption;
}

bool showsItsText(const ListColumn& column) {
    return column.show == ListColumn::Show::Text || column.show == ListColumn::Show::Number;
}

void makeRoom(ReportRecords& records, std::size_t expected) {
    const auto withSpare = [](std::size_t size) { return size + size / spare; };
    records.reserve(withSpare(expected), withSpare(records.textBytes() * expected / records.count()));
}

}  // namespace

ReportRecords readListRows(std::string text, std::span<const ListColumn> columns, RowReader::Way way) {
    std::vector<std::string_view> fields{"ID"};
    for (const ListColumn& column : columns)
        fields.push_back(column.field);
    RowReader rows(std::move(text), fields, way);
    ReportRecords records(columns.size());
    std::vector<std::string_view> cells;
    const bool asTheyAre = std::ranges::all_of(columns, showsItsText);
    while (rows.next()) {
        std::span<const std::string_view> shown = rows.texts().subspan(1);
        if (!asTheyAre) {
            cells.assign(shown.begin(), shown.end());
            for (std::size_t i = 0; i < columns.size(); ++i) {
                if (!showsItsText(columns[i]))
                    cells[i] = shownInstead(columns[i], rows, i + 1).value_or(cells[i]);
            }
            shown = cells;
        }
        records.add(rows.readLong(0), shown);
        if (records.count() == sample) makeRoom(records, rows.expectedRows());
    }
    return records;
}

}  // namespace tsln
