#include "workbench/company/Schema.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include <SQLiteCpp/SQLiteCpp.h>

#include "automation/EmbeddedFile.h"

namespace tsln::workbench {

std::span<const EmbeddedFile> schemaFiles();

namespace schema {

namespace {

constexpr const char* currentTime = "(strftime('%Y-%m-%dT%H:%M:%S', 'now'))";
constexpr const char* newUniqueId =
    "(hex(randomblob(4)) || '-' || hex(randomblob(2)) || '-4' || substr(hex(randomblob(2)), 2) || '-A' || "
    "substr(hex(randomblob(2)), 2) || '-' || hex(randomblob(6)))";

/// The text of the files KIND.sql and, after it, KIND-ROOM.sql for each room that has its own.
std::string files(std::string_view kind) {
    std::string base, further;
    for (const EmbeddedFile& file : schemaFiles()) {
        const std::string_view name = file.name;
        if (name == std::string(kind) + ".sql") base += file.text;
        if (name.starts_with(std::string(kind) + "-")) further += file.text;
    }
    if (base.empty()) throw std::logic_error("No embedded file " + std::string(kind) + ".sql");
    return base + further;
}

void replaceAll(std::string& text, std::string_view what, std::string_view by) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size()) {
        text.replace(at, what.size(), by);
    }
}

/// Replaces the names of column definitions that occur in every table.
void define(std::string& sql) {
    replaceAll(sql, "{uniqueid}", newUniqueId);
    replaceAll(sql, "{id}", "ID INTEGER PRIMARY KEY AUTOINCREMENT");
    replaceAll(sql, "{text}", "TEXT COLLATE NOCASE");
    replaceAll(sql, "{now}", currentTime);
}

std::string tables() {
    std::string sql = files("tables");
    replaceAll(sql, "{bookkeeping}",
               "UniqueID {text} NOT NULL DEFAULT {uniqueid}, AddedOn TEXT NOT NULL DEFAULT {now}, "
               "UpdatedOn TEXT NOT NULL DEFAULT {now}");
    define(sql);
    return sql;
}

/// Returns the first column of the query's rows.
std::vector<std::string> texts(SQLite::Database& database, const std::string& sql) {
    std::vector<std::string> result;
    SQLite::Statement statement(database, sql);
    while (statement.executeStep())
        result.push_back(statement.getColumn(0).getString());
    return result;
}

/// Adds triggers that keep UpdatedOn current, to every table with this column.
void addUpdateTriggers(SQLite::Database& database) {
    const char* tablesWithColumn =
        "SELECT t.name FROM sqlite_schema t JOIN pragma_table_info(t.name) c "
        "WHERE t.type = 'table' AND c.name = 'UpdatedOn'";
    for (const std::string& name : texts(database, tablesWithColumn)) {
        std::string trigger =
            "CREATE TRIGGER \"{table}_Updated\" AFTER UPDATE ON \"{table}\" WHEN NEW.UpdatedOn IS OLD.UpdatedOn "
            "BEGIN UPDATE \"{table}\" SET UpdatedOn = {now} WHERE ID = NEW.ID; END";
        replaceAll(trigger, "{table}", name);
        replaceAll(trigger, "{now}", currentTime);
        database.exec(trigger);
    }
}

/// Columns that tables have from a version on. A missing table is created with them.
struct AddedColumn {
    int since;
    const char *table, *name, *definition;
};
constexpr AddedColumn addedColumns[] = {
    {2, "Vendors", "Locked", "INTEGER NOT NULL DEFAULT 0"},
    {7, "Accounts", "Description", "TEXT COLLATE NOCASE"},
};

/// Columns that tables no longer have from a version on.
struct DroppedColumn {
    int since;
    const char *table, *name;
    const char* trigger;  ///< the trigger that maintains the column
};
constexpr DroppedColumn droppedColumns[] = {
    {3, "Vendors", "UpdatedOn", "Vendors_Updated"},
    {5, "Employees", "UpdatedOn", "Employees_Updated"},
};

bool hasColumn(SQLite::Database& database, const std::string& table, const std::string& name) {
    const auto columns = texts(database, "SELECT name FROM pragma_table_info('" + table + "')");
    return std::ranges::find(columns, name) != columns.end();
}

/// Does nothing where the column is there already, or its table is missing.
void add(SQLite::Database& database, const AddedColumn& column) {
    const std::string table(column.table), name(column.name);
    if (database.tableExists(table) && !hasColumn(database, table, name))
        database.exec("ALTER TABLE " + table + " ADD COLUMN " + name + " " + column.definition);
}

void drop(SQLite::Database& database, const DroppedColumn& column) {
    database.exec("DROP TRIGGER IF EXISTS " + std::string(column.trigger));
    const std::string table(column.table), name(column.name);
    if (hasColumn(database, table, name)) database.exec("ALTER TABLE " + table + " DROP COLUMN " + name);
}

int versionOf(SQLite::Database& database) {
    return database.execAndGet("PRAGMA user_version").getInt();
}

void setVersion(SQLite::Database& database) {
    database.exec("PRAGMA user_version = " + std::to_string(version));
}

}  // namespace

void create(SQLite::Database& database) {
    SQLite::Transaction transaction(database);
    database.exec(tables());
    database.exec(files("views"));
    database.exec(files("demo"));
    addUpdateTriggers(database);
    database.exec("PRAGMA application_id = " + std::to_string(applicationId));
    setVersion(database);
    transaction.commit();
}

void create42(SQLite::Database& database, int customers) {
    std::string sql = files("version42");
    replaceAll(sql, "{customers}", std::to_string(customers));
    replaceAll(
        sql, "{dated}",
        "LastUpdated TEXT NOT NULL DEFAULT '2009-11-05T16:40:00', UniqueID {text} NOT NULL DEFAULT {uniqueid}");
    define(sql);
    SQLite::Transaction transaction(database);
    database.exec(sql);
    database.exec("PRAGMA application_id = " + std::to_string(applicationId42));
    transaction.commit();
}

void upgrade(SQLite::Database& database) {
    if (versionOf(database) >= version) return;
    SQLite::Database model(":memory:", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    model.exec(tables());
    model.exec(files("views"));
    addUpdateTriggers(model);

    SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
    const int before = versionOf(database);
    if (before >= version) return;  // another program has upgraded it
    // Views are rebuilt. Dropping a view drops its triggers.
    for (const std::string& view : texts(database, "SELECT name FROM sqlite_schema WHERE type = 'view'"))
        database.exec("DROP VIEW \"" + view + "\"");
    for (const AddedColumn& column : addedColumns) {
        if (before < column.since) add(database, column);
    }
    for (const DroppedColumn& column : droppedColumns) {
        if (before < column.since) drop(database, column);
    }
    const std::vector<std::string> there = texts(database, "SELECT name FROM sqlite_schema");
    SQLite::Statement parts(
        model,
        "SELECT name, sql FROM sqlite_schema "
        "WHERE sql IS NOT NULL AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY rowid");
    while (parts.executeStep()) {
        if (std::ranges::find(there, parts.getColumn(0).getString()) == there.end())
            database.exec(parts.getColumn(1).getString());
    }
    setVersion(database);
    transaction.commit();
}

}  // namespace schema

}  // namespace tsln::workbench
