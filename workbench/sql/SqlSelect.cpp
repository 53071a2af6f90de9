#include "workbench/sql/SqlSelect.h"

#include <algorithm>

namespace tsln::workbench {

namespace {

bool isColumn(std::span<const SqlToken> tokens) {
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        if (i % 2 == 0 ? !tokens[i].isName() : !tokens[i].isSign(".")) return false;
    }
    return true;
}

/// Returns the statement's own text for these tokens, cut to the length of a name.
std::string sourceText(std::span<const SqlToken> tokens) {
    constexpr std::size_t longestName = 128;
    auto quotes = [](const SqlToken& token) { return token.quote != 0 ? 1 : 0; };
    const SqlToken &first = tokens.front(), &last = tokens.back();
    const char* from = first.text.data() - quotes(first);
    std::string_view text(from, std::size_t(last.text.data() + last.text.size() + quotes(last) - from));
    std::size_t length = std::min(text.size(), longestName);
    while (length < text.size() && (text[length] & 0xC0) == 0x80)
        --length;
    return std::string(text.substr(0, length));
}

}  // namespace

void SqlSelect::select() {
    Level level(*this);
    std::size_t start = out_.size();
    std::optional<std::string> limit = selectCore();
    if (peek().isWord("UNION")) {
        closeBranch(start, limit);
        while (accept("UNION")) {
            out_ += accept("ALL") ? " UNION ALL " : " UNION ";
            std::size_t branch = out_.size();
            limit = selectCore();
            closeBranch(branch, limit);
        }
        limit.reset();
    }
    if (accept("ORDER")) {
        expect("BY");
        out_ += " ORDER BY ";
        do {
            value();
            out_ += asTextsCompare;
            if (accept("DESC")) {
                out_ += " DESC";
            } else {
                accept("ASC");
            }
        } while (comma());
    }
    if (limit) out_ += " LIMIT " + *limit;
}

/// Wraps a branch of a UNION with a LIMIT into a subquery, because SQLite does not accept the LIMIT there.
void SqlSelect::closeBranch(std::size_t start, const std::optional<std::string>& limit) {
    if (!limit) return;
    out_.insert(start, "SELECT * FROM (");
    out_ += " LIMIT " + *limit + ")";
}

/// Translates SELECT to HAVING. Returns the number after TOP.
std::optional<std::string> SqlSelect::selectCore() {
    expect("SELECT");
    out_ += "SELECT ";
    if (accept("DISTINCT")) {
        out_ += "DISTINCT ";
    } else {
        accept("ALL");
    }
    std::optional<std::string> limit = top();
    do {
        selectItem();
    } while (comma());
    if (accept("FROM")) {
        out_ += " FROM ";
        do {
            joinedTables();
        } while (comma());
    }
    where();
    if (accept("GROUP")) {
        expect("BY");
        out_ += " GROUP BY ";
        do {
            value();
            out_ += asTextsCompare;
        } while (comma());
    }
    if (accept("HAVING")) {
        out_ += " HAVING ";
        condition();
    }
    return limit;
}

std::optional<std::string> SqlSelect::top() {
    if (!accept("TOP")) return std::nullopt;
    bool bracket = acceptSign("(");
    if (peek().kind != Kind::Number) unexpected();
    std::string number(take().text);
    if (number.find_first_not_of("0123456789") != std::string::npos)
        fail("Incorrect syntax near '" + number + "'.");
    if (bracket) expectSign(")");
    if (peek().isWord("PERCENT")) unknown("TOP ... PERCENT");
    if (peek().isWord("WITH")) unknown("TOP ... WITH TIES");
    return number;
}

void SqlSelect::selectItem() {
    if (acceptSign("*")) {
        out_ += '*';
        return;
    }
    if (peek().isName() && peek(1).isSign(".") && peek(2).isSign("*")) {
        writeName(takeName());
        skip(2);
        out_ += ".*";
        return;
    }
    // The server's other syntax for naming a column: SELECT Total = COUNT(*)
    std::optional<std::string> named;
    if (peek().isName() && peek(1).isSign("=")) {
        named = takeName();
        skip();
    }
    std::size_t first = position();
    value();
    std::span<const SqlToken> tokens = tokensSince(first);
    // A column has its own collation; other values need one for DISTINCT and UNION.
    if (!isColumn(tokens)) out_ += asTextsCompare;
    if (named) {
        out_ += " AS ";
        writeName(*named);
    } else if (!alias() && !isColumn(tokens)) {
        // Without a name, SQLite names the column after the translated expression.
        out_ += " AS ";
        writeName(sourceText(tokens));
    }
}

/// Translates [AS] alias. Returns true when there was one.
bool SqlSelect::alias() {
    bool said = accept("AS");
    if (peek().kind == Kind::Text) {
        out_ += " AS ";
        writeText(take());
        return true;
    }
    if (!said && !peek().isName()) return false;
    // A keyword without AS, as in OUTER APPLY, is not an alias.
    if (!said && peek().kind == Kind::Word && isSqlServerWord(upperAscii(peek().text))) return false;
    out_ += " AS ";
    writeName(takeName());
    return true;
}

void SqlSelect::joinedTables() {
    tableSource();
    for (;;) {
        if (accept("CROSS")) {
            expect("JOIN");
            out_ += " CROSS JOIN ";
            tableSource();
            continue;
        }
        if (peek().isWord("OUTER") && peek(1).isWord("APPLY")) unknown("APPLY");
        if (accept("INNER")) {
            out_ += " INNER";
        } else if (accept("LEFT")) {
            accept("OUTER");
            out_ += " LEFT";
        } else if (accept("RIGHT")) {
            accept("OUTER");
            out_ += " RIGHT";
        } else if (accept("FULL")) {
            accept("OUTER");
            out_ += " FULL";
        } else if (!peek().isWord("JOIN")) {
            return;
        }
        expect("JOIN");
        out_ += " JOIN ";
        tableSource();
        expect("ON");
        out_ += " ON ";
        condition();
    }
}

void SqlSelect::tableSource() {
    if (acceptSign("(")) {
        Level level(*this);
        out_ += '(';
        if (peek().isWord("SELECT")) {
            select();
            closeBracket();
            if (!alias()) fail("A SELECT in the FROM part needs a name.");
            return;
        }
        joinedTables();
        closeBracket();
        return;
    }
    const std::string name = table();
    if (peek().isSign("(")) unknown("the table function " + name + "()");
    alias();
}

std::string SqlSelect::table() {
    acceptSchema();
    std::string name = takeName();
    if (peek().isSign(".")) unknown("the database or schema " + name);
    if (upperAscii(name).starts_with("SQLITE_") || upperAscii(name).starts_with("PRAGMA_")) {
        fail("Invalid object name '" + name + "'.");
    }
    writeName(name);
    return name;
}

void SqlSelect::where() {
    if (!accept("WHERE")) return;
    out_ += " WHERE ";
    condition();
}

}  // namespace tsln::workbench
