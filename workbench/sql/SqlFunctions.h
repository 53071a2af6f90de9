#pragma once

namespace SQLite {
class Database;
}

namespace tsln::workbench {

/// Gives a connection the functions that translated statements call, and NOCASE the database's own text order
/// (see TextOrder.h). Throws SQLite::Exception.
///
/// The collation keeps SQLite's name so that other tools can open the file; they know A to Z only, so the
/// schema must not index texts.
void addSqlFunctions(SQLite::Database& database);

}  // namespace tsln::workbench
