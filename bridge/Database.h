#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "bridge/HostPart.h"
#include "shared/modSharedXML.h"

namespace tsln {

using modSharedXML::Record;
using modSharedXML::Records;

/// Returns the answer to a SELECT COUNT(*). Raises HostError(code::typeMismatch) for an answer that is no count: read as 0,
/// it would delete what is in use, or add what is there.
std::int32_t countOf(const Variant& answer);

/// The host's database service. Statements are complete SQL text; values in them have been made safe.
class Database : HostPart {
  public:
    explicit Database(Library& library) : HostPart(library, "Database") {}
    /// Returns the rows of a SELECT.
    Records ExecuteRead(std::string_view sql) const;
    /// Returns the rows of a SELECT as the text of the result's document.
    std::string ExecuteReadText(std::string_view sql) const;
    /// Returns the first column of the first row. "Scaler" is the host's spelling. `field` and `otherwise` are passed
    /// to the host unchanged.
    Variant ExecuteScaler(std::string_view sql, std::string_view field, std::string_view otherwise) const;
    Variant ExecuteScaler(std::string_view sql) const;
    /// Returns true when the statement succeeded.
    bool ExecuteNonQuery(std::string_view sql) const;
    /// Returns the `ID` of the row that the INSERT added, less than 1 when it failed.
    std::int32_t ExecuteNonQueryWithID(std::string_view sql) const;
    std::string LastSQLErrorDescription() const;
};

}  // namespace tsln
