#include "bridge/Database.h"

namespace tsln {

std::int32_t countOf(const Variant& answer) {
    if (answer.isEmpty() || answer.holds<bool>())
        throw HostError(code::typeMismatch, "ExecuteScaler", "ExecuteScaler answered with no count.");
    return answer.toLong();
}

Records Database::ExecuteRead(std::string_view sql) const {
    return modSharedXML::readRecords(call("ExecuteRead", sql));
}

std::string Database::ExecuteReadText(std::string_view sql) const {
    return modSharedXML::readDocument(call("ExecuteRead", sql));
}

Variant Database::ExecuteScaler(std::string_view sql, std::string_view field,
                                std::string_view otherwise) const {
    return call("ExecuteScaler", sql, field, otherwise);
}

Variant Database::ExecuteScaler(std::string_view sql) const {
    return call("ExecuteScaler", sql);
}

bool Database::ExecuteNonQuery(std::string_view sql) const {
    return call("ExecuteNonQuery", sql).toBoolean();
}

std::int32_t Database::ExecuteNonQueryWithID(std::string_view sql) const {
    return call("ExecuteNonQueryWithID", sql).toLong();
}

std::string Database::LastSQLErrorDescription() const {
    return call("LastSQLErrorDescription").toText();
}

}  // namespace tsln
