#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace tsln::workbench {

/// A date or a point in time, as the database stores it: text "YYYY-MM-DD" or "YYYY-MM-DDTHH:MM:SS". Years 1 to 9999;
/// no time zone; fractions of seconds are cut off.
struct SqlDate {
    std::chrono::sys_seconds time{};
    bool dateOnly = false;

    std::chrono::year_month_day date() const {
        return std::chrono::year_month_day(std::chrono::floor<std::chrono::days>(time));
    }
    int year() const { return int(date().year()); }
    int month() const { return int(unsigned(date().month())); }
    int day() const { return int(unsigned(date().day())); }
    /// The time since midnight.
    std::chrono::seconds clock() const { return time - std::chrono::floor<std::chrono::days>(time); }

    /// The text to store.
    std::string text() const;
    /// The result of CONVERT in one of the server's styles (0 or 100, 1, 3, 8 or 108, 20 or 120, 23, 101, 103, 104,
    /// 105, 110, 111, 112, 126).
    std::string text(int style) const;
};

/// Reads the text of a date column; nothing for any other text.
std::optional<SqlDate> readStoredDate(std::string_view text);
/// Reads a date literal as the server does: the stored forms, also with a blank instead of the T, without seconds or
/// with fractions of seconds; "YYYYMMDD"; "M/D/YYYY", optionally followed by a time with or without AM or PM.
std::optional<SqlDate> readDate(std::string_view text);

/// DATEADD. `part` is one of year, quarter, month, week, day, hour, minute, second. Returns nothing for a result
/// outside the years 1 to 9999. A day beyond the end of the month becomes its last day.
std::optional<SqlDate> addToDate(std::string_view part, std::int64_t number, SqlDate date);
/// DATEDIFF: the number of boundaries of `part` between the two dates.
std::int64_t dateDifference(std::string_view part, SqlDate from, SqlDate to);
/// DATEPART, without weeks.
std::optional<std::int64_t> partOfDate(std::string_view part, SqlDate date);

}  // namespace tsln::workbench
