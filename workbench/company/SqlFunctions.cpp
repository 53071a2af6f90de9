#include "workbench/company/SqlFunctions.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <random>
#include <span>
#include <stdexcept>
#include <string>

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include "workbench/company/SqlDates.h"
#include "workbench/company/TextOrder.h"

namespace tsln::workbench {

namespace {

/// A refusal with the text that the statement fails with.
using Refusal = std::runtime_error;

/// An argument of a function.
class Value {
  public:
    explicit Value(sqlite3_value* value) : value_(value) {}

    bool isNull() const { return sqlite3_value_type(value_) == SQLITE_NULL; }
    bool isText() const { return sqlite3_value_type(value_) == SQLITE_TEXT; }
    bool isInteger() const { return sqlite3_value_type(value_) == SQLITE_INTEGER; }
    std::int64_t integer() const { return sqlite3_value_int64(value_); }
    double real() const { return sqlite3_value_double(value_); }
    /// The text held; of a number its shortest decimal form.
    std::string text() const {
        if (sqlite3_value_type(value_) == SQLITE_FLOAT) {
            char buffer[32];
            auto end = std::to_chars(buffer, buffer + sizeof buffer, real()).ptr;
            return {buffer, end};
        }
        auto bytes = reinterpret_cast<const char*>(sqlite3_value_text(value_));
        return bytes ? std::string(bytes, std::size_t(sqlite3_value_bytes(value_))) : std::string();
    }
    /// Text as the server turns it into text on its own: a point in time in its short style.
    std::string joined() const {
        std::string result = text();
        if (isText() && result.size() == 19) {
            if (auto date = readStoredDate(result)) return date->text(0);
        }
        return result;
    }
    sqlite3_value* raw() const { return value_; }

  private:
    sqlite3_value* value_;
};

class Call {
  public:
    Call(sqlite3_context* context, int count, sqlite3_value** values)
        : context_(context), values_(values, std::size_t(count)) {}

    std::size_t size() const { return values_.size(); }
    Value operator[](std::size_t i) const { return Value(values_[i]); }
    bool anyNull() const {
        for (sqlite3_value* value : values_) {
            if (Value(value).isNull()) return true;
        }
        return false;
    }

    void give(std::int64_t value) const { sqlite3_result_int64(context_, value); }
    void give(double value) const { sqlite3_result_double(context_, value); }
    void give(std::string_view value) const {
        sqlite3_result_text64(context_, value.data(), value.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    }
    void give(Value value) const { sqlite3_result_value(context_, value.raw()); }
    void giveNull() const { sqlite3_result_null(context_); }

  private:
    sqlite3_context* context_;
    std::span<sqlite3_value*> values_;
};

std::string_view trimmed(std::string_view text) {
    while (text.starts_with(' '))
        text.remove_prefix(1);
    while (text.ends_with(' '))
        text.remove_suffix(1);
    return text;
}

[[noreturn]] void refuseConversion(const std::string& text, std::string_view type) {
    throw Refusal("Conversion failed when converting the text '" + text.substr(0, 100) + "' to " +
                  std::string(type) + ".");
}

/// The number that a text or number stands for; refuses any other text.
double toReal(Value value, std::string_view type) {
    if (!value.isText()) return value.real();
    std::string text = value.text();
    std::string_view digits = trimmed(text);
    if (digits.starts_with('+')) digits.remove_prefix(1);
    double result = 0;
    auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), result);
    if (error != std::errc() || end != digits.data() + digits.size() || !std::isfinite(result)) {
        if (!digits.empty() || type == "decimal") refuseConversion(text, type);
        return 0;  // the server takes an empty text for zero, but not as a decimal
    }
    return result;
}

std::int64_t toInteger(Value value, std::string_view type) {
    if (value.isInteger()) return value.integer();
    if (!value.isText()) {
        double number = std::trunc(value.real());
        if (!(std::abs(number) < 9.2e18))
            throw Refusal("The number is too large for " + std::string(type) + ".");
        return std::int64_t(number);
    }
    std::string text = value.text();
    std::string_view digits = trimmed(text);
    if (digits.starts_with('+')) digits.remove_prefix(1);
    std::int64_t result = 0;
    auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), result);
    if (!digits.empty() && (error != std::errc() || end != digits.data() + digits.size()))
        refuseConversion(text, type);
    return result;
}

SqlDate toDate(Value value) {
    std::string text = value.text();
    auto date = value.isText() ? readDate(text) : std::nullopt;
    if (!date) refuseConversion(text, "date");
    return *date;
}

std::size_t toCount(Value value, const char* function) {
    std::int64_t count = toInteger(value, "int");
    if (count < 0)
        throw Refusal(std::string("Invalid length parameter passed to the ") + function + " function.");
    return std::size_t(count);
}

// ---- Arithmetic

void add(const Call& call) {
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
                throw Refusal("Arithmetic overflow.");
        }
        return call.give(result);
    }
    // A number among texts makes numbers of all: the server joins only what is text throughout.
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
void divide(const Call& call) {
    if (call.anyNull()) return call.giveNull();
    double divisor = toReal(call[1], "number");
    if (divisor == 0) throw Refusal("Divide by zero error encountered.");
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
    // What a person reads as a half (1.005, held as 1.00499...) rounds up, as it does in decimals.
    double result = std::round(scaled + std::copysign(std::abs(scaled) * 1e-15, scaled)) / scale;
    return std::isfinite(result) ? result : value;
}

void round(const Call& call) {
    if (call.anyNull()) return call.giveNull();
    auto digits = std::clamp<std::int64_t>(toInteger(call[1], "int"), -30, 30);
    double result = roundTo(toReal(call[0], "number"), int(digits));
    call[0].isInteger() ? call.give(std::int64_t(result)) : call.give(result);
}

template <double (*Function)(double)>
void roundWhole(const Call& call) {
    if (call.anyNull()) return call.giveNull();
    call[0].isInteger() ? call.give(call[0]) : call.give(Function(toReal(call[0], "number")));
}

/// AVG: of whole numbers the server gives a whole number, cut off.
struct Average {
    double sum;
    std::int64_t wholeSum, count;
    bool fraction;
};
void averageStep(sqlite3_context* context, int, sqlite3_value** values) {
    Value value(values[0]);
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

// ---- Texts

void like(const Call& call) {
    if (call.anyNull()) return call.giveNull();
    std::optional<char32_t> escape;
    if (call.size() == 3) {
        std::u32string sign = decodeUtf8(call[2].text());
        if (sign.size() != 1) throw Refusal("The escape of LIKE must be one character.");
        escape = sign.front();
    }
    call.give(std::int64_t(matchesPattern(call[0].text(), call[1].text(), escape)));
}

void length(const Call& call) {
    if (call.anyNull()) return call.giveNull();
    std::string text = call[0].text();
    while (text.ends_with(' '))
        text.pop_back();  // the server does not count them
    call.give(std::int64_t(decodeUtf8(text).size()));
}

void left(const Call& call) {
    if (call.anyNull()) return call.giveNull();
    call.give(
        encodeUtf8(std::u32string_view(decodeUtf8(call[0].text())).substr(0, toCount(call[1], "LEFT"))));
}

void right(const Call& call) {
    if (call.anyNull()) return call.giveNull();
    std::u32string text = decodeUtf8(call[0].text());
    std::size_t count = std::min(toCount(call[1], "RIGHT"), text.size());
    call.give(encodeUtf8(std::u32string_view(text).substr(text.size() - count)));
}

void substring(const Call& call) {
    if (call.anyNull()) return call.giveNull();
    std::u32string text = decodeUtf8(call[0].text());
    std::int64_t size = std::int64_t(text.size());
    std::int64_t start = std::clamp<std::int64_t>(toInteger(call[1], "int"), -size - (1LL << 32), size + 1);
    std::int64_t count =
        std::min<std::int64_t>(std::int64_t(toCount(call[2], "SUBSTRING")), size + (1LL << 33));
    // A start before the first character uses up the count, as on the server.
    std::int64_t end = std::min(start + count, size + 1);
    start = std::max<std::int64_t>(start, 1);
    if (end <= start) return call.give(std::string_view());
    call.give(encodeUtf8(std::u32string_view(text).substr(std::size_t(start - 1), std::size_t(end - start))));
}

std::u32string folded(std::u32string text) {
    for (char32_t& c : text)
        c = foldCase(c);
    return text;
}

void charIndex(const Call& call) {
    if (call.anyNull()) return call.giveNull();
    std::u32string wanted = folded(decodeUtf8(call[0].text())), text = folded(decodeUtf8(call[1].text()));
    std::int64_t from = call.size() == 3 ? std::max<std::int64_t>(toInteger(call[2], "int"), 1) : 1;
    if (wanted.empty() || from > std::int64_t(text.size())) return call.give(std::int64_t(0));
    std::size_t found = text.find(wanted, std::size_t(from - 1));
    call.give(found == std::u32string::npos ? std::int64_t(0) : std::int64_t(found + 1));
}

void replace(const Call& call) {
    if (call.anyNull()) return call.giveNull();
    std::u32string text = decodeUtf8(call[0].text()), seen = folded(text);
    std::u32string wanted = folded(decodeUtf8(call[1].text())), other = decodeUtf8(call[2].text()), result;
    std::size_t at = 0;
    if (!wanted.empty()) {
        for (std::size_t found; (found = seen.find(wanted, at)) != std::u32string::npos;
             at = found + wanted.size()) {
            result.append(text, at, found - at).append(other);
        }
    }
    call.give(encodeUtf8(result.append(text, at)));
}

/// CONCAT: a NULL is an empty text here.
void concat(const Call& call) {
    std::string result;
    for (std::size_t i = 0; i < call.size(); ++i)
        result += call[i].joined();
    call.give(std::string_view(result));
}

/// First, middle initial and last name, without the parts that are missing.
void buildEmployeeName(const Call& call) {
    std::string result;
    for (std::size_t i = 0; i < 3; ++i) {
        std::string part(trimmed(call[i].text()));
        if (part.empty()) continue;
        if (!result.empty()) result += ' ';
        result += part;
    }
    call.give(std::string_view(result));
}

void newId(const Call& call) {
    static thread_local std::mt19937_64 random{std::random_device{}()};
    std::uint64_t high = (random() & ~0xF000ULL) | 0x4000, low = (random() & ~(3ULL << 62)) | (2ULL << 62);
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%08X-%04X-%04X-%04X-%012llX", unsigned(high >> 32),
                  unsigned(high >> 16) & 0xFFFF, unsigned(high) & 0xFFFF, unsigned(low >> 48),
                  static_cast<unsigned long long>(low & 0xFFFFFFFFFFFFULL));
    call.give(std::string_view(buffer));
}

// ---- Conversions

/// (value, length or -1, date style or NULL, 1 to fill up with blanks)
void toText(const Call& call) {
    if (call[0].isNull()) return call.giveNull();
    std::string text = call[0].text();
    std::int64_t length = call[1].integer();
    if (call[0].isText()) {
        if (auto date = readStoredDate(text)) {
            if (!call[2].isNull()) {
                text = date->text(int(call[2].integer()));
            } else if (!date->dateOnly) {
                text = date->text(0);
            }
        }
    } else if (length >= 0 && text.size() > std::size_t(length)) {
        text = "*";  // the server's mark for a number that the text has no room for
    }
    if (length >= 0) {
        std::u32string characters = decodeUtf8(text);
        if (characters.size() > std::size_t(length)) characters.resize(std::size_t(length));
        if (call[3].integer() != 0) characters.resize(std::size_t(length), U' ');
        text = encodeUtf8(characters);
    }
    call.give(std::string_view(text));
}

void toInt(const Call& call) {
    if (call[0].isNull()) return call.giveNull();
    std::string type = call[1].text();
    std::int64_t value = toInteger(call[0], type);
    bool fits = type == "TINYINT"    ? value >= 0 && value <= 255
                : type == "SMALLINT" ? value >= INT16_MIN && value <= INT16_MAX
                : type == "INT"      ? value >= INT32_MIN && value <= INT32_MAX
                                     : true;
    if (!fits) throw Refusal("The number " + std::to_string(value) + " is too large for " + type + ".");
    call.give(value);
}

void toBit(const Call& call) {
    if (call[0].isNull()) return call.giveNull();
    if (call[0].isText()) {
        std::string text = call[0].text();
        if (compareText(text, "true") == 0) return call.give(std::int64_t(1));
        if (compareText(text, "false") == 0) return call.give(std::int64_t(0));
    }
    call.give(std::int64_t(toReal(call[0], "bit") != 0));
}

void toDecimal(const Call& call) {
    if (call[0].isNull()) return call.giveNull();
    call.give(roundTo(toReal(call[0], "decimal"), int(std::min<std::int64_t>(call[1].integer(), 30))));
}

void toFloat(const Call& call) {
    call[0].isNull() ? call.giveNull() : call.give(toReal(call[0], "float"));
}

template <bool DateOnly>
void toDateText(const Call& call) {
    if (call[0].isNull()) return call.giveNull();
    SqlDate date = toDate(call[0]);
    date.dateOnly = DateOnly;
    call.give(date.text());
}

// ---- Dates

void dateAdd(const Call& call) {
    if (call.anyNull()) return call.giveNull();
    auto date = addToDate(call[0].text(), toInteger(call[1], "int"), toDate(call[2]));
    if (!date) throw Refusal("Adding a value to a date column caused an overflow.");
    call.give(date->text());
}

void dateDiff(const Call& call) {
    if (call.anyNull()) return call.giveNull();
    call.give(dateDifference(call[0].text(), toDate(call[1]), toDate(call[2])));
}

void datePart(const Call& call) {
    if (call.anyNull()) return call.giveNull();
    auto part = partOfDate(call[0].text(), toDate(call[1]));
    if (!part) throw Refusal("DATEPART of a " + call[0].text() + " is not known to this database.");
    call.give(*part);
}

/// Exceptions must not travel through SQLite.
template <void (*Function)(const Call&)>
void guarded(sqlite3_context* context, int count, sqlite3_value** values) {
    try {
        Function(Call(context, count, values));
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(context);
    } catch (const std::exception& error) {
        sqlite3_result_error(context, error.what(), -1);
    }
}

struct Entry {
    const char* name;
    int arguments;  ///< -1 for any number
    void (*function)(sqlite3_context*, int, sqlite3_value**);
};
constexpr Entry kEntries[] = {
    {"tsql_add", -1, guarded<add>},
    {"tsql_bit", 1, guarded<toBit>},
    {"tsql_ceiling", 1, guarded<roundWhole<std::ceil>>},
    {"tsql_charindex", -1, guarded<charIndex>},
    {"tsql_concat", -1, guarded<concat>},
    {"tsql_date", 1, guarded<toDateText<true>>},
    {"tsql_dateadd", 3, guarded<dateAdd>},
    {"tsql_datediff", 3, guarded<dateDiff>},
    {"tsql_datepart", 2, guarded<datePart>},
    {"tsql_datetime", 1, guarded<toDateText<false>>},
    {"tsql_decimal", 2, guarded<toDecimal>},
    {"tsql_divide", 2, guarded<divide<false>>},
    {"tsql_floor", 1, guarded<roundWhole<std::floor>>},
    {"tsql_int", 2, guarded<toInt>},
    {"tsql_left", 2, guarded<left>},
    {"tsql_len", 1, guarded<length>},
    {"tsql_like", -1, guarded<like>},
    {"tsql_modulo", 2, guarded<divide<true>>},
    {"tsql_real", 1, guarded<toFloat>},
    {"tsql_replace", 3, guarded<replace>},
    {"tsql_right", 2, guarded<right>},
    {"tsql_round", 2, guarded<round>},
    {"tsql_substring", 3, guarded<substring>},
    {"tsql_text", 4, guarded<toText>},
    {"dbo_buildemployeename", 3, guarded<buildEmployeeName>},
};

int collate(void*, int leftSize, const void* left, int rightSize, const void* right) {
    return compareText({static_cast<const char*>(left), std::size_t(leftSize)},
                       {static_cast<const char*>(right), std::size_t(rightSize)});
}

}  // namespace

void addSqlFunctions(SQLite::Database& database) {
    for (const Entry& entry : kEntries) {
        database.createFunction(entry.name, entry.arguments, true, nullptr, entry.function);
    }
    database.createFunction("tsql_newid", 0, false, nullptr, guarded<newId>);
    database.createFunction("tsql_avg", 1, true, nullptr, nullptr, averageStep, averageFinal);
    int result =
        sqlite3_create_collation_v2(database.getHandle(), "NOCASE", SQLITE_UTF8, nullptr, collate, nullptr);
    if (result != SQLITE_OK) throw SQLite::Exception(database.getHandle(), result);
}

}  // namespace tsln::workbench
