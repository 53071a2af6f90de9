#include "maintenance/Statements.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "shared/modSharedSQL.h"

namespace tsln {
namespace {

using modSharedSQL::format;

/// All columns with their tags, in the order of one of the statements.
std::vector<std::pair<std::string, std::string>> columnsInOrder(const std::deque<Field>& fields,
                                                                std::int8_t FieldDescription::*place) {
    std::vector<const Field*> ordered;
    ordered.reserve(fields.size());
    for (const Field& field : fields)
        ordered.push_back(&field);
    std::ranges::stable_sort(ordered, {}, [&](const Field* field) { return field->description().*place; });
    std::vector<std::pair<std::string, std::string>> columns;
    for (const Field* field : ordered)
        std::ranges::move(field->columns(), std::back_inserter(columns));
    return columns;
}

}  // namespace

std::string insertStatement(std::string_view table, const RecordDescription& record,
                            const std::deque<Field>& fields) {
    if (!record.insert.empty()) return std::string(record.insert);
    std::string names, values;
    for (const auto& [column, tag] : columnsInOrder(fields, &FieldDescription::insertPlace)) {
        if (!names.empty()) names += record.columnSeparator;
        names += column;
        values += (values.empty() ? "" : ", ") + tag;
    }
    return format("INSERT INTO {0} ({1}) {2}{3})", table, names, record.valuesKeyword, values);
}

std::string updateStatement(std::string_view table, const RecordDescription& record,
                            const std::deque<Field>& fields) {
    if (!record.update.empty()) return std::string(record.update);
    std::string assignments;
    for (const auto& [column, tag] : columnsInOrder(fields, &FieldDescription::updatePlace)) {
        if (!assignments.empty()) assignments += ", ";
        assignments.append(column).append(" = ").append(tag);
    }
    return format("UPDATE {0} SET {1} WHERE ID = <id>", table, assignments);
}

}  // namespace tsln
