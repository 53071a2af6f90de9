#pragma once

#include "benchmark/contest/Report.h"

namespace tsln::bench {

/// Starts the module in this program, which has done nothing yet: loads it, opens its list of 100 terms by
/// its interface, closes it once its rows are drawn, and prints the seconds each part took. Throws
/// std::runtime_error.
void startOnce();

/// Does so several times, each time in a process of its own.
void measureHostedStart(Report& report);

}  // namespace tsln::bench
