#pragma once

#include "benchmark/contest/Report.h"

namespace tsln::bench {

/// Starts the module in this new process: loads it, opens its list of 100 terms through its interface, closes the
/// list once its rows are drawn, and prints the seconds of each part. Throws std::runtime_error.
void startOnce();

/// Measures several such starts, each in its own process.
void measureHostedStart(Report& report);

}  // namespace tsln::bench
