#pragma once

#include <cstdint>
#include <new>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include <sqlite3.h>

namespace tsln::workbench {

/// An SQL function's error; the statement fails with its text.
using SqlRefusal = std::runtime_error;

/// An argument of a function.
class SqlValue {
  public:
    explicit SqlValue(sqlite3_value* value) : value_(value) {}

    bool isNull() const { return sqlite3_value_type(value_) == SQLITE_NULL; }
    bool isText() const { return sqlite3_value_type(value_) == SQLITE_TEXT; }
    bool isInteger() const { return sqlite3_value_type(value_) == SQLITE_INTEGER; }
    std::int64_t integer() const { return sqlite3_value_int64(value_); }
    double real() const { return sqlite3_value_double(value_); }
    /// The text, or a number in its shortest decimal form.
    std::string text() const;
    /// The text as the server converts it implicitly: a point in time in its short style.
    std::string joined() const;
    sqlite3_value* raw() const { return value_; }

  private:
    sqlite3_value* value_;
};

/// A call of a function: its arguments and its result.
class SqlCall {
  public:
    SqlCall(sqlite3_context* context, int count, sqlite3_value** values)
        : context_(context), values_(values, std::size_t(count)) {}

    std::size_t size() const { return values_.size(); }
    SqlValue operator[](std::size_t i) const { return SqlValue(values_[i]); }
    bool anyNull() const;

    void give(std::int64_t value) const { sqlite3_result_int64(context_, value); }
    void give(double value) const { sqlite3_result_double(context_, value); }
    void give(std::string_view value) const {
        sqlite3_result_text64(context_, value.data(), value.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    }
    void give(SqlValue value) const { sqlite3_result_value(context_, value.raw()); }
    void giveNull() const { sqlite3_result_null(context_); }

  private:
    sqlite3_context* context_;
    std::span<sqlite3_value*> values_;
};

/// Returns the text without blanks at both ends.
std::string_view trimmed(std::string_view text);

/// Raises the error of a text that is no `type`.
[[noreturn]] void refuseConversion(const std::string& text, std::string_view type);
/// Returns the number, also from text that holds one. Raises SqlRefusal, which names `type`, for another text and a
/// number that is too large.
double toReal(SqlValue value, std::string_view type);
std::int64_t toInteger(SqlValue value, std::string_view type);

/// An exception must not pass through SQLite, so it becomes the function's error.
template <void (*Function)(const SqlCall&)>
void guarded(sqlite3_context* context, int count, sqlite3_value** values) {
    try {
        Function(SqlCall(context, count, values));
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(context);
    } catch (const std::exception& error) {
        sqlite3_result_error(context, error.what(), -1);
    }
}

}  // namespace tsln::workbench
