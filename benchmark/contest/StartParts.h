#pragma once

#include <chrono>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "benchmark/contest/Report.h"

namespace tsln::bench {

/// The duration of each part of a start, over several starts. Each start is a separate process, to include everything
/// that is loaded or created once per process. The process prints its parts.
class StartParts {
  public:
    using Clock = std::chrono::steady_clock;
    static constexpr int starts = 9;

    /// Called in the started process: prints a part.
    static void print(const char* what, Clock::time_point from, Clock::time_point to);
    /// Called in the measuring process: reads the output of a started process, null when it could not be started.
    void read(std::FILE* printed);
    /// Adds a line for each part, in order.
    void addTo(Report& report, const std::string& prefix) const;

  private:
    std::vector<std::string> order_;
    std::map<std::string, std::vector<double>> milliseconds_;
};

}  // namespace tsln::bench
