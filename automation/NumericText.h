#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tsln {

/// How reading a text ended. The result variable is written only if this is Done.
enum class Reading { Done, Unreadable, Overflow };

/// Reads numeric text as a person or a database writes it: blanks around it, a sign in front or behind,
/// thousands separators, "$", parentheses for a negative number, a decimal point, an exponent (E or D),
/// &H hexadecimal and &O octal digits. The whole text must be the number. Neither allocates nor throws.
///
/// The integer readers round half to even. Hexadecimal and octal digits are the bits of the result, so
/// "&HFFFF" is -1 as a 16-bit integer and 65535 as a 32-bit one.
Reading readNumber(std::string_view text, std::int16_t& value);
Reading readNumber(std::string_view text, std::int32_t& value);
Reading readNumber(std::string_view text, std::int64_t& value);
Reading readNumber(std::string_view text, float& value);
Reading readNumber(std::string_view text, double& value);

/// The number that the text holds; nullopt when the text is no number.
inline std::optional<double> parseNumber(std::string_view text) {
    double value = 0;
    if (readNumber(text, value) != Reading::Done) return std::nullopt;
    return value;
}

/// The number with which the text begins, after blanks: a sign, digits, a decimal point, an exponent. 0 when it begins
/// with none, or with one that a double cannot hold.
double leadingNumber(std::string_view text);

/// Reads "true", "false", "#TRUE#" and "#FALSE#" in any letter case, and numeric text, of which zero is
/// false.
Reading readBoolean(std::string_view text, bool& value);

/// True when the text reads as a number that a double can hold.
bool isNumericText(std::string_view text);

/// The number with up to 15 significant digits (single precision: 7), without trailing zeros. It is written
/// with an exponent, like "1.5E+20" or "1E-16", if more than 15 (7) digits would stand before or behind the
/// point.
std::string numberText(double value);
std::string numberText(float value);

}  // namespace tsln
