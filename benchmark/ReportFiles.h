#pragma once

#include <string>

#include "benchmark/contest/Report.h"

namespace tsln::bench {

/// Returns the results as JSON.
std::string toJson(const Report& report);
/// Draws the curves as an SVG picture with gnuplot. Throws std::runtime_error.
void plot(const Report& report, const std::string& file);

}  // namespace tsln::bench
