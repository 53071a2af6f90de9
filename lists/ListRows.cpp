#include "lists/ListRows.h"

#include <algorithm>
#include <vector>

namespace tsln::lists {
namespace {

using modSharedXML::RowReader;

constexpr std::size_t sample = 64;  // rows by which the room for all of them is reckoned
constexpr std::size_t spare = 32;   // of the reckoned room one part in so many is added

std::string_view cell(const ListColumn& column, RowReader& rows, std::size_t field) {
    if (column.show == ListColumn::Show::YesNo) return rows.readBoolean(field) ? "Yes" : "No";
    if (column.show == ListColumn::Show::Choice) {
        const auto choice = std::ranges::find(column.choices, rows.readLong(field), &Choice::number);
        if (choice != column.choices.end()) return choice->caption;
    }
    return rows.text(field);
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
    std::vector<std::string_view> cells(columns.size());
    while (rows.next()) {
        for (std::size_t i = 0; i < columns.size(); ++i)
            cells[i] = cell(columns[i], rows, i + 1);
        records.add(rows.readLong(0), cells);
        if (records.count() == sample) makeRoom(records, rows.expectedRows());
    }
    return records;
}

}  // namespace tsln::lists
