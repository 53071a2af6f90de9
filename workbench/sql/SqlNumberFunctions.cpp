#include <algorithm>
#include <cmath>
#include <string>

#include <sqlite3.h>

#include "workbench/sql/SqlFunctionCall.h"
#include "workbench/sql/SqlFunctionTables.h"
#include "workbench/sql/TextOrder.h"

namespace tsln::workbench {

namespace {

void add(const SqlCall& call) {
    if (call.anyNull()) return call.giveNull();
    bool text = true, number = true, whole = true;
    for (std::size_t i = 0; i < call.size(); ++i) {
        text = text && call[i].isText();
        number = number && !call[i].isText();
        whole = whole && call[i].isInteger();
    }
    if (text) {
        std::string result;
        for (std::size_t i = 0; i < call.size(); ++i)
            result += call[i].text();
        return call.give(std::string_view(result));
    }
    if (whole) {
        std::int64_t result = 0;
        for (std::size_t i = 0; i < call.size(); ++i) {
            if (__builtin_add_overflow(result, call[i].integer(), &result))
                throw SqlRefusal("Arithmetic overflow.");
        }
        return call.give(result);
    }
    // With at least one number, all texts are converted to numbers: the server joins only texts.
    double result = 0;
    bool fraction = false;
    for (std::size_t i = 0; i < call.size(); ++i) {
        double part = toReal(call[i], "number");
        fraction = fraction || (!call[i].isInteger() && part != std::trunc(part));
        result += part;
    }
    if (!number && !fraction && std::abs(result) < 1e15) return call.give(std::int64_t(result));
    call.give(result);
}

template <bool Modulo>
void divide(const SqlCall& call) {
    if (call.anyNull()) return call.giveNull();
    double divisor = toReal(call[1], "number");
    if (divisor == 0) throw SqlRefusal("Divide by zero error encountered.");
    if (call[0].isInteger() && call[1].isInteger()) {
        if (call[1].integer() == -1) return Modulo ? call.give(std::int64_t(0)) : call.give(-call[0].real());
        return call.give(Modulo ? call[0].integer() % call[1].integer()
                                : call[0].integer() / call[1].integer());
    }
    double dividend = toReal(call[0], "number");
    call.give(Modulo ? std::fmod(dividend, divisor) : dividend / divisor);
}

double roundTo(double value, int digits) {
    double scale = std::pow(10.0, digits);
    double scaled = value * scale;
    // A decimal half such as 1.005, stored as 1.00499..., is rounded up, as in decimal arithmetic.
    double result = std::round(scaled + std::copysign(std::abs(scaled) * 1e-15, scaled)) / scale;
    return std::isfinite(result) ? result : value;
}

void round(const SqlCall& call) {
    if (call.anyNull()) return call.giveNull();
    auto digits = std::clamp<std::int64_t>(toInteger(call[1], "int"), -30, 30);
    double result = roundTo(toReal(call[0], "number"), int(digits));
    call[0].isInteger() ? call.give(std::int64_t(result)) : call.give(result);
}

template <double (*Function)(double)>
void roundWhole(const SqlCall& call) {
    if (call.anyNull()) return call.giveNull();
    call[0].isInteger() ? call.give(call[0]) : call.give(Function(toReal(call[0], "number")));
}

/// AVG. For whole numbers the server returns a whole number, truncated.
struct Average {
    double sum;
    std::int64_t wholeSum, count;
    bool fraction;
};
void averageStep(sqlite3_context* context, int, sqlite3_value** values) {
    SqlValue value(values[0]);
    auto average = static_cast<Average*>(sqlite3_aggregate_context(context, sizeof(Average)));
    if (!average || value.isNull()) return;
    ++average->count;
    average->sum += value.real();
    if (!value.isInteger() ||
        __builtin_add_overflow(average->wholeSum, value.integer(), &average->wholeSum)) {
        average->fraction = true;
    }
}
void averageFinal(sqlite3_context* context) {
    auto average = static_cast<Average*>(sqlite3_aggregate_context(context, 0));
    if (!average || average->count == 0) return sqlite3_result_null(context);
    if (average->fraction) return sqlite3_result_double(context, average->sum / double(average->count));
    sqlite3_result_int64(context, average->wholeSum / average->count);
}

void toInt(const SqlCall& call) {
    if (call[0].isNull()) return call.giveNull();
    std::string type = call[1].text();
    std::int64_t value = toInteger(call[0], type);
    bool fits = type == "TINYINT"    ? value >= 0 && value <= 255
                : type == "SMALLINT" ? value >= INT16_MIN && value <= INT16_MAX
                : type == "INT"      ? value >= INT32_MIN && value <= INT32_MAX
                                     : true;
    if (!fits) throw SqlRefusal("The number " + std::to_string(value) + " is too large for " + type + ".");
    call.give(value);
}

void toBit(const SqlCall& call) {
    if (call[0].isNull()) return call.giveNull();
    if (call[0].isText()) {
        std::string text = call[0].text();
        if (compareText(text, "true") == 0) return call.give(std::int64_t(1));
        if (compareText(text, "false") == 0) return call.give(std::int64_t(0));
    }
    call.give(std::int64_t(toReal(call[0], "bit") != 0));
}

void toDecimal(const SqlCall& call) {
    if (call[0].isNull()) return call.giveNull();
    call.give(roundTo(toReal(call[0], "decimal"), int(std::min<std::int64_t>(call[1].integer(), 30))));
}

void toFloat(const SqlCall& call) {
    call[0].isNull() ? call.giveNull() : call.give(toReal(call[0], "float"));
}

constexpr SqlFunctionEntry entries[] = {
    {"tsql_add", -1, guarded<add>},
    {"tsql_bit", 1, guarded<toBit>},
    {"tsql_ceiling", 1, guarded<roundWhole<std::ceil>>},
    {"tsql_decimal", 2, guarded<toDecimal>},
    {"tsql_divide", 2, guarded<divide<false>>},
    {"tsql_floor", 1, guarded<roundWhole<std::floor>>},
    {"tsql_int", 2, guarded<toInt>},
    {"tsql_modulo", 2, guarded<divide<true>>},
    {"tsql_real", 1, guarded<toFloat>},
    {"tsql_round", 2, guarded<round>},
    {.name = "tsql_avg", .arguments = 1, .step = averageStep, .final = averageFinal},
};

}  // namespace

std::span<const SqlFunctionEntry> sqlNumberFunctions() {
    return entries;
}

}  // namespace tsln::workbench
