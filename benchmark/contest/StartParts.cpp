#include "benchmark/contest/StartParts.h"

#include <cstring>

namespace tsln::bench {

void StartParts::print(const char* what, Clock::time_point from, Clock::time_point to) {
    std::printf("%.9f %s\n", std::chrono::duration<double>(to - from).count(), what);
}

void StartParts::read(std::FILE* printed) {
    char line[256];
    while (printed && std::fgets(line, sizeof line, printed)) {
        double seconds = 0;
        int length = 0;
        if (std::sscanf(line, "%lf %n", &seconds, &length) != 1) continue;
        line[std::strcspn(line, "\r\n")] = '\0';
        const std::string what = line + length;
        if (!milliseconds_.contains(what)) order_.push_back(what);
        milliseconds_[what].push_back(seconds * 1000);
    }
}

void StartParts::addTo(Report& report, const std::string& prefix) const {
    for (const std::string& what : order_) {
        report.add(Line{
            .what = prefix + what, .against = "", .value = spreadOf(milliseconds_.at(what)), .unit = "ms"});
    }
}

}  // namespace tsln::bench
