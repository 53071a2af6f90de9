#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "shared/modSharedXML.h"
#include "bridge/HostPart.h"

namespace tsln {

using modSharedXML::Record;
using modSharedXML::Records;

/// The host's database service. Statements are complete SQL text with values made safe.
class Database : HostPart {
  public:
    explicit Database(Library& library) : HostPart(library, "Database") {}
    /// The rows of a SELECT.
    Records ExecuteRead(std::string_view sql) const;
    /// The same, as the text of the result's document.
    std::string ExecuteReadText(std::string_view sql) const;
    /// The first column of the first row. The member's name is spelled so. Which further arguments a caller
    /// passes is part of the call.
    Variant ExecuteScaler(std::string_view sql, std::string_view field, std::string_view otherwise) const;
    Variant ExecuteScaler(std::string_view sql) const;
    /// True when the statement ran.
    bool ExecuteNonQuery(std::string_view sql) const;
    /// The `ID` of the row that the INSERT made, less than 1 when it failed.
    std::int32_t ExecuteNonQueryWithID(std::string_view sql) const;
    std::string LastSQLErrorDescription() const;
};

}  // namespace tsln
