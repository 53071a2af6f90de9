#pragma once

namespace SQLite {
class Database;
}

namespace tsln::workbench::schema {

/// Marks an SQLite file as a company (PRAGMA application_id).
inline constexpr int applicationId = 0x54534C4E;
/// PRAGMA user_version of the files that this program makes, the only one it reads so far.
inline constexpr int version = 2;

/// Makes tables, views and the demonstration company in an empty database. Throws SQLite::Exception.
void create(SQLite::Database& database);

}  // namespace tsln::workbench::schema
