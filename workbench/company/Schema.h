#pragma once

namespace SQLite {
class Database;
}

namespace tsln::workbench::schema {

/// Identifies an SQLite file as a company (PRAGMA application_id), or as one of version 4.2.
inline constexpr int applicationId = 0x54534C4E;
inline constexpr int applicationId42 = 0x54533432;
/// PRAGMA user_version of the files created by this program.
inline constexpr int version = 7;
/// The oldest version that upgrade() accepts.
inline constexpr int oldestVersion = 1;

/// Creates tables, views and the demonstration company in an empty database. Throws SQLite::Exception.
void create(SQLite::Database& database);

/// Creates the tables of a company of version 4.2 in an empty database, and a retailer's data with that many customers.
/// Throws SQLite::Exception.
void create42(SQLite::Database& database, int customers);

/// Upgrades a company of an older version, from oldestVersion on: adds missing tables, columns and indexes, and
/// rebuilds the views, in one transaction. Rows are kept. Does nothing to a company of this version. Throws
/// SQLite::Exception.
void upgrade(SQLite::Database& database);

}  // namespace tsln::workbench::schema
