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

/// The date in calendar terms, rounded to the nearest second; nullopt when it is out of range.
std::optional<CalendarTime> toCalendar(Date date);
/// The date of a calendar time; nullopt when there is no such day or time.
std::optional<Date> fromCalendar(const CalendarTime& time);

/// The local date and time, to the second.
Date now();

/// Reads a date, a time of day, or both in either order:
///   3/4/2011, 3-4-2011, 2011-3-4, 2011/3/4, 4 March 2011, March 4, 2011, 4-Mar-2011, March 2011, 3/2011;
///   10:20, 10:20:30, 10:20:30.5 (the fraction is dropped), 10:20 PM, 10 PM.
/// The month comes before the day unless the first number is above 12. A number above 31, or of three digits
/// or more, is the year. The two-digit years 0 to 29 mean 2000 to 2029, 30 to 99 mean 1930 to 1999. A date
/// without a year is of the current year. A time alone belongs to day zero. Days that the month does not have
/// and plain numbers give nullopt.
std::optional<Date> readDateText(std::string_view text);

/// True when readDateText reads the text (the platform's IsDate for text).
bool isDateText(std::string_view text);

/// Writes the date as "3/4/2011 10:20:30 AM". Midnight is left out, and so is the date of day zero. A date
/// out of range raises HostError(code::overflow).
std::string dateText(Date date);

}  // namespace tsln
