#pragma once

#include <chrono>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "benchmark/contest/Report.h"

namespace tsln::bench {

/// How long the parts of a start took, over several starts. Each start is a process of its own, since what is
/// loaded and made once is part of it; it prints its parts.
class StartParts {
  public:
    using Clock = std::chrono::steady_clock;
    static constexpr int starts = 9;

    /// In the process that starts: prints a part.
    static void print(const char* what, Clock::time_point from, Clock::time_point to);
    /// In the one that measures: reads what such a process printed. Null for one that could not be started.
    void read(std::FILE* printed);
    /// Adds a line for each part, in their order.
    void addTo(Report& report, const std::string& prefix) const;

  private:
    std::vector<std::string> order_;
    std::map<std::string, std::vector<double>> milliseconds_;
};

}  // namespace tsln::bench
