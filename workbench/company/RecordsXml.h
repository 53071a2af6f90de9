#pragma once

#include <string>
#include <string_view>

namespace SQLite {
class Statement;
}

namespace tsln::workbench {

/// Runs the statement and returns its rows as a query result document (see Company::read()). Throws
/// SQLite::Exception.
std::string recordsXml(SQLite::Statement& statement);

/// False for a text with a character that no document can have, such as a control character or damaged UTF-8. It is U+FFFD
/// in documents.
bool fitsInXml(std::string_view text);

}  // namespace tsln::workbench
