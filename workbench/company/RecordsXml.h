#pragma once

#include <string>

namespace SQLite {
class Statement;
}

namespace tsln::workbench {

/// Runs the statement and returns its rows as a query result document (see Company::read()). Throws
/// SQLite::Exception.
std::string recordsXml(SQLite::Statement& statement);

}  // namespace tsln::workbench
