#include "workbench/sql/SqlExpressions.h"

#include <algorithm>

namespace tsln::workbench {

void SqlExpressions::needs(Gives wanted, Gives given) const {
    if (wanted == given) return;
    fail(wanted == Gives::Condition
             ? "The statement has a value near '" + lastTaken() + "' where a condition is expected."
             : "The statement has a condition near '" + lastTaken() + "' where a value is expected.");
}

/// Translates OR. The result is a condition or a value, because brackets may hold either.
SqlExpressions::Gives SqlExpressions::either() {
    Gives gives = conjunction();
    while (accept("OR")) {
        needs(Gives::Condition, gives);
        out_ += " OR ";
        needs(Gives::Condition, conjunction());
    }
    return gives;
}

SqlExpressions::Gives SqlExpressions::conjunction() {
    Gives gives = negation();
    while (accept("AND")) {
        needs(Gives::Condition, gives);
        out_ += " AND ";
        needs(Gives::Condition, negation());
    }
    return gives;
}

SqlExpressions::Gives SqlExpressions::negation() {
    bool negated = false;
    while (accept("NOT")) {
        out_ += "NOT ";
        negated = true;
    }
    Gives gives = predicate();
    if (negated) needs(Gives::Condition, gives);
    return gives;
}

/// Translates a comparison after the value just written. Returns false when there is none.
bool SqlExpressions::comparison(Gives left) {
    struct Comparison {
        std::string_view sign, translation;
    };
    static constexpr Comparison comparisons[] = {{"=", " = "},   {"<>", " <> "}, {"!=", " <> "},
                                                 {"<", " < "},   {">", " > "},   {"<=", " <= "},
                                                 {">=", " >= "}, {"!<", " >= "}, {"!>", " <= "}};
    for (auto [sign, translation] : comparisons) {
        if (!acceptSign(sign)) continue;
        needs(Gives::Value, left);
        if (peek().isWord("ALL") || peek().isWord("ANY") || peek().isWord("SOME")) unexpected();
        out_.append(asTextsCompare).append(translation);
        value();
        return true;
    }
    return false;
}

SqlExpressions::Gives SqlExpressions::predicate() {
    if (accept("EXISTS")) {
        expectSign("(");
        out_ += "EXISTS (";
        select();
        closeBracket();
        return Gives::Condition;
    }
    std::size_t start = out_.size();
    Gives gives = sum();
    if (comparison(gives)) return Gives::Condition;
    if (accept("IS")) {
        needs(Gives::Value, gives);
        out_ += accept("NOT") ? " IS NOT NULL" : " IS NULL";
        expect("NULL");
        return Gives::Condition;
    }
    bool negated =
        peek().isWord("NOT") && (peek(1).isWord("IN") || peek(1).isWord("LIKE") || peek(1).isWord("BETWEEN"));
    if (negated) skip();
    std::string_view no = negated ? " NOT" : "";
    if (accept("IN")) {
        needs(Gives::Value, gives);
        out_.append(asTextsCompare).append(no).append(" IN (");
        expectSign("(");
        if (peek().isWord("SELECT")) {
            select();
        } else {
            do {
                value();
            } while (comma());
        }
        closeBracket();
        return Gives::Condition;
    }
    if (accept("BETWEEN")) {
        needs(Gives::Value, gives);
        out_.append(asTextsCompare).append(no).append(" BETWEEN ");
        value();
        expect("AND");
        out_ += " AND ";
        value();
        return Gives::Condition;
    }
    if (accept("LIKE")) {
        needs(Gives::Value, gives);
        out_.insert(start, negated ? "(NOT tsql_like(" : "(tsql_like(");
        out_ += ", ";
        value();
        if (accept("ESCAPE")) {
            out_ += ", ";
            value();
        }
        out_ += "))";
        return Gives::Condition;
    }
    return gives;
}

/// Translates + - & |. "+" both joins text and adds numbers, so it becomes a function that decides by the values.
SqlExpressions::Gives SqlExpressions::sum() {
    std::size_t start = out_.size();
    std::vector<std::string_view> opening;
    Gives gives = product();
    std::size_t arguments = 0;  // of the tsql_add() call being written
    auto close = [&] {
        if (arguments > 0) out_ += ')';
        arguments = 0;
    };
    for (;;) {
        bool bits = peek().isSign("&") || peek().isSign("|");
        if (acceptSign("+")) {
            if (arguments == mostSqlArguments) close();
            if (arguments == 0) {
                opening.push_back("tsql_add(");
                arguments = 1;
            }
            ++arguments;
            out_ += ", ";
        } else if (bits || peek().isSign("-")) {
            close();
            if (bits) opening.push_back("(");
            out_.append(" ").append(take().text).append(" ");
        } else {
            break;
        }
        needs(Gives::Value, gives);
        needs(Gives::Value, product());
        if (bits) out_ += ')';  // in SQLite they bind less tightly than "-"
    }
    close();
    insertOpening(start, std::move(opening));
    return gives;
}

/// Inserts opening brackets at `start`, all at once, so that a long chain takes linear time.
void SqlExpressions::insertOpening(std::size_t start, std::vector<std::string_view> innermostFirst) {
    std::ranges::reverse(innermostFirst);
    std::string opening;
    for (std::string_view part : innermostFirst)
        opening += part;
    out_.insert(start, opening);
}

/// Translates * / %. The server raises an error for a division by zero; SQLite returns NULL.
SqlExpressions::Gives SqlExpressions::product() {
    std::size_t start = out_.size();
    std::vector<std::string_view> opening;
    Gives gives = sign();
    for (;;) {
        bool divide = peek().isSign("/");
        if (acceptSign("*")) {
            needs(Gives::Value, gives);
            out_ += " * ";
            needs(Gives::Value, sign());
        } else if (divide || peek().isSign("%")) {
            needs(Gives::Value, gives);
            skip();
            opening.push_back(divide ? "tsql_divide(" : "tsql_modulo(");
            out_ += ", ";
            needs(Gives::Value, sign());
            out_ += ')';
        } else {
            break;
        }
    }
    insertOpening(start, std::move(opening));
    return gives;
}

SqlExpressions::Gives SqlExpressions::sign() {
    bool signs = false;
    while (peek().isSign("-") || peek().isSign("+") || peek().isSign("~")) {
        const SqlToken& token = take();
        if (!token.isSign("+")) out_.append(token.text).append(" ");
        signs = true;
    }
    Gives gives = primary();
    if (signs) needs(Gives::Value, gives);
    return gives;
}

SqlExpressions::Gives SqlExpressions::primary() {
    const SqlToken& token = peek();
    if (acceptSign("(")) {
        Level level(*this);
        out_ += '(';
        Gives gives = Gives::Value;
        if (peek().isWord("SELECT")) {
            select();
        } else {
            gives = either();
        }
        closeBracket();
        return gives;
    }
    if (token.kind == Kind::Text) {
        writeText(take());
    } else if (token.kind == Kind::Number) {
        out_ += take().text;
    } else if (accept("NULL")) {
        out_ += "NULL";
    } else if (accept("CASE")) {
        choice();
    } else if (token.kind == Kind::Word && peek(1).isSign("(")) {
        call();
    } else if (token.isName() && peek(1).isSign(".") && peek(2).kind == Kind::Word && peek(3).isSign("(")) {
        databaseCall();
    } else {
        column();
    }
    return Gives::Value;
}

/// Translates CASE after this word, to END.
void SqlExpressions::choice() {
    Level level(*this);
    out_ += "CASE";
    bool simple = !peek().isWord("WHEN");
    if (simple) {
        out_ += ' ';
        value();
        out_ += asTextsCompare;
    }
    if (!peek().isWord("WHEN")) unexpected();
    while (accept("WHEN")) {
        out_ += " WHEN ";
        simple ? value() : condition();
        expect("THEN");
        out_ += " THEN ";
        value();
    }
    if (accept("ELSE")) {
        out_ += " ELSE ";
        value();
    }
    expect("END");
    out_ += " END";
}

/// Translates column, table.column or dbo.table.column.
void SqlExpressions::column() {
    acceptSchema();
    writeName(takeName());
    if (acceptSign(".")) {
        out_ += '.';
        writeName(takeName());
    }
    if (peek().isSign(".")) unknown("a name of more than two parts");
}

}  // namespace tsln::workbench
