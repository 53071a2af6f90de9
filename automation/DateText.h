#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "automation/Variant.h"

namespace tsln {

/// A point in time in the calendar's own terms: year 100 to 9999, month 1 to 12, day 1 to 31, hour 0 to 23.
struct CalendarTime {
    int year = 1899;
    int month = 12;
    int day = 30;
    int hour = 0;
    int minute = 0;
    int second = 0;
    friend bool operator==(const CalendarTime&, const CalendarTime&) = default;
};

/// True when the date lies in the years 100 to 9999, all that the platform can show.
bool isInRange(Date date) noexcept;

/// The date in calendar terms, to the nearest second; nothing when it is out of range.
std::optional<CalendarTime> toCalendar(Date date);
/// The date of a calendar time; nothing when there is no such day or time.
std::optional<Date> fromCalendar(const CalendarTime& time);

/// The local date and time, to the second.
Date now();

/// Reads a date, a time of day, or both in either order:
///   3/4/2011, 3-4-2011, 2011-3-4, 2011/3/4, 4 March 2011, March 4, 2011, 4-Mar-2011, March 2011, 3/2011;
///   10:20, 10:20:30, 10:20:30.5 (the fraction is dropped), 10:20 PM, 10 PM.
/// Month comes before day unless the first number is above 12; above 31, or of three digits or more, it is
/// the year. Two-digit years 0 to 29 are of the 2000s, 30 to 99 of the 1900s; without a year it is the
/// current one. A time alone is a date of day zero. Days that the month does not have are refused, and plain
/// numbers too.
std::optional<Date> readDateText(std::string_view text);

/// True when readDateText reads the text (the platform's IsDate for text).
bool isDateText(std::string_view text);

/// "3/4/2011 10:20:30 AM"; the date alone at midnight, the time alone on day zero.
/// A date out of range raises HostError(code::overflow).
std::string dateText(Date date);

}  // namespace tsln
