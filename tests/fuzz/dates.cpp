// Dates as text against a slow reference: patterns for the forms, and days counted one year after the other.

#include <chrono>
#include <optional>
#include <regex>

#include "automation/DateText.h"
#include "tests/fuzz/Fuzz.h"

namespace {

using namespace tsln;

/// Longer texts hold no date; the patterns would take much stack.
constexpr std::size_t longest = 80;

bool isLeap(int year) {
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

/// Days since 30 December 1899; nothing for a day that does not exist.
std::optional<int> dayNumber(int year, int month, int day) {
    if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1) return {};
    const int lengths[] = {31, isLeap(year) ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (day > lengths[month - 1]) return {};
    int days = -657434;  // 1 January 100
    for (int y = 100; y < year; ++y)
        days += isLeap(y) ? 366 : 365;
    for (int m = 1; m < month; ++m)
        days += lengths[m - 1];
    return days + day - 1;
}

struct Number {
    int value = 0;
    std::size_t digits = 0;
    explicit Number(const std::string& text) : digits(text.size()) {
        const long long number = std::strtoll(text.c_str(), nullptr, 10);
        value = static_cast<int>(std::min<long long>(number, 1'000'000));
    }
    bool isYear() const { return digits > 2 || value > 31; }
    int year() const { return digits > 2 ? value : value + (value < 30 ? 2000 : 1900); }
};

int thisYear() {
    const auto today = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
    return int(std::chrono::year_month_day(today).year());
}

std::optional<int> numericDay(const std::smatch& part) {
    const Number a(part[1]), b(part[3]);
    if (part[4].matched) {
        const Number c(part[4]);
        if (a.isYear()) return dayNumber(a.year(), b.value, c.value);
        return a.value > 12 ? dayNumber(c.year(), b.value, a.value) : dayNumber(c.year(), a.value, b.value);
    }
    if (a.isYear()) return dayNumber(a.year(), b.value, 1);
    if (b.isYear()) return dayNumber(b.year(), a.value, 1);
    return a.value > 12 ? dayNumber(thisYear(), b.value, a.value) : dayNumber(thisYear(), a.value, b.value);
}

int monthOf(std::string name) {
    name[0] = static_cast<char>(name[0] & ~0x20);
    for (std::size_t i = 1; i < name.size(); ++i)
        name[i] = static_cast<char>(name[i] | 0x20);
    constexpr std::string_view starts = "JanFebMarAprMayJunJulAugSepOctNovDec";
    return static_cast<int>(starts.find(name.substr(0, 3)) / 3) + 1;
}

std::optional<int> namedDay(int month, const std::string& first, const std::string& second, bool monthFirst) {
    const Number a(first);
    if (second.empty())
        return a.isYear() ? dayNumber(a.year(), month, 1) : dayNumber(thisYear(), month, a.value);
    const Number b(second);
    if (a.isYear() && !monthFirst) return dayNumber(a.year(), month, b.value);
    return dayNumber(b.year(), month, a.value);
}

const std::string month =
    "(Jan(?:uary)?|Feb(?:ruary)?|Mar(?:ch)?|Apr(?:il)?|May|June?|July?|Aug(?:ust)?|Sept?|September|Oct(?:ober)?|"
    "Nov(?:ember)?|Dec(?:ember)?)(?![A-Za-z])";
const std::string number = "(\\d+)(?!\\d)", gap = "\\s*[-/,]?\\s*";

const std::regex numeric(number + "\\s*([-/])\\s*" + number + "(?:\\s*\\2\\s*" + number + ")?");
const std::regex dayFirst(number + gap + month + "(?:" + gap + number + ")?", std::regex::icase);
const std::regex nameFirst(month + gap + number + "(?:" + gap + number + ")?", std::regex::icase);
const std::regex clockTime(
    "(\\d{1,2})(?:\\s*:\\s*(\\d{1,2})(?!\\d)(?:\\s*:\\s*(\\d{1,2})(?!\\d)(?:\\s*\\.\\s*\\d+)?)?)?(?:\\s*(AM|PM|A|P))?",
    std::regex::icase);

std::optional<int> secondsOf(const std::string& text) {
    std::smatch part;
    if (!std::regex_match(text, part, clockTime) || (!part[2].matched && !part[4].matched)) return {};
    int hour = std::stoi(part[1]);
    const int minute = part[2].matched ? std::stoi(part[2]) : 0,
              second = part[3].matched ? std::stoi(part[3]) : 0;
    if (hour > 23 || minute > 59 || second > 59) return {};
    if (part[4].matched) {
        if (hour > 12) return {};
        hour = hour % 12 + ((part[4].str()[0] | 0x20) == 'p' ? 12 : 0);
    }
    return hour * 3600 + minute * 60 + second;
}

std::optional<int> dayOf(const std::string& text) {
    std::smatch part;
    if (std::regex_match(text, part, numeric)) return numericDay(part);
    if (std::regex_match(text, part, dayFirst)) return namedDay(monthOf(part[2]), part[1], part[3], false);
    if (std::regex_match(text, part, nameFirst)) return namedDay(monthOf(part[1]), part[2], part[3], true);
    return {};
}

std::string trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\n\v\f\r"), last = text.find_last_not_of(" \t\n\v\f\r");
    return first == text.npos ? "" : std::string(text.substr(first, last - first + 1));
}

/// Day and second as one number; nothing when the text is no date.
std::optional<std::int64_t> slowly(std::string_view given) {
    const std::string text = trimmed(given);
    const auto of = [](std::optional<int> day, std::optional<int> seconds) -> std::optional<std::int64_t> {
        if (!day || !seconds) return {};
        return std::int64_t{*day} * 86400 + *seconds;
    };
    if (const auto time = of(0, secondsOf(text))) return time;
    if (const auto day = of(dayOf(text), 0)) return day;
    for (std::size_t at = 1; at < text.size(); ++at) {
        const std::string left = trimmed(text.substr(0, at)), right = trimmed(text.substr(at));
        const bool divides = !(std::isdigit(text[at - 1]) && std::isdigit(text[at])) &&
                             !(std::isalpha(text[at - 1]) && std::isalpha(text[at]));
        if (!divides) continue;
        if (const auto both = of(dayOf(left), secondsOf(right))) return both;
        if (const auto both = of(dayOf(right), secondsOf(left))) return both;
    }
    return {};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzz::textOf(data, size);
    const std::optional<Date> date = readDateText(text);
    if (size > longest) return 0;
    const auto expected = slowly(text);
    fuzz::same(date.has_value(), expected.has_value(), "whether it is a date");
    if (!date) return 0;
    const auto time = toCalendar(*date);
    fuzz::require(time.has_value(), "a date that was read is out of range");
    const std::int64_t seconds = time->hour * 3600 + time->minute * 60 + time->second;
    const auto day = dayNumber(time->year, time->month, time->day);
    fuzz::same(std::int64_t{day.value_or(0)} * 86400 + seconds, *expected, "day and time");
    fuzz::require(fromCalendar(*time) == date, "the calendar's terms do not give the date again");
    fuzz::require(readDateText(dateText(*date)) == date,
                  "the date's own text is another date: " + dateText(*date));
    return 0;
}
