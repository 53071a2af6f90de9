#include "bridge/Host.h"

#include "bridge/Library.h"

namespace tsln {
namespace {

ObjectPtr sharedCodeOf(Library& library) {
    if (ObjectPtr sharedCode = library.SharedCodeLibrary()) return sharedCode;
    throw HostError(code::objectNotSet, "Library", "The library has not been initialized.");
}

}  // namespace

ObjectPtr HostPart::fetch() const {
    if (ObjectPtr part = sharedCodeOf(library_)->get(name_).toObject()) return part;
    throw HostError(code::objectNotSet, "Library", "The host offers no " + std::string(name_) + " object.");
}

Records Database::ExecuteRead(std::string_view sql) const {
    return modSharedXML::readRecords(call("ExecuteRead", sql));
}

Variant Database::ExecuteScaler(std::string_view sql, std::string_view field,
                                std::string_view otherwise) const {
    return call("ExecuteScaler", sql, field, otherwise);
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

bool Common::RecordExists(std::string_view table, std::string_view column, std::string_view value,
                          std::int32_t ID) const {
    return call("RecordExists", table, column, value, ID).toBoolean();
}

bool Security::CanDo(std::int32_t area, Right right) const {
    return call("CanDo", area, static_cast<std::int32_t>(right)).toBoolean();
}

ObjectPtr Host::sharedCode() const {
    return sharedCodeOf(library_);
}

std::string Host::PSDFile() const {
    return sharedCode()->get("PSDFile").toText();
}

void Host::ShowAndLogErrorMessage(std::string_view message, std::string_view explanation,
                                  std::string_view detail) const {
    sharedCode()->call("ShowAndLogErrorMessage", message, explanation, detail);
}

void Host::ShowMessageStyle1(std::string_view message, std::string_view advice) const {
    sharedCode()->call("ShowMessageStyle1", message, advice);
}

}  // namespace tsln
