#pragma once

#include <string>
#include <string_view>

namespace tsln::workbench {

/// A SQL Server statement in the words of SQLite.
struct SqlTranslation {
    enum class Kind { Query, Insert, Change };
    Kind kind = Kind::Query;
    std::string sql;
};

/// Translates one SELECT, INSERT, UPDATE, DELETE or EXEC of a known procedure. The result needs the functions
/// of SqlFunctions.h on its connection.
///
/// What is not known is refused with SqlError, which names it; nothing is passed through untold. Every name
/// comes out quoted, so that tables and columns may be named like SQLite's own words. Every comparison and
/// order is made with the NOCASE collation, and "+" becomes tsql_add(), which joins texts and adds numbers by
/// what it meets when it runs. Takes time linear in the statement's length.
///
/// Known differences to the server: a number compared with a text takes the type of the column beside it, so
/// a text column that holds "05" is not equal to the number 5; dates are ISO texts and compare as such.
SqlTranslation translateSql(std::string_view statement);

}  // namespace tsln::workbench
