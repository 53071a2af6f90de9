#include "workbench/sql/SqlFunctionCall.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "workbench/sql/SqlDates.h"

namespace tsln::workbench {

std::string SqlValue::text() const {
    if (sqlite3_value_type(value_) == SQLITE_FLOAT) {
        char buffer[32];
        auto end = std::to_chars(buffer, buffer + sizeof buffer, real()).ptr;
        return {buffer, end};
    }
    auto bytes = reinterpret_cast<const char*>(sqlite3_value_text(value_));
    return bytes ? std::string(bytes, std::size_t(sqlite3_value_bytes(value_))) : std::string();
}

std::string SqlValue::joined() const {
    std::string result = text();
    if (isText() && result.size() == 19) {
        if (auto date = readStoredDate(result)) return date->text(0);
    }
    return result;
}

bool SqlCall::anyNull() const {
    return std::ranges::any_of(values_, [](sqlite3_value* value) { return SqlValue(value).isNull(); });
}

std::string_view trimmed(std::string_view text) {
    while (text.starts_with(' '))
        text.remove_prefix(1);
    while (text.ends_with(' '))
        text.remove_suffix(1);
    return text;
}

void refuseConversion(const std::string& text, std::string_view type) {
    throw SqlRefusal("Conversion failed when converting the text '" + text.substr(0, 100) + "' to " +
                     std::string(type) + ".");
}

double toReal(SqlValue value, std::string_view type) {
    if (!value.isText()) return value.real();
    std::string text = value.text();
    std::string_view digits = trimmed(text);
    if (digits.starts_with('+')) digits.remove_prefix(1);
    double result = 0;
    auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), result);
    if (error != std::errc() || end != digits.data() + digits.size() || !std::isfinite(result)) {
        if (!digits.empty() || type == "decimal") refuseConversion(text, type);
        return 0;  // the server reads an empty text as zero, except for a decimal
    }
    return result;
}

std::int64_t toInteger(SqlValue value, std::string_view type) {
    if (value.isInteger()) return value.integer();
    if (!value.isText()) {
        double number = std::trunc(value.real());
        if (!(std::abs(number) < 9.2e18))
            throw SqlRefusal("The number is too large for " + std::string(type) + ".");
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

}  // namespace tsln::workbench
