#pragma once

namespace SQLite {
class Database;
}

namespace tsln::workbench::schema {

/// Marks an SQLite file as a company (PRAGMA application_id).
inline constexpr int applicationId = 0x54534C4E;
/// PRAGMA user_version of the files that this program makes.
inline constexpr int version = 3;
/// The oldest version that upgrade() knows.
inline constexpr int oldestVersion = 1;

/// Makes tables, views and the demonstration company in an empty database. Throws SQLite::Exception.
void create(SQLite::Database& database);

/// Gives a company of an older version, from oldestVersion on, what it lacks: tables, columns, indexes and
/// the present views. Its rows stay as they are; nothing happens to one of this version. All or nothing.
/// Throws SQLite::Exception.
void upgrade(SQLite::Database& database);

}  // namespace tsln::workbench::schema
