#include "workbench/host/HostDate.h"

#include <chrono>
#include <cstdio>

#include "automation/DateText.h"

namespace tsln::workbench {

std::string sqlDateText(Date date) {
    const auto time = toCalendar(date);
    if (!time) throw HostError(code::overflow, "Database", "The date is out of range.");
    char text[40];
    std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02d", time->year, time->month, time->day,
                  time->hour, time->minute, time->second);
    return text;
}

Date nowUtc() {
    using namespace std::chrono;
    const auto sinceDayZero = system_clock::now() - sys_days{1899y / December / 30};
    return Date{duration<double, days::period>(sinceDayZero).count()};
}

}  // namespace tsln::workbench
