#include "workbench/host/DatabaseObject.h"

#include "shared/modSharedXML.h"
#include "workbench/host/QueryDocument.h"
#include "workbench/host/TextOf.h"

namespace tsln::workbench {
namespace {

/// The error code of a refusal by the host itself.
constexpr int hostRefusal = -1;

bool isInsert(std::string_view sql) {
    constexpr std::string_view word = "INSERT";
    const std::size_t begin = sql.find_first_not_of(" \t\r\n");
    return begin != sql.npos && sql.size() - begin > word.size() &&
           sameName(sql.substr(begin, word.size()), word);
}

}  // namespace

void DatabaseObject::keep(const SqlError& error) {
    context().lastSqlError = {error.code(), error.what()};
}

Variant DatabaseObject::ExecuteRead(Arguments a) {
    a.require(1, 1);
    return makeQueryDocument(context().company.read(a[0].toText()));
}

Variant DatabaseObject::ExecuteScaler(Arguments a) {
    a.require(1, 3);
    const std::string sql = a[0].toText();
    const std::string field = textOf(a.valueOr(1, ""));
    Variant value;
    if (field.empty()) {
        value = context().company.scalar(sql);
    } else {
        const auto rows = modSharedXML::Records::parse(context().company.read(sql));
        if (const auto text = modSharedXML::readText(field, rows.first()); !text.empty()) value = text;
    }
    // Callers convert the result at once, and a Null cannot be converted.
    const bool none = value.isEmpty() || value.isNull();
    return none ? a.valueOr(2, Variant()) : value;
}

Variant DatabaseObject::ExecuteNonQuery(Arguments a) {
    a.require(1, 1);
    try {
        context().company.execute(a[0].toText());
        return true;
    } catch (const SqlError& error) {
        keep(error);
        return false;
    }
}

Variant DatabaseObject::ExecuteNonQueryWithID(Arguments a) {
    a.require(1, 1);
    try {
        const std::string sql = a[0].toText();
        if (!isInsert(sql)) throw SqlError(hostRefusal, "Only an INSERT makes a row with an identifier.");
        if (context().company.execute(sql) < 1) throw SqlError(hostRefusal, "The statement inserted no row.");
        return context().company.lastInsertId();
    } catch (const SqlError& error) {
        keep(error);
        return 0;
    }
}

Variant DatabaseObject::invoke(std::string_view member, Access access, Arguments arguments) {
    using Self = DatabaseObject;
    static constexpr Member<Self> members[] = {
        {"ExecuteRead", [](Self& self, Arguments a) { return self.ExecuteRead(a); }},
        {"ExecuteScaler", [](Self& self, Arguments a) { return self.ExecuteScaler(a); }},
        {"ExecuteNonQuery", [](Self& self, Arguments a) { return self.ExecuteNonQuery(a); }},
        {"ExecuteNonQueryWithID", [](Self& self, Arguments a) { return self.ExecuteNonQueryWithID(a); }},
        {"LastSQLError", [](Self& self, Arguments) { return Variant(self.context().lastSqlError.code); }},
        {"LastSQLErrorDescription",
         [](Self& self, Arguments) { return Variant(self.context().lastSqlError.text); }},
    };
    try {
        return invokeMember<Self>(*this, "Database", members, member, access, arguments);
    } catch (const SqlError& error) {
        keep(error);
        throw HostError(code::fail, "Database", error.what());
    }
}

}  // namespace tsln::workbench
