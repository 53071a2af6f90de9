#include "workbench/sql/SqlDates.h"

#include <array>
#include <charconv>
#include <cstdio>

namespace tsln::workbench {

namespace {

using namespace std::chrono;

constexpr std::array monthNames = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

/// Reads a text from left to right.
class Reader {
  public:
    explicit Reader(std::string_view text) : text_(text) {}

    bool done() const { return text_.empty(); }
    bool sign(char c) {
        if (text_.empty() || text_.front() != c) return false;
        text_.remove_prefix(1);
        return true;
    }
    /// Reads a number of `fewest` to `most` digits. Returns -1 when there is none.
    int number(std::size_t fewest, std::size_t most) {
        std::size_t digits = 0;
        while (digits < most && digits < text_.size() && text_[digits] >= '0' && text_[digits] <= '9')
            ++digits;
        if (digits < fewest) return -1;
        int value = -1;
        std::from_chars(text_.data(), text_.data() + digits, value);
        text_.remove_prefix(digits);
        return value;
    }
    bool word(std::string_view capitals) {
        if (text_.size() < capitals.size()) return false;
        for (std::size_t i = 0; i < capitals.size(); ++i) {
            if ((text_[i] & ~0x20) != capitals[i]) return false;
        }
        text_.remove_prefix(capitals.size());
        return true;
    }

  private:
    std::string_view text_;
};

std::optional<SqlDate> makeDate(int y, int m, int d) {
    year_month_day date{year(y), month(unsigned(m)), day(unsigned(d))};
    if (y < 1 || y > 9999 || m < 1 || d < 1 || !date.ok()) return std::nullopt;
    return SqlDate{sys_days(date), true};
}

bool addClock(SqlDate& date, int h, int m, int s) {
    if (h < 0 || h > 23 || m < 0 || m > 59 || s < 0 || s > 59) return false;
    date.time += hours(h) + minutes(m) + seconds(s);
    date.dateOnly = false;
    return true;
}

bool readClock(Reader& in, SqlDate& date) {
    int h = in.number(1, 2);
    if (!in.sign(':')) return false;
    int m = in.number(2, 2), s = in.sign(':') ? in.number(2, 2) : 0;
    if (in.sign('.') && in.number(1, 7) < 0) return false;
    in.sign(' ');
    bool afternoon = in.word("PM"), morning = !afternoon && in.word("AM");
    if (afternoon || morning) {
        if (h < 1 || h > 12) return false;
        h = h % 12 + (afternoon ? 12 : 0);
    }
    return addClock(date, h, m, s);
}

std::string print(const char* format, auto... values) {
    std::array<char, 80> buffer;
    int length = std::snprintf(buffer.data(), buffer.size(), format, values...);
    return {buffer.data(), std::size_t(length)};
}

SqlDate withDays(SqlDate date, sys_days days) {
    date.time = days + date.clock();
    return date;
}

std::int64_t monthsOf(SqlDate date) {
    return date.year() * 12LL + date.month() - 1;
}

std::optional<SqlDate> addMonths(std::int64_t number, SqlDate date) {
    std::int64_t months = monthsOf(date) + number;
    if (number > 120000 || number < -120000 || months < 12 || months >= 120000) return std::nullopt;
    year y(int(months / 12));
    month m(unsigned(months % 12 + 1));
    day last = year_month_day_last(y, month_day_last(m)).day();
    return withDays(date, sys_days(year_month_day(y, m, std::min(date.date().day(), last))));
}

seconds lengthOf(std::string_view part) {
    if (part == "week") return weeks(1);
    if (part == "day") return days(1);
    if (part == "hour") return hours(1);
    if (part == "minute") return minutes(1);
    return seconds(1);
}

}  // namespace

std::string SqlDate::text() const {
    return dateOnly ? text(23) : text(126);
}

std::string SqlDate::text(int style) const {
    int y = year(), m = month(), d = day();
    auto total = clock().count();
    int h = int(total / 3600), min = int(total / 60 % 60), s = int(total % 60);
    switch (style) {
        case 1:
            return print("%02d/%02d/%02d", m, d, y % 100);
        case 3:
            return print("%02d/%02d/%02d", d, m, y % 100);
        case 8:
        case 108:
            return print("%02d:%02d:%02d", h, min, s);
        case 20:
        case 120:
            return print("%04d-%02d-%02d %02d:%02d:%02d", y, m, d, h, min, s);
        case 23:
            return print("%04d-%02d-%02d", y, m, d);
        case 101:
            return print("%02d/%02d/%04d", m, d, y);
        case 103:
            return print("%02d/%02d/%04d", d, m, y);
        case 104:
            return print("%02d.%02d.%04d", d, m, y);
        case 105:
            return print("%02d-%02d-%04d", d, m, y);
        case 110:
            return print("%02d-%02d-%04d", m, d, y);
        case 111:
            return print("%04d/%02d/%02d", y, m, d);
        case 112:
            return print("%04d%02d%02d", y, m, d);
        case 126:
            return print("%04d-%02d-%02dT%02d:%02d:%02d", y, m, d, h, min, s);
        default:
            return print("%s %2d %04d %2d:%02d%s", monthNames[std::size_t(m - 1)], d, y,
                         h % 12 == 0 ? 12 : h % 12, min, h < 12 ? "AM" : "PM");
    }
}

std::optional<SqlDate> readStoredDate(std::string_view text) {
    if (text.size() != 10 && (text.size() != 19 || text[10] != 'T')) return std::nullopt;
    Reader in(text);
    int y = in.number(4, 4);
    if (!in.sign('-')) return std::nullopt;
    int m = in.number(2, 2);
    if (!in.sign('-')) return std::nullopt;
    auto date = makeDate(y, m, in.number(2, 2));
    if (!date || in.done()) return date;
    in.sign('T');
    if (!readClock(in, *date) || !in.done()) return std::nullopt;
    return date;
}

std::optional<SqlDate> readDate(std::string_view text) {
    while (text.starts_with(' '))
        text.remove_prefix(1);
    while (text.ends_with(' '))
        text.remove_suffix(1);
    std::optional<SqlDate> date;
    Reader in(text);
    if (text.find('/') != std::string_view::npos) {
        int m = in.number(1, 2);
        if (!in.sign('/')) return std::nullopt;
        int d = in.number(1, 2);
        if (!in.sign('/')) return std::nullopt;
        date = makeDate(in.number(4, 4), m, d);
    } else {
        int y = in.number(4, 4);
        bool dashed = in.sign('-');
        int m = in.number(2, 2);
        if (dashed && !in.sign('-')) return std::nullopt;
        date = makeDate(y, m, in.number(2, 2));
    }
    if (!date || in.done()) return date;
    if (!in.sign('T') && !in.sign(' ')) return std::nullopt;
    if (!readClock(in, *date) || !in.done()) return std::nullopt;
    return date;
}

std::optional<SqlDate> addToDate(std::string_view part, std::int64_t number, SqlDate date) {
    constexpr std::int64_t most = 400'000'000'000;  // seconds; longer than the years 1 to 9999
    if (number > most || number < -most) return std::nullopt;
    if (part == "year") return addMonths(number * 12, date);
    if (part == "quarter") return addMonths(number * 3, date);
    if (part == "month") return addMonths(number, date);
    seconds step = lengthOf(part);
    if (number > most / step.count() || number < -most / step.count()) return std::nullopt;
    date.time += step * number;
    if (step < days(1)) date.dateOnly = false;
    if (date.time < sys_days(year(1) / 1 / 1) || date.time >= sys_days(year(10000) / 1 / 1))
        return std::nullopt;
    return date;
}

std::int64_t dateDifference(std::string_view part, SqlDate from, SqlDate to) {
    if (part == "year") return to.year() - from.year();
    if (part == "month") return monthsOf(to) - monthsOf(from);
    if (part == "quarter") return monthsOf(to) / 3 - monthsOf(from) / 3;
    auto boundaries = [&](sys_seconds time) {
        seconds since = time - sys_seconds(sys_days(year(1) / 1 / 1));
        if (part == "week") since += days(1);  // weeks begin on Sunday; 1 January of year 1 was a Monday
        return since / lengthOf(part);
    };
    return boundaries(to.time) - boundaries(from.time);
}

std::optional<std::int64_t> partOfDate(std::string_view part, SqlDate date) {
    auto total = date.clock().count();
    if (part == "year") return date.year();
    if (part == "quarter") return (date.month() + 2) / 3;
    if (part == "month") return date.month();
    if (part == "day") return date.day();
    if (part == "hour") return total / 3600;
    if (part == "minute") return total / 60 % 60;
    if (part == "second") return total % 60;
    return std::nullopt;
}

}  // namespace tsln::workbench
