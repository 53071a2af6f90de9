#pragma once

#include <string>
#include <string_view>

namespace tsln::workbench {

/// A SQL Server statement, translated for SQLite.
struct SqlTranslation {
    enum class Kind { Query, Insert, Change };
    Kind kind = Kind::Query;
    std::string sql;
};

/// Translates one SELECT, INSERT, UPDATE, DELETE or EXEC of a known procedure. The result needs the functions of
/// SqlFunctions.h on its connection.
///
/// An unknown construct raises SqlError, which names it; nothing is dropped silently. Every name is written in
/// quotes, so that tables and columns may have names that are keywords of SQLite. Every comparison and sort order
/// uses the NOCASE collation. "+" becomes tsql_add(), which joins texts or adds numbers depending on the values at
/// run time. The time is linear in the statement's length.
///
/// Known differences to the server: a number compared with a text is converted to the type of the column, so a text
/// column that holds "05" is not equal to the number 5; dates are ISO texts and compare as texts.
SqlTranslation translateSql(std::string_view statement);

}  // namespace tsln::workbench
