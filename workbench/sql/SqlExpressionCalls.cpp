// The calls of functions in expressions.

#include "workbench/sql/SqlExpressions.h"

namespace tsln::workbench {

namespace {

std::string_view conversionFunction(SqlType::Kind kind) {
    using Kind = SqlType::Kind;
    switch (kind) {
        case Kind::Text:
        case Kind::PaddedText:
            return "tsql_text(";
        case Kind::Integer:
            return "tsql_int(";
        case Kind::Bit:
            return "tsql_bit(";
        case Kind::Decimal:
            return "tsql_decimal(";
        case Kind::Real:
            return "tsql_real(";
        case Kind::Date:
            return "tsql_date(";
        case Kind::DateTime:
            return "tsql_datetime(";
    }
    return {};
}

}  // namespace

void SqlExpressions::call() {
    Level level(*this);
    const std::string name = upperAscii(take().text);
    expectSign("(");
    if (name == "CAST") return cast();
    if (name == "CONVERT") return convert();
    if (name == "IIF") return conditional();
    if (name == "GETDATE" || name == "GETUTCDATE") {
        expectSign(")");
        out_ += name == "GETDATE" ? "strftime('%Y-%m-%dT%H:%M:%S', 'now', 'localtime')"
                                  : "strftime('%Y-%m-%dT%H:%M:%S', 'now')";
        return;
    }
    if (name == "DATEADD") return dateCall("tsql_dateadd", 2);
    if (name == "DATEDIFF") return dateCall("tsql_datediff", 2);
    if (name == "DATEPART") return dateCall("tsql_datepart", 1);
    if (name == "YEAR" || name == "MONTH" || name == "DAY") {
        out_.append("tsql_datepart('").append(*findDatePart(name)).append("', ");
        value();
        return closeBracket();
    }
    if (name == "COUNT" && acceptSign("*")) {
        out_ += "count(*";
        return closeBracket();
    }
    const SqlFunction* function = findSqlFunction(name);
    if (!function) unknown(name + "()");
    arguments(*function, name);
}

/// dbo.NAME(...)
void SqlExpressions::databaseCall() {
    const std::string schema = peek().name(), name = peek(2).name();
    const SqlFunction* function = findDatabaseFunction(upperAscii(name));
    if (upperAscii(schema) != "DBO" || !function) unknown(schema + "." + name + "()");
    Level level(*this);
    skip(4);  // past the opening bracket
    arguments(*function, name);
}

/// Translates the arguments after the opening bracket and the closing bracket, as all functions below do.
void SqlExpressions::arguments(const SqlFunction& function, const std::string& name) {
    out_.append(function.target).append("(");
    if (peek().isWord("DISTINCT")) {
        if (!function.aggregate) unexpected();
        skip();
        out_ += "DISTINCT ";
    }
    std::size_t count = 0;
    if (!peek().isSign(")")) {
        do {
            value();
            if (count++ == 0 && function.collates) out_ += asTextsCompare;
        } while (comma());
    }
    if (count < function.fewest || count > function.most) {
        fail("The function " + name + "() does not take " + std::to_string(count) +
             (count == 1 ? " argument." : " arguments."));
    }
    closeBracket();
}

/// Translates the name of a date part, then the values.
void SqlExpressions::dateCall(std::string_view target, int values) {
    const SqlToken& word = peek();
    if (word.kind != Kind::Word) unexpected();
    const auto part = findDatePart(upperAscii(word.text));
    if (!part) unknown("the date part " + std::string(word.text));
    skip();
    out_.append(target).append("('").append(*part).append("'");
    for (int i = 0; i < values; ++i) {
        expectSign(",");
        out_ += ", ";
        value();
    }
    closeBracket();
}

void SqlExpressions::conditional() {
    out_ += "iif(";
    condition();
    for (int i = 0; i < 2; ++i) {
        expectSign(",");
        out_ += ", ";
        value();
    }
    closeBracket();
}

void SqlExpressions::cast() {
    std::size_t start = out_.size();
    value();
    expect("AS");
    SqlType wanted = type();
    out_.insert(start, conversionFunction(wanted.kind));
    conversionEnd(wanted, {});
}

void SqlExpressions::convert() {
    SqlType wanted = type();
    out_ += conversionFunction(wanted.kind);
    expectSign(",");
    value();
    std::optional<int> style;
    if (acceptSign(",")) {
        if (peek().kind != Kind::Number || peek().text.size() > 4) unexpected();
        const std::string number(take().text);
        style = wholeNumber(number);
        if (!wanted.isText() || !style || !isDateStyle(*style)) {
            unknown("CONVERT to " + std::string(wanted.name) + " in style " + number);
        }
    }
    conversionEnd(wanted, style);
}

/// Writes the converting function's arguments after the value, and the closing bracket.
void SqlExpressions::conversionEnd(const SqlType& type, std::optional<int> style) {
    if (type.isText()) {
        out_ += ", " + std::to_string(type.length) + ", " + (style ? std::to_string(*style) : "NULL") + ", " +
                (type.kind == SqlType::Kind::PaddedText ? "1" : "0");
    } else if (type.kind == SqlType::Kind::Decimal) {
        out_ += ", " + std::to_string(type.scale);
    } else if (type.kind == SqlType::Kind::Integer) {
        out_.append(", '").append(type.name).append("'");
    }
    closeBracket();
}

SqlType SqlExpressions::type() {
    const SqlToken& word = peek();
    if (!word.isName()) unexpected();
    auto known = findSqlType(upperAscii(word.name()));
    if (!known) unknown("the type " + word.name());
    skip();
    SqlType result = *known;
    if (!acceptSign("(")) return result;
    result.length = accept("MAX") ? -1 : typeNumber();
    if (acceptSign(",")) result.scale = typeNumber();
    expectSign(")");
    return result;
}

int SqlExpressions::typeNumber() {
    const SqlToken& token = peek();
    const auto number =
        token.kind == Kind::Number && token.text.size() <= 5 ? wholeNumber(token.text) : std::nullopt;
    if (!number) unexpected();
    skip();
    return *number;
}

}  // namespace tsln::workbench
