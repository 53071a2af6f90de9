// Statements in the SQL Server dialect: what the translator accepts, SQLite prepares and runs, with every literal in it;
// comments and line ends between the words change nothing.

#include <algorithm>
#include <array>

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include "tests/fuzz/Fuzz.h"
#include "workbench/company/Schema.h"
#include "workbench/sql/SqlDialect.h"
#include "workbench/sql/SqlError.h"
#include "workbench/sql/SqlFunctions.h"
#include "workbench/sql/SqlTokens.h"

namespace {

using namespace tsln;
using namespace tsln::workbench;

/// What SQLite may find wrong in a translated statement: names and numbers of columns, which the translator does not
/// know, but never its form.
constexpr std::array meaningful = {"no such table",
                                   "no such column",
                                   "ambiguous column name",
                                   "has no column named",
                                   "sub-select returns",
                                   "SELECTs to the left",
                                   "values for",
                                   "values were supplied",
                                   "misuse of",
                                   "term out of range",
                                   "term does not match",
                                   "aggregate functions are not allowed",
                                   "may not be modified",
                                   "because it is a view",
                                   "no tables specified",
                                   "HAVING",
                                   "duplicate column name",
                                   "too many",
                                   "cannot join using",
                                   "row value misused",
                                   "conflicting",
                                   "wrong number of columns",
                                   "circularly defined",
                                   "ON clause references tables to its right",
                                   "parser stack overflow",
                                   "Expression tree is too large",
                                   "all VALUES must have the same number of terms"};

SQLite::Database& database() {
    static SQLite::Database company(":memory:", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    static const bool made = [] {
        addSqlFunctions(company);
        schema::create(company);
        sqlite3_db_config(company.getHandle(), SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
        sqlite3_progress_handler(
            company.getHandle(), 20'000, [](void*) { return 1; }, nullptr);
        company.exec("PRAGMA hard_heap_limit = 200000000");
        return true;
    }();
    (void)made;
    return company;
}

std::string translated(const std::string& statement) {
    try {
        return translateSql(statement).sql;
    } catch (const SqlError& error) {
        fuzz::require(error.what()[0] != '\0', "refused without a reason");
        return {};
    }
}

/// The statement with a comment and a line end before each word.
std::string spread(const std::string& statement) {
    std::string result;
    for (const SqlToken& token : tokenizeSql(statement)) {
        const bool isText = token.kind == SqlToken::Kind::Text;
        const bool isQuoted = token.kind == SqlToken::Kind::QuotedName;
        result += " /* ' */\n";
        if (isQuoted) result += token.quote == ']' ? '[' : token.quote;
        result += (isText ? "'" : "") + std::string(token.text) + (isText ? "'" : "");
        if (isQuoted) result += token.quote;
    }
    return result;
}

/// Without blanks, comments and names of columns: a column without a name is named by the beginning of its text.
std::string compact(std::string text) {
    std::erase_if(text, [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); });
    for (std::size_t at = 0; (at = text.find("/*'*/", at)) != text.npos;)
        text.erase(at, 5);
    for (std::size_t at = 0; (at = text.find("AS\"", at)) != text.npos; ++at) {
        std::size_t end = at + 3;
        while (end < text.size() && (text[end] != '"' || text.substr(end, 2) == "\"\""))
            end += text[end] == '"' ? 2 : 1;
        text.erase(at, end - at);
    }
    return text;
}

void checkRuns(const SqlTranslation& translation) {
    sqlite3* handle = database().getHandle();
    sqlite3_stmt* statement = nullptr;
    const char* rest = nullptr;
    const int code = sqlite3_prepare_v2(handle, translation.sql.c_str(), -1, &statement, &rest);
    const std::string reason = sqlite3_errmsg(handle);
    if (code != SQLITE_OK) {
        const bool means = std::ranges::any_of(
            meaningful, [&](const char* part) { return reason.find(part) != reason.npos; });
        fuzz::require(means, reason + " in: " + translation.sql);
        return;
    }
    fuzz::require(rest && *rest == '\0', "SQLite leaves a part of: " + translation.sql);
    fuzz::require(statement != nullptr, "SQLite sees no statement in: " + translation.sql);
    const bool reads = sqlite3_stmt_readonly(statement) != 0;
    fuzz::same(reads, translation.kind == SqlTranslation::Kind::Query, "whether the statement reads");
    database().exec("SAVEPOINT run");
    while (sqlite3_step(statement) == SQLITE_ROW) {
    }
    sqlite3_finalize(statement);
    database().tryExec("ROLLBACK TO run");
    database().tryExec("RELEASE run");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string statement(fuzz::textOf(data, size));
    const std::string sql = translated(statement);
    if (sql.empty()) return 0;
    for (const SqlToken& token : tokenizeSql(statement)) {
        if (token.kind == SqlToken::Kind::Text) {
            fuzz::require(sql.find("'" + std::string(token.text) + "'") != sql.npos,
                          "a text was lost: " + std::string(token.text) + " in: " + sql);
        }
    }
    fuzz::same(compact(translated(spread(statement))), compact(sql), "the statement with comments");
    checkRuns(translateSql(statement));
    return 0;
}
