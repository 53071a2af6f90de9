#include "automation/NumericText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "automation/Object.h"

namespace tsln {
namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// The parts of a number: sign * digits * 10^scale, or the bits of a hexadecimal or octal number.
struct Number {
    /// Enough digits to distinguish any two doubles. All digits beyond these count as one non-zero digit.
    static constexpr std::size_t mostDigits = 40;

    bool negative = false;
    bool isBits = false;
    std::uint64_t bits = 0;
    std::array<char, mostDigits + 1> digits;  // no leading zeros
    std::size_t count = 0;
    std::int64_t scale = 0;
    bool cutNonZero = false;

    void addDigit(char digit, bool isFraction) {
        if (count == 0 && digit == '0') {
            scale -= isFraction;
        } else if (count < mostDigits) {
            digits[count++] = digit;
            scale -= isFraction;
        } else {
            cutNonZero |= digit != '0';
            scale += !isFraction;
        }
    }
};

class Scanner {
  public:
    explicit Scanner(std::string_view text) : at_(text.data()), end_(at_ + text.size()) {}

    Reading scan(Number& number) {
        skipBlanks();
        if (next() == '&') return scanBits(number);
        scanBefore(number);
        if (!scanDigits(number) || !scanExponent(number) || !scanAfter(number)) return Reading::Unreadable;
        return Reading::Done;
    }

  private:
    char next() const { return at_ < end_ ? *at_ : '\0'; }
    void skipBlanks() {
        while (at_ < end_ && isBlank(*at_))
            ++at_;
    }

    /// Reads a sign, "$" or parenthesis; false if there is none, or for the second one of a kind.
    bool scanMark(Number& number, char parenthesis) {
        const char c = next();
        if (c == '$' && !currency_) {
            currency_ = true;
        } else if ((c == '-' || c == '+') && !sign_ && !open_ && !closed_) {
            sign_ = true;
            number.negative = c == '-';
        } else if (c == parenthesis && !sign_ && open_ == (c == ')')) {
            (c == '(' ? open_ : closed_) = true;
            if (c == ')') open_ = false;
            number.negative = true;
        } else {
            return false;
        }
        ++at_;
        return true;
    }

    void scanBefore(Number& number) {
        do
            skipBlanks();
        while (scanMark(number, '('));
    }

    bool scanAfter(Number& number) {
        do
            skipBlanks();
        while (scanMark(number, ')'));
        return at_ == end_ && !open_;
    }

    /// Reads the digits. Commas may stand anywhere between those before the point, as the platform allows.
    bool scanDigits(Number& number) {
        bool any = false;
        bool fraction = false;
        for (; at_ < end_; ++at_) {
            if (isDigit(*at_)) {
                number.addDigit(*at_, fraction);
                any = true;
            } else if (*at_ == '.' && !fraction) {
                fraction = true;
            } else if (*at_ != ',' || fraction || !any) {
                break;
            }
        }
        return any;
    }

    bool scanExponent(Number& number) {
        const char letter = static_cast<char>(next() | 0x20);
        if (letter != 'e' && letter != 'd') return true;
        ++at_;
        const bool negative = next() == '-';
        if (negative || next() == '+') ++at_;
        if (!isDigit(next())) return false;
        std::int64_t exponent = 0;
        for (; isDigit(next()); ++at_)
            exponent = std::min<std::int64_t>(exponent * 10 + (*at_ - '0'), 1'000'000'000);
        number.scale += negative ? -exponent : exponent;
        return true;
    }

    Reading scanBits(Number& number) {
        ++at_;
        const char letter = static_cast<char>(next() | 0x20);
        if (letter != 'h' && letter != 'o') return Reading::Unreadable;
        ++at_;
        const auto [stop, error] = std::from_chars(at_, end_, number.bits, letter == 'h' ? 16 : 8);
        if (error == std::errc::invalid_argument) return Reading::Unreadable;
        at_ = stop;
        skipBlanks();
        if (at_ != end_) return Reading::Unreadable;
        number.isBits = true;
        return error == std::errc() ? Reading::Done : Reading::Overflow;
    }

    const char* at_;
    const char* end_;
    bool sign_ = false;
    bool currency_ = false;
    bool open_ = false;
    bool closed_ = false;
};

/// True when std::from_chars reads the beginning of the text as this reader does: digits, or "-" and digits.
bool startsPlainly(std::string_view text) {
    const std::size_t first = text.starts_with('-') ? 1 : 0;
    return text.size() > first && isDigit(text[first]);
}

template <class T>
bool readPlain(std::string_view text, T& value) {
    if (!startsPlainly(text)) return false;
    T result = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), result);
    if (error != std::errc() || stop != text.data() + text.size()) return false;
    value = result;
    return true;
}

template <class T>
Reading toFloating(Number& number, T& value) {
    if (number.isBits) {
        value = static_cast<T>(static_cast<std::int64_t>(number.bits));
        return Reading::Done;
    }
    if (number.count == 0) {
        value = 0;
        return Reading::Done;
    }
    // An additional digit 1 stands for the digits that were cut, so that the rounding stays right.
    std::size_t count = number.count;
    std::int64_t scale = number.scale;
    if (number.cutNonZero) {
        number.digits[count++] = '1';
        --scale;
    }
    std::array<char, Number::mostDigits + 32> text;
    char* end = std::copy_n(number.digits.data(), count, text.data());
    *end++ = 'e';
    end = std::to_chars(end, text.data() + text.size(), scale).ptr;
    T result = 0;
    const std::errc error = std::from_chars(text.data(), end, result).ec;
    if (error != std::errc()) {
        if (static_cast<std::int64_t>(count) + scale > 0) return Reading::Overflow;
        result = 0;  // below the smallest number of the type
    }
    if (std::isinf(result)) return Reading::Overflow;
    value = number.negative ? -result : result;
    return Reading::Done;
}

/// Rounds by the digits, since a double does not hold all 64-bit integers.
Reading toWhole(const Number& number, std::int64_t& value) {
    const std::int64_t wholeDigits = static_cast<std::int64_t>(number.count) + number.scale;
    if (number.count == 0 || wholeDigits < 0) {
        value = 0;
        return Reading::Done;
    }
    if (wholeDigits > 19) return Reading::Overflow;
    std::uint64_t whole = 0;
    const auto wholeCount = static_cast<std::size_t>(wholeDigits);
    for (std::size_t i = 0; i < wholeCount; ++i) {
        whole = whole * 10 + static_cast<std::uint64_t>(i < number.count ? number.digits[i] - '0' : 0);
    }
    if (wholeCount < number.count) {
        const char first = number.digits[wholeCount];
        const bool beyondHalf =
            first > '5' ||
            (first == '5' && (number.cutNonZero || std::any_of(number.digits.data() + wholeCount + 1,
                                                               number.digits.data() + number.count,
                                                               [](char digit) { return digit != '0'; })));
        if (beyondHalf || (first == '5' && whole % 2 == 1)) ++whole;
    }
    constexpr auto most = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (whole > most + (number.negative ? 1 : 0)) return Reading::Overflow;
    value = static_cast<std::int64_t>(number.negative ? 0 - whole : whole);
    return Reading::Done;
}

template <class T>
Reading readWhole(std::string_view text, T& value) {
    if (readPlain(text, value)) return Reading::Done;
    Number number;
    if (const Reading reading = Scanner(text).scan(number); reading != Reading::Done) return reading;
    if (number.isBits) {
        if (number.bits > std::numeric_limits<std::make_unsigned_t<T>>::max()) return Reading::Overflow;
        value = static_cast<T>(number.bits);
        return Reading::Done;
    }
    std::int64_t whole = 0;
    if (const Reading reading = toWhole(number, whole); reading != Reading::Done) return reading;
    if (whole < std::numeric_limits<T>::min() || whole > std::numeric_limits<T>::max())
        return Reading::Overflow;
    value = static_cast<T>(whole);
    return Reading::Done;
}

template <class T>
Reading readFloating(std::string_view text, T& value) {
    if (readPlain(text, value)) return Reading::Done;
    Number number;
    if (const Reading reading = Scanner(text).scan(number); reading != Reading::Done) return reading;
    return toFloating(number, value);
}

std::string floatingText(double value, int precision) {
    if (std::isnan(value)) return "-1.#IND";
    if (std::isinf(value)) return value < 0 ? "-1.#INF" : "1.#INF";
    if (value == 0) return "0";

    // Writes "d.ddde+XX" first, and builds the result from its digits and exponent.
    std::array<char, 48> buffer;
    const char* end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                    std::chars_format::scientific, precision - 1)
                          .ptr;
    const char* mark = std::find(static_cast<const char*>(buffer.data()), end, 'e');
    std::string digits(1, buffer[0]);
    digits.append(static_cast<const char*>(buffer.data()) + 2, mark);
    digits.erase(digits.find_last_not_of('0') + 1);
    int exponent = 0;
    std::from_chars(mark + (mark[1] == '+' ? 2 : 1), end, exponent);

    const int count = static_cast<int>(digits.size());
    std::string text = value < 0 ? "-" : "";
    if (exponent >= precision || count - 1 - exponent > precision) {
        text += digits[0];
        if (count > 1) text.append(".").append(digits, 1);
        text += exponent < 0 ? "E-" : "E+";
        if (std::abs(exponent) < 10) text += '0';
        return text + std::to_string(std::abs(exponent));
    }
    if (exponent < 0) return text.append("0.").append(static_cast<std::size_t>(-exponent - 1), '0') + digits;
    if (count <= exponent + 1)
        return text.append(digits).append(static_cast<std::size_t>(exponent + 1 - count), '0');
    const auto whole = static_cast<std::size_t>(exponent) + 1;
    return text.append(digits, 0, whole).append(".").append(digits, whole);
}

}  // namespace

Reading readNumber(std::string_view text, std::int16_t& value) {
    return readWhole(text, value);
}

Reading readNumber(std::string_view text, std::int32_t& value) {
    return readWhole(text, value);
}

Reading readNumber(std::string_view text, std::int64_t& value) {
    return readWhole(text, value);
}

Reading readNumber(std::string_view text, float& value) {
    return readFloating(text, value);
}

Reading readNumber(std::string_view text, double& value) {
    return readFloating(text, value);
}

Reading readBoolean(std::string_view text, bool& value) {
    for (const bool word : {true, false}) {
        if (sameName(text, word ? "true" : "false") || sameName(text, word ? "#true#" : "#false#")) {
            value = word;
            return Reading::Done;
        }
    }
    double number = 0;
    const Reading reading = readNumber(text, number);
    if (reading == Reading::Done) value = number != 0;
    return reading;
}

double leadingNumber(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    // from_chars would also read "inf" and "nan".
    const std::string_view digits = text.substr(text.starts_with('-') ? 1 : 0);
    if (digits.empty() || (!isDigit(digits.front()) && digits.front() != '.')) return 0;
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

bool isNumericText(std::string_view text) {
    double value = 0;
    return readNumber(text, value) == Reading::Done;
}

std::string numberText(double value) {
    return floatingText(value, 15);
}

std::string numberText(float value) {
    return floatingText(static_cast<double>(value), 7);
}

}  // namespace tsln
