#pragma once

namespace SQLite {
class Database;
}

namespace tsln::workbench {

/// Registers the functions that translated statements call, and replaces the collation NOCASE by the database's text
/// order (see TextOrder.h). Throws SQLite::Exception.
///
/// The collation keeps SQLite's name so that other tools can open the file. Their NOCASE folds only A to Z, so the
/// schema must not index texts.
void addSqlFunctions(SQLite::Database& database);

}  // namespace tsln::workbench
