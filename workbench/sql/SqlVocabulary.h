#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace tsln::workbench {

/// The words of SQL Server's language that this database knows, and what stands for them here. Words and
/// names are asked for in capitals.

/// A word that names nothing unless it stands in brackets.
bool isReservedSqlWord(std::string_view word);
/// A word of the language, whether or not it may name a column.
bool isSqlServerWord(std::string_view word);
/// A word that a statement begins with, known to this database or not.
bool beginsStatement(std::string_view word);

/// SQLite takes at most 127.
inline constexpr std::size_t mostSqlArguments = 100;

/// A function and the SQLite function that stands for it.
struct SqlFunction {
    std::string_view target;
    std::size_t fewest, most;  ///< arguments
    bool aggregate = false;
    /// The result depends on how texts compare, which goes by the first argument.
    bool collates = false;
};
/// Null when there is none of that name, here and below.
const SqlFunction* findSqlFunction(std::string_view name);
/// Functions of the company database itself, called as dbo.NAME().
const SqlFunction* findDatabaseFunction(std::string_view name);

/// A procedure: one that changes rows is a view whose insert trigger does the work. Its arguments stand
/// between `begin` and `end`.
struct SqlProcedure {
    std::string_view begin, end;
    std::size_t arguments;
    bool changesRows;
};
const SqlProcedure* findSqlProcedure(std::string_view name);

struct SqlType {
    enum class Kind { Text, PaddedText, Integer, Bit, Decimal, Real, Date, DateTime };
    Kind kind;
    int length = -1;          ///< of a text, in characters; -1 for any
    int scale = 0;            ///< of a decimal
    std::string_view name{};  ///< in capitals

    bool isText() const { return kind == Kind::Text || kind == Kind::PaddedText; }
};
/// With the length and scale that the type has when the statement gives none.
std::optional<SqlType> findSqlType(std::string_view name);

/// The part's name in SqlDates.h, by its name or one of its short forms.
std::optional<std::string_view> findDatePart(std::string_view name);
/// A style that CONVERT to text can write dates in; SqlDate::text carries it out.
bool isDateStyle(int style);

}  // namespace tsln::workbench
