// Numeric and Boolean text against a slow reference, which keeps all digits and leaves the arithmetic to the C library;
// numbers as text against printf.

#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <optional>

#include "automation/NumericText.h"
#include "tests/fuzz/Fuzz.h"

namespace {

using namespace tsln;

/// digits * 10^exponent, or the bits of a hexadecimal or octal number.
struct Slow {
    bool negative = false;
    std::string digits;
    long long exponent = 0;
    bool isBits = false;
    bool tooLarge = false;  // for 64 bits
    std::uint64_t bits = 0;
};

bool isBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

std::string withoutBlanks(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (!isBlank(c)) result += c;
    }
    return result;
}

bool allIn(std::string_view text, std::string_view characters) {
    return text.find_first_not_of(characters) == text.npos;
}

std::optional<Slow> readBits(std::string_view text) {
    if (text.size() < 3) return {};
    const unsigned base = (text[1] | 0x20) == 'h' ? 16 : (text[1] | 0x20) == 'o' ? 8 : 0;
    while (isBlank(text.back()))
        text.remove_suffix(1);
    if (base == 0 || text.size() < 3) return {};
    constexpr std::string_view digits = "0123456789abcdef";
    Slow number;
    number.isBits = true;
    for (const char c : text.substr(2)) {
        const std::size_t value = digits.find(c >= 'A' && c <= 'F' ? static_cast<char>(c | 0x20) : c);
        if (value >= base) return {};
        number.tooLarge |= number.bits > std::numeric_limits<std::uint64_t>::max() / base;
        number.bits = number.bits * base + value;
    }
    return number;
}

/// The marks before and behind the digits: a dollar sign once, and either one sign or parentheses around.
bool readMarks(std::string_view before, std::string_view behind, Slow& number) {
    const std::string left = withoutBlanks(before), right = withoutBlanks(behind), all = left + right;
    const auto times = [&](char c) { return std::count(all.begin(), all.end(), c); };
    const auto signs = times('+') + times('-');
    const bool enclosed = left.find('(') != left.npos && right.find(')') != right.npos;
    if (!allIn(left, "$+-(") || !allIn(right, "$+-)")) return false;
    if (times('$') > 1 || signs > 1 || times('(') != times(')') || times('(') > 1) return false;
    if (enclosed && signs > 0) return false;
    number.negative = enclosed || times('-') == 1;
    return true;
}

std::optional<Slow> slowly(std::string_view text) {
    while (!text.empty() && isBlank(text[0]))
        text.remove_prefix(1);
    if (text.starts_with('&')) return readBits(text);
    std::size_t at = std::min(text.find_first_of("0123456789."), text.size());
    const std::string_view before = text.substr(0, at);
    Slow number;
    bool any = false, fraction = false;
    for (; at < text.size(); ++at) {
        const char c = text[at];
        if (c >= '0' && c <= '9') {
            number.digits += c;
            number.exponent -= fraction;
            any = true;
        } else if (c == '.' && !fraction) {
            fraction = true;
        } else if (!(c == ',' && any && !fraction)) {
            break;
        }
    }
    if (!any) return {};
    if (at < text.size() && std::string_view("eEdD").find(text[at]) != std::string_view::npos) {
        std::size_t end = at + 1;
        if (end < text.size() && (text[end] == '+' || text[end] == '-')) ++end;
        const std::size_t first = end;
        while (end < text.size() && text[end] >= '0' && text[end] <= '9')
            ++end;
        if (end == first) return {};
        const double exponent = std::strtod(std::string(text.substr(at + 1, end - at - 1)).c_str(), nullptr);
        number.exponent += static_cast<long long>(std::fmax(-1e9, std::fmin(1e9, exponent)));
        at = end;
    }
    if (!readMarks(before, text.substr(at), number)) return {};
    return number;
}

/// Rounds half to even by the written digits, without the sign; nothing for more than 64 bits.
std::optional<std::uint64_t> whole(const Slow& number) {
    std::string digits =
        number.digits.substr(std::min(number.digits.find_first_not_of('0'), number.digits.size()));
    if (digits.empty()) return 0;
    const long long count = static_cast<long long>(digits.size()) + number.exponent;
    if (count > 19) return {};
    if (count < 0) return 0;
    digits.resize(std::max(digits.size(), static_cast<std::size_t>(count)), '0');
    const std::string behind = digits.substr(static_cast<std::size_t>(count));
    std::uint64_t value = 0;
    for (const char c : digits.substr(0, static_cast<std::size_t>(count)))
        value = value * 10 + static_cast<std::uint64_t>(c - '0');
    const std::string half = "5" + std::string(behind.empty() ? 0 : behind.size() - 1, '0');
    if (!behind.empty() && (behind > half || (behind == half && value % 2 == 1))) ++value;
    return value;
}

template <class T>
std::string wholeText(const std::optional<Slow>& number) {
    if (!number) return "unreadable";
    if (number->isBits) {
        if (number->tooLarge || number->bits > std::numeric_limits<std::make_unsigned_t<T>>::max())
            return "overflow";
        return std::to_string(static_cast<T>(number->bits));
    }
    const auto value = whole(*number);
    const std::uint64_t most = std::numeric_limits<T>::max() + std::uint64_t{number->negative};
    if (!value || *value > most) return "overflow";
    return (number->negative && *value > 0 ? "-" : "") + std::to_string(*value);
}

template <class T>
std::string floatingText(const std::optional<Slow>& number) {
    if (!number) return "unreadable";
    char text[64];
    T value;
    if (number->isBits) {
        if (number->tooLarge) return "overflow";
        value = static_cast<T>(static_cast<std::int64_t>(number->bits));
    } else {
        const std::string plain =
            (number->negative ? "-" : "") + number->digits + "e" + std::to_string(number->exponent);
        if constexpr (std::is_same_v<T, float>)
            value = std::strtof(plain.c_str(), nullptr);
        else
            value = std::strtod(plain.c_str(), nullptr);
    }
    if (std::isinf(value)) return "overflow";
    std::snprintf(text, sizeof text, "%a", static_cast<double>(value == 0 ? 0 : value));
    return text;
}

template <class T>
std::string readAs(std::string_view text) {
    T value = 77;
    const Reading reading = readNumber(text, value);
    if (reading != Reading::Done) {
        fuzz::require(value == 77, "a reading that failed wrote its result");
        return reading == Reading::Overflow ? "overflow" : "unreadable";
    }
    if constexpr (std::is_integral_v<T>) return std::to_string(value);
    char hex[64];
    std::snprintf(hex, sizeof hex, "%a", static_cast<double>(value == 0 ? 0 : value));
    return hex;
}

void checkBoolean(std::string_view text, const std::string& number) {
    std::string lower(text);
    for (char& c : lower)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
    const bool isTrue = lower == "true" || lower == "#true#",
               isFalse = lower == "false" || lower == "#false#";
    const std::string expected = isTrue                                           ? "true"
                                 : isFalse                                        ? "false"
                                 : number == "overflow" || number == "unreadable" ? number
                                 : number == "0x0p+0"                             ? "false"
                                                                                  : "true";
    bool value = false;
    const Reading reading = readBoolean(text, value);
    fuzz::same(reading == Reading::Overflow     ? "overflow"
               : reading == Reading::Unreadable ? "unreadable"
               : value                          ? "true"
                                                : "false",
               expected, "as Boolean");
}

void checkLeading(std::string_view text) {
    std::size_t at = std::min(text.find_first_not_of(" \t"), text.size());
    std::string begin;
    const auto take = [&](std::string_view characters) {
        if (at == text.size() || characters.find(text[at]) == characters.npos) return false;
        begin += text[at++];
        return true;
    };
    const auto digits = [&] {
        bool any = false;
        while (take("0123456789"))
            any = true;
        return any;
    };
    take("+-");
    bool any = digits();
    if (take(".")) any = digits() || any;
    if (any && at < text.size() && (text[at] | 0x20) == 'e') {
        const std::string complete = begin;
        take("eE");
        take("+-");
        if (!digits()) begin = complete;
    }
    double expected = any ? std::strtod(begin.c_str(), nullptr) : 0;
    if (std::isinf(expected)) expected = 0;
    fuzz::same(leadingNumber(text), expected, "the leading number");
}

template <class T>
void checkWritten(T value, int precision) {
    if (!std::isfinite(value)) return;
    const double number = static_cast<double>(value);
    char text[512];
    std::snprintf(text, sizeof text, "%.*e", precision - 1, number);
    const int exponent = std::atoi(std::strchr(text, 'e') + 1);
    std::string digits(text, std::strchr(text, 'e'));
    while (digits.ends_with('0'))
        digits.pop_back();
    const int count = static_cast<int>(
        std::count_if(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; }));
    const int behind = std::max(count - 1 - exponent, 0);
    if (number != 0 && (exponent >= precision || behind > precision)) {
        std::snprintf(text, sizeof text, "%.*E", count - 1, number);
    } else {
        std::snprintf(text, sizeof text, "%.*f", number == 0 ? 0 : behind, number == 0 ? 0 : number);
    }
    fuzz::same(numberText(value), std::string(text), "as text");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzz::textOf(data, size);
    const std::optional<Slow> number = slowly(text);
    fuzz::same(readAs<std::int16_t>(text), wholeText<std::int16_t>(number), "as Integer");
    fuzz::same(readAs<std::int32_t>(text), wholeText<std::int32_t>(number), "as Long");
    fuzz::same(readAs<std::int64_t>(text), wholeText<std::int64_t>(number), "as 64-bit number");
    fuzz::same(readAs<float>(text), floatingText<float>(number), "as Single");
    fuzz::same(readAs<double>(text), floatingText<double>(number), "as Double");
    checkBoolean(text, floatingText<double>(number));
    checkLeading(text);
    double written = 0;
    std::memcpy(&written, data, std::min(size, sizeof written));
    checkWritten(written, 15);
    checkWritten(static_cast<float>(written), 7);
    checkWritten(std::strtod(std::string(text).c_str(), nullptr), 15);
    return 0;
}
