#pragma once

#include <string>

#include "benchmark/contest/Report.h"

namespace tsln::bench {

/// What was measured, for machines.
std::string toJson(const Report& report);
/// The curves as an SVG picture by gnuplot. Throws std::runtime_error.
void plot(const Report& report, const std::string& file);

}  // namespace tsln::bench
