#include "workbench/company/Schema.h"

#include <stdexcept>
#include <string>
#include <vector>

#include <SQLiteCpp/SQLiteCpp.h>

#include "workbench/company/EmbeddedFile.h"

namespace tsln::workbench {

std::span<const EmbeddedFile> schemaFiles();

namespace schema {

namespace {

constexpr const char* currentTime = "(strftime('%Y-%m-%dT%H:%M:%S', 'now'))";
constexpr const char* newUniqueId =
    "(hex(randomblob(4)) || '-' || hex(randomblob(2)) || '-4' || substr(hex(randomblob(2)), 2) || '-A' || "
    "substr(hex(randomblob(2)), 2) || '-' || hex(randomblob(6)))";

std::string file(std::string_view name) {
    for (const EmbeddedFile& file : schemaFiles()) {
        if (file.name == name) return std::string(file.text);
    }
    throw std::logic_error("No embedded file " + std::string(name));
}

void replaceAll(std::string& text, std::string_view what, std::string_view by) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size()) {
        text.replace(at, what.size(), by);
    }
}

std::string tables() {
    std::string sql = file("tables.sql");
    replaceAll(sql, "{bookkeeping}",
               "UniqueID {text} NOT NULL DEFAULT " + std::string(newUniqueId) +
                   ", AddedOn TEXT NOT NULL DEFAULT {now}, "
                   "UpdatedOn TEXT NOT NULL DEFAULT {now}");
    replaceAll(sql, "{id}", "ID INTEGER PRIMARY KEY AUTOINCREMENT");
    replaceAll(sql, "{text}", "TEXT COLLATE NOCASE");
    replaceAll(sql, "{now}", currentTime);
    return sql;
}

/// Every table that says when its records changed keeps that by itself.
void addUpdateTriggers(SQLite::Database& database) {
    std::vector<std::string> names;
    SQLite::Statement statement(database,
                                "SELECT t.name FROM sqlite_schema t JOIN pragma_table_info(t.name) c "
                                "WHERE t.type = 'table' AND c.name = 'UpdatedOn'");
    while (statement.executeStep())
        names.push_back(statement.getColumn(0).getString());
    statement.reset();
    for (const std::string& name : names) {
        std::string trigger =
            "CREATE TRIGGER \"{table}_Updated\" AFTER UPDATE ON \"{table}\" "
            "WHEN NEW.UpdatedOn IS OLD.UpdatedOn BEGIN UPDATE \"{table}\" SET UpdatedOn = {now} WHERE ID = "
            "NEW.ID; END";
        replaceAll(trigger, "{table}", name);
        replaceAll(trigger, "{now}", currentTime);
        database.exec(trigger);
    }
}

}  // namespace

void create(SQLite::Database& database) {
    SQLite::Transaction transaction(database);
    database.exec(tables());
    database.exec(file("views.sql"));
    database.exec(file("demo.sql"));
    addUpdateTriggers(database);
    database.exec("PRAGMA application_id = " + std::to_string(applicationId));
    database.exec("PRAGMA user_version = " + std::to_string(version));
    transaction.commit();
}

}  // namespace schema

}  // namespace tsln::workbench
