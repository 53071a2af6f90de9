#pragma once

#include <deque>
#include <string>
#include <string_view>

#include "maintenance/Field.h"
#include "maintenance/RecordDescription.h"

namespace tsln {

/// The template of the statement that adds the record: the description's own, or one generated from the fields'
/// columns and tags.
std::string insertStatement(std::string_view table, const RecordDescription& record,
                            const std::deque<Field>& fields);
/// The template of the statement that changes the row with the key "<id>", from the same sources.
std::string updateStatement(std::string_view table, const RecordDescription& record,
                            const std::deque<Field>& fields);

}  // namespace tsln
