// Values and conditions in the SQL Server dialect: the input's bytes choose an expression, which is computed here by the
// server's precedence and rules for NULL, written with no more brackets than needed, and run by the company's database.

#include <cstdlib>
#include <optional>

#include <SQLiteCpp/SQLiteCpp.h>

#include "shared/modSharedStrings.h"
#include "tests/fuzz/Fuzz.h"
#include "workbench/sql/SqlDialect.h"
#include "workbench/sql/SqlFunctions.h"
#include "workbench/sql/SqlText.h"

namespace {

using namespace tsln;

constexpr std::int64_t largest =
    1'000'000'000'000;  // larger values are brought down, so that nothing overflows

/// A part of an expression: its text, what it computes, and how strongly it binds.
template <class T>
struct Part {
    std::string text;
    std::optional<T> value;  ///< none: NULL
    int level = 0;
};
using Number = Part<std::int64_t>;
using Text = Part<std::string>;
using Condition = Part<bool>;  ///< none: unknown

enum Level { Or, And, Not, Predicate, Sum, Product, Primary };

class Expressions {
  public:
    explicit Expressions(std::string_view bytes) : choices_(bytes) {}

    Number number(int depth) {
        enum : unsigned {
            Literal,
            Searched,
            Simple,
            Length,
            Divided,
            Signed,
            Casted,
            Multiplied,
            IsNull,
            NullIf,
            kinds
        };
        const unsigned kind = depth <= 0 || choices_.ended() ? unsigned{Literal} : choices_.below(kinds + 2);
        if (kind == Literal) return literalNumber();
        if (kind == Searched) return searched(depth);
        if (kind == Simple) return simpleCase(depth);
        if (kind == Length) return length(text(depth - 1));
        const Number a = number(depth - 1);
        if (kind == Divided) return divided(a);
        if (kind == Signed) return signedNumber(a);
        if (kind == Casted) return casted(a);
        const Number b = number(depth - 1);
        return kind == Product  ? product(a, b)
               : kind == IsNull ? isNull(a, b)
               : kind == NullIf ? nullIf(a, b)
                                : sum(a, b);
    }

    Condition condition(int depth) {
        enum : unsigned { Compared, Conjunction, Disjunction, Negated, Between, In, NullTest, Texts, kinds };
        const unsigned kind = depth <= 0 || choices_.ended() ? unsigned{Compared} : choices_.below(kinds);
        if (kind == Conjunction || kind == Disjunction) return junction(depth, kind == Conjunction);
        if (kind == Negated) return negated(condition(depth - 1));
        if (kind == In) return in(depth, choices_.below(2));
        if (kind == Texts) {
            const Text a = text(depth - 1), b = text(depth - 1);
            return comparedTexts(a, b);
        }
        const Number a = number(depth - 1);
        if (kind == NullTest) return nullTest(a, choices_.below(2));
        const Number b = number(depth - 1);
        if (kind == Compared) return compared(a, b);
        const Number c = number(depth - 1);
        return between(a, b, c, choices_.below(2));
    }

  private:
    template <class T>
    std::string within(const Part<T>& part, int least) {
        return part.level < least || choices_.below(16) == 15 ? "(" + part.text + ")" : part.text;
    }

    Number literalNumber() {
        const unsigned value = choices_.below(12);
        if (value == 11) return {"NULL", {}, Primary};
        return {std::to_string(value), value, Primary};
    }
    static Number bounded(Number part) {
        if (!part.value || std::llabs(*part.value) < largest) return part;
        return {"((" + part.text + ") % 1000)", *part.value % 1000, Primary};
    }
    /// The signs of the lowest precedence are equal in rank and are read from left to right.
    Number sum(const Number& a, const Number& b) {
        const char sign = "+-&|"[choices_.below(4)];
        Number result{within(a, Sum) + " " + sign + " " + within(b, Product), {}, Sum};
        if (a.value && b.value) {
            const std::int64_t x = *a.value, y = *b.value;
            result.value = sign == '+' ? x + y : sign == '-' ? x - y : sign == '&' ? x & y : x | y;
        }
        return bounded(result);
    }
    Number product(const Number& a, const Number& b) {
        const Number left = small(a), right = small(b);
        Number result{within(left, Product) + " * " + within(right, Primary), {}, Product};
        if (left.value && right.value) result.value = *left.value * *right.value;
        return bounded(result);
    }
    static Number small(const Number& part) {
        if (!part.value || std::llabs(*part.value) < 1'000'000) return part;
        return {"((" + part.text + ") % 1000)", *part.value % 1000, Primary};
    }
    Number divided(const Number& a) {
        const std::int64_t by = 1 + choices_.below(9);
        const bool remainder = choices_.below(2) == 1;
        Number result{within(a, Product) + (remainder ? " % " : " / ") + std::to_string(by), {}, Product};
        if (a.value) result.value = remainder ? *a.value % by : *a.value / by;
        return result;
    }
    Number signedNumber(const Number& a) {
        const char sign = "-~+"[choices_.below(3)];
        Number result{std::string(1, sign) + " " + within(a, Primary), {}, Primary};
        if (a.value) result.value = sign == '-' ? -*a.value : sign == '~' ? ~*a.value : *a.value;
        return result;
    }
    Number searched(int depth) {
        const Condition when = condition(depth - 1), second = condition(depth - 1);
        const Number a = number(depth - 1), b = number(depth - 1), otherwise = number(depth - 1);
        const bool first = when.value.value_or(false);
        return {"CASE WHEN " + when.text + " THEN " + a.text + " WHEN " + second.text + " THEN " + b.text +
                    " ELSE " + otherwise.text + " END",
                first                          ? a.value
                : second.value.value_or(false) ? b.value
                                               : otherwise.value,
                Primary};
    }
    Number simpleCase(int depth) {
        const Number of = number(depth - 1), when = number(depth - 1), then = number(depth - 1);
        const bool equal = of.value && when.value && *of.value == *when.value;
        return {"CASE " + of.text + " WHEN " + when.text + " THEN " + then.text + " END",
                equal ? then.value : std::nullopt, Primary};
    }
    static Number isNull(const Number& a, const Number& b) {
        return {"ISNULL(" + a.text + ", " + b.text + ")", a.value ? a.value : b.value, Primary};
    }
    static Number nullIf(const Number& a, const Number& b) {
        const bool equal = a.value && b.value && *a.value == *b.value;
        return {"NULLIF(" + a.text + ", " + b.text + ")", equal ? std::nullopt : a.value, Primary};
    }
    static Number length(const Text& a) {
        Number result{"LEN(" + a.text + ")", {}, Primary};
        if (a.value) result.value = static_cast<std::int64_t>(withoutEnd(*a.value).size());
        return result;
    }
    static Number casted(const Number& a) {
        return {"CAST(CAST(" + a.text + " AS VARCHAR(20)) AS BIGINT)", a.value, Primary};
    }

    Text text(int depth) {
        const unsigned choice = depth <= 0 || choices_.ended() ? choices_.below(2) : choices_.below(6);
        if (choice >= 4) {
            const Text a = text(depth - 1), b = text(depth - 1);
            Text result{within(a, Sum) + " + " + within(b, Product), {}, Sum};
            if (a.value && b.value) result.value = *a.value + *b.value;
            return result;
        }
        if (choice == 3) {
            const Text a = text(depth - 1);
            const unsigned count = choices_.below(4);
            Text result{"LEFT(" + a.text + ", " + std::to_string(count) + ")", {}, Primary};
            if (a.value) result.value = a.value->substr(0, count);
            return result;
        }
        constexpr std::string_view texts[] = {"", "a", "B", "b ", "it's", "-- x", "A", "1"};
        const unsigned which = choices_.below(9);
        if (which == 8) return {"NULL", {}, Primary};
        return {workbench::literal(texts[which]), std::string(texts[which]), Primary};
    }

    Condition junction(int depth, bool isAnd) {
        const Condition a = condition(depth - 1), b = condition(depth - 1);
        Condition result{
            within(a, isAnd ? And : Or) + (isAnd ? " AND " : " OR ") + within(b, isAnd ? Not : And),
            {},
            isAnd ? And : Or};
        const bool deciding = !isAnd;
        if (a.value == deciding || b.value == deciding) {
            result.value = deciding;
        } else if (a.value && b.value) {
            result.value = !deciding;
        }
        return result;
    }
    Condition negated(const Condition& a) {
        Condition result{"NOT " + within(a, Predicate), {}, Not};
        if (a.value) result.value = !*a.value;
        return result;
    }
    template <class T>
    Condition comparison(const std::string& a, const std::string& b, const std::optional<T>& x,
                         const std::optional<T>& y) {
        constexpr const char* signs[] = {"=", "<>", "<", "<=", ">", ">=", "!=", "!<", "!>"};
        const unsigned sign = choices_.below(9);
        Condition result{a + " " + signs[sign] + " " + b, {}, Predicate};
        if (!x || !y) return result;
        const bool values[] = {*x == *y, *x != *y, *x<*y, *x <= *y, *x> * y, *x >= *y, *x != *y,
                               *x >= *y, *x <= *y};
        result.value = values[sign];
        return result;
    }
    Condition compared(const Number& a, const Number& b) {
        return comparison(within(a, Sum), within(b, Sum), a.value, b.value);
    }
    Condition comparedTexts(const Text& a, const Text& b) {
        return comparison(within(a, Sum), within(b, Sum), comparable(a.value), comparable(b.value));
    }
    static std::string withoutEnd(std::string text) {
        text.erase(text.find_last_not_of(' ') + 1);
        return text;
    }
    static std::optional<std::string> comparable(const std::optional<std::string>& text) {
        if (!text) return {};
        return modSharedStrings::toLower(withoutEnd(*text));
    }
    Condition between(const Number& a, const Number& low, const Number& high, bool isNot) {
        Condition result{within(a, Sum) + (isNot ? " NOT" : "") + " BETWEEN " + within(low, Sum) + " AND " +
                             within(high, Sum),
                         {},
                         Predicate};
        const auto least = [](const Number& x, const Number& y) -> std::optional<bool> {
            if (!x.value || !y.value) return {};
            return *x.value >= *y.value;
        };
        const auto above = least(a, low), below = least(high, a);
        if (above == false || below == false) {
            result.value = isNot;
        } else if (above && below) {
            result.value = !isNot;
        }
        return result;
    }
    Condition in(int depth, bool isNot) {
        const Number a = number(depth - 1);
        Condition result{within(a, Sum) + (isNot ? " NOT IN (" : " IN ("),
                         !a.value ? std::nullopt : std::optional(isNot), Predicate};
        for (unsigned i = 0, count = 1 + choices_.below(3); i < count; ++i) {
            const Number one = number(depth - 1);
            result.text += (i == 0 ? "" : ", ") + one.text;
            if (!a.value || result.value == !isNot) continue;
            result.value = !one.value               ? std::nullopt
                           : *one.value == *a.value ? std::optional(!isNot)
                                                    : result.value;
        }
        result.text += ")";
        return result;
    }
    Condition nullTest(const Number& a, bool isNot) {
        return {within(a, Sum) + (isNot ? " IS NOT NULL" : " IS NULL"), a.value.has_value() == isNot,
                Predicate};
    }

    fuzz::Choices choices_;
};

std::string runValue(const std::string& statement) {
    static SQLite::Database database(":memory:", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    static const bool ready = (workbench::addSqlFunctions(database), true);
    (void)ready;
    SQLite::Statement query(database, workbench::translateSql(statement).sql);
    query.executeStep();
    return query.getColumn(0).isNull() ? "NULL" : query.getColumn(0).getString();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr int depth = 4;
    Expressions expressions(fuzz::textOf(data, size));
    const Number number = expressions.number(depth);
    const Condition condition = expressions.condition(depth);
    const std::string first = "SELECT " + number.text;
    const std::string second = "SELECT CASE WHEN " + condition.text + " THEN 'true' WHEN NOT (" +
                               condition.text + ") THEN 'false' ELSE 'NULL' END";
    std::string statement = first;
    try {
        fuzz::same(runValue(first), number.value ? std::to_string(*number.value) : "NULL", first);
        statement = second;
        const std::string expected = !condition.value ? "NULL" : *condition.value ? "true" : "false";
        fuzz::same(runValue(second), expected, second);
    } catch (const std::exception& error) {
        fuzz::fail(std::string(error.what()) + " in: " + statement);
    }
    return 0;
}
