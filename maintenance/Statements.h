#pragma once

#include <deque>
#include <string>
#include <string_view>

#include "maintenance/Field.h"
#include "maintenance/RecordDescription.h"

namespace tsln {

/// The template of the statement that adds the record: the description's, or one made of its fields' columns and tags.
std::string insertStatement(std::string_view table, const RecordDescription& record,
                            const std::deque<Field>& fields);
/// The template of the statement that changes the row whose key is "<id>", likewise.
std::string updateStatement(std::string_view table, const RecordDescription& record,
                            const std::deque<Field>& fields);

}  // namespace tsln
