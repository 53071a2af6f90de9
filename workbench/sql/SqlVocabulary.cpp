#include "workbench/sql/SqlVocabulary.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <unordered_set>

namespace tsln::workbench {

namespace {

// clang-format off
const std::unordered_set<std::string_view> reservedWords = {
    "ADD", "ALL", "ALTER", "AND", "ANY", "AS", "ASC", "AUTHORIZATION", "BACKUP", "BEGIN", "BETWEEN",
    "BREAK", "BROWSE", "BULK", "BY", "CASCADE", "CASE", "CHECK", "CHECKPOINT", "CLOSE", "CLUSTERED",
    "COALESCE", "COLLATE", "COLUMN", "COMMIT", "COMPUTE", "CONSTRAINT", "CONTAINS", "CONTAINSTABLE",
    "CONTINUE", "CONVERT", "CREATE", "CROSS", "CURRENT", "CURRENT_DATE", "CURRENT_TIME",
    "CURRENT_TIMESTAMP", "CURRENT_USER", "CURSOR", "DATABASE", "DBCC", "DEALLOCATE", "DECLARE", "DEFAULT",
    "DELETE", "DENY", "DESC", "DISK", "DISTINCT", "DISTRIBUTED", "DOUBLE", "DROP", "DUMP", "ELSE", "END",
    "ERRLVL", "ESCAPE", "EXCEPT", "EXEC", "EXECUTE", "EXISTS", "EXIT", "EXTERNAL", "FETCH", "FILE",
    "FILLFACTOR", "FOR", "FOREIGN", "FREETEXT", "FREETEXTTABLE", "FROM", "FULL", "FUNCTION", "GOTO",
    "GRANT", "GROUP", "HAVING", "HOLDLOCK", "IDENTITY", "IDENTITYCOL", "IDENTITY_INSERT", "IF", "IN",
    "INDEX", "INNER", "INSERT", "INTERSECT", "INTO", "IS", "JOIN", "KEY", "KILL", "LEFT", "LIKE", "LINENO",
    "LOAD", "MERGE", "NATIONAL", "NOCHECK", "NONCLUSTERED", "NOT", "NULL", "NULLIF", "OF", "OFF", "OFFSETS",
    "ON", "OPEN", "OPENDATASOURCE", "OPENQUERY", "OPENROWSET", "OPENXML", "OPTION", "OR", "ORDER", "OUTER",
    "OVER", "PERCENT", "PIVOT", "PLAN", "PRECISION", "PRIMARY", "PRINT", "PROC", "PROCEDURE", "PUBLIC",
    "RAISERROR", "READ", "READTEXT", "RECONFIGURE", "REFERENCES", "REPLICATION", "RESTORE", "RESTRICT",
    "RETURN", "REVERT", "REVOKE", "RIGHT", "ROLLBACK", "ROWCOUNT", "ROWGUIDCOL", "RULE", "SAVE", "SCHEMA",
    "SELECT", "SESSION_USER", "SET", "SETUSER", "SHUTDOWN", "SOME", "STATISTICS", "SYSTEM_USER", "TABLE",
    "TABLESAMPLE", "TEXTSIZE", "THEN", "TO", "TOP", "TRAN", "TRANSACTION", "TRIGGER", "TRUNCATE",
    "TRY_CONVERT", "TSEQUAL", "UNION", "UNIQUE", "UNPIVOT", "UPDATE", "UPDATETEXT", "USE", "USER", "VALUES",
    "VARYING", "VIEW", "WAITFOR", "WHEN", "WHERE", "WHILE", "WITH", "WITHIN", "WRITETEXT"};
// clang-format on

/// Keywords in certain positions only; elsewhere they may name columns.
const std::unordered_set<std::string_view> contextualWords = {
    "APPLY",     "CATCH",     "CUBE",   "GO",   "GROUPING", "NEXT",  "NOLOCK", "OFFSET", "ONLY",  "OUTPUT",
    "PARTITION", "RECOMPILE", "ROLLUP", "ROWS", "SETS",     "THROW", "TIES",   "TRY",    "USING", "XML"};

constexpr std::string_view statementVerbs[] = {
    "SELECT", "INSERT",   "UPDATE", "DELETE", "EXEC",   "EXECUTE",  "DECLARE", "SET",   "DROP", "CREATE",
    "ALTER",  "TRUNCATE", "MERGE",  "BEGIN",  "COMMIT", "ROLLBACK", "IF",      "PRINT", "USE"};

const std::unordered_map<std::string_view, SqlFunction> functions = {
    {"ABS", {"abs", 1, 1}},
    {"AVG", {"tsql_avg", 1, 1, true}},
    {"CEILING", {"tsql_ceiling", 1, 1}},
    {"CHARINDEX", {"tsql_charindex", 2, 3}},
    {"COALESCE", {"coalesce", 2, mostSqlArguments}},
    {"CONCAT", {"tsql_concat", 2, mostSqlArguments}},
    {"COUNT", {"count", 1, 1, true, true}},
    {"FLOOR", {"tsql_floor", 1, 1}},
    {"ISNULL", {"ifnull", 2, 2}},
    {"LEFT", {"tsql_left", 2, 2}},
    {"LEN", {"tsql_len", 1, 1}},
    {"LOWER", {"lower", 1, 1}},
    {"LTRIM", {"ltrim", 1, 1}},
    {"MAX", {"max", 1, 1, true, true}},
    {"MIN", {"min", 1, 1, true, true}},
    {"NEWID", {"tsql_newid", 0, 0}},
    {"NULLIF", {"nullif", 2, 2, false, true}},
    {"REPLACE", {"tsql_replace", 3, 3}},
    {"RIGHT", {"tsql_right", 2, 2}},
    {"ROUND", {"tsql_round", 2, 2}},
    {"RTRIM", {"rtrim", 1, 1}},
    {"SUBSTRING", {"tsql_substring", 3, 3}},
    {"SUM", {"sum", 1, 1, true}},
    {"TRIM", {"trim", 1, 1}},
    {"UPPER", {"upper", 1, 1}},
};

const std::unordered_map<std::string_view, SqlFunction> databaseFunctions = {
    {"BUILDEMPLOYEENAME", {"dbo_buildemployeename", 3, 3}},
};

const std::unordered_map<std::string_view, SqlProcedure> procedures = {
    {"ENSURECUSTOMERDEFAULTADDRESS", {"INSERT INTO \"EnsureCustomerDefaultAddress\" VALUES (", ")", 1, true}},
    {"SP_SPACEUSED", {"SELECT * FROM \"sp_spaceused\"", "", 0, false}},
};

const std::unordered_map<std::string_view, SqlType> types = {
    {"VARCHAR", {SqlType::Kind::Text, 30}},
    {"NVARCHAR", {SqlType::Kind::Text, 30}},
    {"CHAR", {SqlType::Kind::PaddedText, 30}},
    {"NCHAR", {SqlType::Kind::PaddedText, 30}},
    {"TEXT", {SqlType::Kind::Text}},
    {"NTEXT", {SqlType::Kind::Text}},
    {"TINYINT", {SqlType::Kind::Integer}},
    {"SMALLINT", {SqlType::Kind::Integer}},
    {"INT", {SqlType::Kind::Integer}},
    {"BIGINT", {SqlType::Kind::Integer}},
    {"BIT", {SqlType::Kind::Bit}},
    {"DECIMAL", {SqlType::Kind::Decimal}},
    {"NUMERIC", {SqlType::Kind::Decimal}},
    {"MONEY", {SqlType::Kind::Decimal, -1, 4}},
    {"SMALLMONEY", {SqlType::Kind::Decimal, -1, 4}},
    {"FLOAT", {SqlType::Kind::Real}},
    {"REAL", {SqlType::Kind::Real}},
    {"DATE", {SqlType::Kind::Date}},
    {"DATETIME", {SqlType::Kind::DateTime}},
    {"DATETIME2", {SqlType::Kind::DateTime}},
    {"SMALLDATETIME", {SqlType::Kind::DateTime}},
};

const std::unordered_map<std::string_view, std::string_view> dateParts = {
    {"YEAR", "year"},     {"YYYY", "year"},   {"YY", "year"},       {"QUARTER", "quarter"}, {"QQ", "quarter"},
    {"Q", "quarter"},     {"MONTH", "month"}, {"MM", "month"},      {"M", "month"},         {"WEEK", "week"},
    {"WK", "week"},       {"WW", "week"},     {"DAY", "day"},       {"DD", "day"},          {"D", "day"},
    {"HOUR", "hour"},     {"HH", "hour"},     {"MINUTE", "minute"}, {"MI", "minute"},       {"N", "minute"},
    {"SECOND", "second"}, {"SS", "second"},   {"S", "second"}};

constexpr int dateStyles[] = {0, 1, 3, 20, 23, 100, 101, 103, 104, 105, 108, 110, 111, 112, 120, 126};

template <class Row>
const Row* find(const std::unordered_map<std::string_view, Row>& table, std::string_view name) {
    auto found = table.find(name);
    return found == table.end() ? nullptr : &found->second;
}

}  // namespace

bool isReservedSqlWord(std::string_view word) {
    return reservedWords.contains(word);
}

bool isSqlServerWord(std::string_view word) {
    return reservedWords.contains(word) || contextualWords.contains(word);
}

bool beginsStatement(std::string_view word) {
    return std::ranges::find(statementVerbs, word) != std::end(statementVerbs);
}

const SqlFunction* findSqlFunction(std::string_view name) {
    return find(functions, name);
}

const SqlFunction* findDatabaseFunction(std::string_view name) {
    return find(databaseFunctions, name);
}

const SqlProcedure* findSqlProcedure(std::string_view name) {
    return find(procedures, name);
}

std::optional<SqlType> findSqlType(std::string_view name) {
    auto found = types.find(name);
    if (found == types.end()) return std::nullopt;
    SqlType type = found->second;
    type.name = found->first;
    return type;
}

std::optional<std::string_view> findDatePart(std::string_view name) {
    auto found = dateParts.find(name);
    if (found == dateParts.end()) return std::nullopt;
    return found->second;
}

bool isDateStyle(int style) {
    return std::ranges::find(dateStyles, style) != std::end(dateStyles);
}

}  // namespace tsln::workbench
