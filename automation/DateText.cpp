#include "automation/DateText.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <ctime>

#include "automation/Object.h"

namespace tsln {
namespace {

using std::chrono::day;
using std::chrono::days;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr sys_days dayZero = year(1899) / 12 / 30;
constexpr int firstDay = -657434;  // 1 January 100
constexpr int lastDay = 2958465;   // 31 December 9999
constexpr int secondsPerDay = 86400;

constexpr std::array<std::string_view, 12> monthNames = {"January",   "February", "March",    "April",
                                                         "May",       "June",     "July",     "August",
                                                         "September", "October",  "November", "December"};

/// 1 to 12 for a month's full or three-letter name, 0 for any other word.
int monthNamed(std::string_view word) {
    for (std::size_t i = 0; i < monthNames.size(); ++i) {
        if (sameName(word, monthNames[i]) || sameName(word, monthNames[i].substr(0, 3)))
            return static_cast<int>(i) + 1;
    }
    return sameName(word, "Sept") ? 9 : 0;
}

enum class Half { None, Morning, Afternoon };

Half halfNamed(std::string_view word) {
    if (sameName(word, "AM") || sameName(word, "A")) return Half::Morning;
    if (sameName(word, "PM") || sameName(word, "P")) return Half::Afternoon;
    return Half::None;
}

struct Token {
    enum Kind { End, Number, Word, Mark };
    Kind kind = End;
    std::string_view text;
    int number = 0;

    bool is(char mark) const { return kind == Mark && text[0] == mark; }
    bool isNumber() const { return kind == Number; }
    /// True for a number that is too large or too long for a day or a month.
    bool isYear() const { return isNumber() && (text.size() > 2 || number > 31); }
};

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isLetter(char c) {
    return (c | 0x20) >= 'a' && (c | 0x20) <= 'z';
}

bool isBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// The words, numbers and marks of a text. A text with more of them than any date has gives no tokens.
class Tokens {
  public:
    explicit Tokens(std::string_view text) {
        std::size_t count = 0;
        while (true) {
            while (!text.empty() && isBlank(text[0]))
                text.remove_prefix(1);
            if (text.empty()) return;
            if (count == tokens_.size() - 2) break;
            if (!take(text, tokens_[count++])) break;
        }
        tokens_.fill({});
    }

    const Token& operator[](std::size_t i) const { return tokens_[std::min(i, tokens_.size() - 1)]; }

  private:
    static bool take(std::string_view& text, Token& token) {
        std::size_t length = 1;
        if (isDigit(text[0])) {
            while (length < text.size() && isDigit(text[length]))
                ++length;
            token.kind = Token::Number;
            if (std::from_chars(text.data(), text.data() + length, token.number).ec != std::errc())
                return false;
        } else if (isLetter(text[0])) {
            while (length < text.size() && isLetter(text[length]))
                ++length;
            token.kind = Token::Word;
        } else {
            token.kind = Token::Mark;
        }
        token.text = text.substr(0, length);
        text.remove_prefix(length);
        return true;
    }

    std::array<Token, 20> tokens_{};  // the last two are always End, so that peek(1) stays inside
};

class DateReader {
  public:
    explicit DateReader(std::string_view text) : tokens_(text) {}

    std::optional<Date> read() {
        const bool timeFirst = isTime();
        if (timeFirst && !readTime()) return {};
        if (peek().kind != Token::End && !readDay()) return {};
        if (!timeFirst && isTime() && !readTime()) return {};
        if (peek().kind != Token::End || at_ == 0) return {};
        return fromCalendar(time_);
    }

  private:
    const Token& peek(std::size_t ahead = 0) const { return tokens_[at_ + ahead]; }
    bool take(char mark) {
        if (!peek().is(mark)) return false;
        ++at_;
        return true;
    }
    bool takeNumber(int& value, int most) {
        if (!peek().isNumber() || peek().text.size() > 2 || peek().number > most) return false;
        value = peek().number;
        ++at_;
        return true;
    }

    bool isTime() const {
        return peek().isNumber() &&
               (peek(1).is(':') || (peek(1).kind == Token::Word && halfNamed(peek(1).text) != Half::None));
    }

    bool readTime() {
        if (!takeNumber(time_.hour, 23)) return false;
        if (take(':')) {
            if (!takeNumber(time_.minute, 59)) return false;
            if (take(':')) {
                if (!takeNumber(time_.second, 59)) return false;
                if (take('.')) {
                    if (!peek().isNumber()) return false;
                    ++at_;
                }
            }
        }
        const Half half = peek().kind == Token::Word ? halfNamed(peek().text) : Half::None;
        if (half == Half::None) return true;
        ++at_;
        if (time_.hour > 12) return false;
        time_.hour = time_.hour % 12 + (half == Half::Afternoon ? 12 : 0);
        return true;
    }

    bool readDay() {
        // Reads the parts up to the end or to the beginning of a time. Marks may stand between parts only.
        std::array<Token, 3> parts;
        std::size_t count = 0;
        std::size_t monthAt = parts.size();
        int namedMonth = 0;
        char mark = 0;
        while (true) {
            const Token& part = peek();
            if (count == parts.size()) return false;
            if (part.kind == Token::Word && !namedMonth) {
                namedMonth = monthNamed(part.text);
                monthAt = count;
                if (!namedMonth) return false;
            } else if (!part.isNumber()) {
                return false;
            }
            parts[count++] = part;
            ++at_;
            const Token& separator = peek();
            if (separator.kind == Token::Mark) {
                const char c = separator.text[0];
                if (c != '/' && c != '-' && c != ',') return false;
                if (mark && c != mark && !namedMonth) return false;
                mark = c;
                ++at_;
            } else if (separator.kind == Token::End || isTime()) {
                break;
            } else if (!namedMonth && separator.kind == Token::Number) {
                return false;  // "3 4 2011" is three numbers, not a date
            }
        }
        if (namedMonth) return readNamed(namedMonth, monthAt, parts, count);
        return mark != ',' && readNumbers(parts, count);
    }

    /// A month's name with a day, a year or both around it.
    bool readNamed(int namedMonth, std::size_t monthAt, const std::array<Token, 3>& parts,
                   std::size_t count) {
        if (count < 2 || monthAt == 2) return false;
        const Token& first = parts[monthAt == 0 ? 1 : 0];
        if (count == 3) {
            const Token& second = parts[2];
            return first.isYear() && monthAt == 1 ? set(first, namedMonth, second.number)
                                                  : set(second, namedMonth, first.number);
        }
        return first.isYear() ? set(first, namedMonth, 1) : setThisYear(namedMonth, first.number);
    }

    bool readNumbers(const std::array<Token, 3>& parts, std::size_t count) {
        const auto& [a, b, c] = parts;
        if (count == 2) {
            if (a.isYear()) return set(a, b.number, 1);
            if (b.isYear()) return set(b, a.number, 1);
            return a.number > 12 ? setThisYear(b.number, a.number) : setThisYear(a.number, b.number);
        }
        if (count != 3) return false;
        if (a.isYear()) return set(a, b.number, c.number);
        return a.number > 12 ? set(c, b.number, a.number) : set(c, a.number, b.number);
    }

    bool set(const Token& yearToken, int monthNumber, int dayNumber) {
        time_.year = yearToken.number;
        if (yearToken.text.size() <= 2) time_.year += time_.year < 30 ? 2000 : 1900;
        time_.month = monthNumber;
        time_.day = dayNumber;
        return true;
    }

    bool setThisYear(int monthNumber, int dayNumber) {
        time_.year = toCalendar(now())->year;
        time_.month = monthNumber;
        time_.day = dayNumber;
        return true;
    }

    Tokens tokens_;
    std::size_t at_ = 0;
    CalendarTime time_;
};

Date dateOf(int serial, int seconds) {
    const double fraction = static_cast<double>(seconds) / secondsPerDay;
    return {serial < 0 ? serial - fraction : serial + fraction};
}

}  // namespace

bool isInRange(Date date) noexcept {
    return date.days > firstDay - 1 && date.days < lastDay + 1;  // false for NaN, too
}

std::optional<CalendarTime> toCalendar(Date date) {
    if (!isInRange(date)) return {};
    const double whole = std::trunc(date.days);
    int serial = static_cast<int>(whole);
    int seconds = static_cast<int>(std::lround(std::abs(date.days - whole) * secondsPerDay));
    if (seconds == secondsPerDay && serial == lastDay) {
        --seconds;  // the last day cannot be rounded up to the next one
    } else if (seconds == secondsPerDay) {
        ++serial;
        seconds = 0;
    }
    const year_month_day civil(dayZero + days(serial));
    return CalendarTime{int(civil.year()),
                        static_cast<int>(unsigned(civil.month())),
                        static_cast<int>(unsigned(civil.day())),
                        seconds / 3600,
                        seconds / 60 % 60,
                        seconds % 60};
}

std::optional<Date> fromCalendar(const CalendarTime& time) {
    const auto within = [](int value, int least, int most) { return value >= least && value <= most; };
    if (!within(time.year, 100, 9999) || !within(time.month, 1, 12) || !within(time.day, 1, 31) ||
        !within(time.hour, 0, 23) || !within(time.minute, 0, 59) || !within(time.second, 0, 59)) {
        return {};
    }
    const year_month_day civil(year(time.year), month(static_cast<unsigned>(time.month)),
                               day(static_cast<unsigned>(time.day)));
    if (!civil.ok()) return {};
    const int serial = static_cast<int>((sys_days(civil) - dayZero).count());
    return dateOf(serial, time.hour * 3600 + time.minute * 60 + time.second);
}

Date now() {
    const std::time_t clock = std::time(nullptr);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &clock);
#else
    localtime_r(&clock, &local);
#endif
    // A leap second (60) is given as second 59.
    return fromCalendar({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                         std::min(local.tm_sec, 59)})
        .value_or(Date());
}

std::optional<Date> readDateText(std::string_view text) {
    return DateReader(text).read();
}

bool isDateText(std::string_view text) {
    return readDateText(text).has_value();
}

std::string dateText(Date date) {
    const std::optional<CalendarTime> time = toCalendar(date);
    if (!time) throw HostError(code::overflow, "Automation", "Overflow.");
    const bool midnight = time->hour == 0 && time->minute == 0 && time->second == 0;
    const bool onDayZero = time->year == 1899 && time->month == 12 && time->day == 30;
    std::array<char, 48> buffer;
    std::string text;
    if (!onDayZero) {
        std::snprintf(buffer.data(), buffer.size(), "%d/%d/%04d", time->month, time->day, time->year);
        text = buffer.data();
    }
    if (midnight && !onDayZero) return text;
    if (!text.empty()) text += ' ';
    const int hour = time->hour % 12 == 0 ? 12 : time->hour % 12;
    std::snprintf(buffer.data(), buffer.size(), "%d:%02d:%02d %s", hour, time->minute, time->second,
                  time->hour < 12 ? "AM" : "PM");
    return text + buffer.data();
}

}  // namespace tsln
