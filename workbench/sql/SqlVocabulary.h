#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace tsln::workbench {

/// The words of SQL Server's language that this database knows, and their translations. Words and names are passed in
/// capitals.

/// True for a keyword, which is a name only in brackets.
bool isReservedSqlWord(std::string_view word);
/// True for a word of the language, also when it may name a column.
bool isSqlServerWord(std::string_view word);
/// True for a word that begins a statement, also of a kind that is not supported.
bool beginsStatement(std::string_view word);

/// SQLite's limit is 127.
inline constexpr std::size_t mostSqlArguments = 100;

/// A function and the SQLite function that replaces it.
struct SqlFunction {
    std::string_view target;
    std::size_t fewest, most;  ///< number of arguments
    bool aggregate = false;
    /// The result depends on text comparison, which the first argument's collation determines.
    bool collates = false;
};
/// Returns null for an unknown name, as do the functions below.
const SqlFunction* findSqlFunction(std::string_view name);
/// Finds a function of the company database, called as dbo.NAME().
const SqlFunction* findDatabaseFunction(std::string_view name);

/// A procedure. One that changes rows is a view with an insert trigger. Its arguments are written between `begin` and
/// `end`.
struct SqlProcedure {
    std::string_view begin, end;
    std::size_t arguments;
    bool changesRows;
};
const SqlProcedure* findSqlProcedure(std::string_view name);

struct SqlType {
    enum class Kind { Text, PaddedText, Integer, Bit, Decimal, Real, Date, DateTime };
    Kind kind;
    int length = -1;          ///< of a text, in characters; -1 for no limit
    int scale = 0;            ///< of a decimal
    std::string_view name{};  ///< in capitals

    bool isText() const { return kind == Kind::Text || kind == Kind::PaddedText; }
};
/// Returns the type with the length and scale it has when the statement gives none.
std::optional<SqlType> findSqlType(std::string_view name);

/// Returns the part's name in SqlDates.h, for its name or a short form.
std::optional<std::string_view> findDatePart(std::string_view name);
/// True for a date style of CONVERT to text that SqlDate::text() supports.
bool isDateStyle(int style);

}  // namespace tsln::workbench
