#include "benchmark/contest/Report.h"

#include <cstdio>

namespace tsln::bench {
namespace {

constexpr double mostExponent = 1.1;

std::string number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, value < 10 ? "%.2f" : value < 100 ? "%.1f" : "%.0f", value);
    return text;
}

std::string goalText(const Line& line) {
    if (!line.goal) return "reported";
    return (line.kind == Line::Goal::AtMost ? "at most " : "at least ") + number(*line.goal);
}

std::string outcome(const Line& line) {
    if (!line.goal) return "";
    return line.met() ? "met" : "**missed**";
}

std::string row(const Line& line) {
    const bool single = line.value.low == line.value.high;
    const std::string note = line.note.empty() ? "" : " (" + line.note + ")";
    return "| " + line.what + note + " | " + line.against + " | " + number(line.value.median) + " " +
           line.unit + " | " + (single ? "" : number(line.value.low) + " to " + number(line.value.high)) +
           " | " + goalText(line) + " | " + outcome(line) + " |\n";
}

}  // namespace

void Report::add(Line line) {
    std::fprintf(stderr, "  %s: %s %s\n", line.what.c_str(), number(line.value.median).c_str(),
                 line.unit.c_str());
    lines_.push_back(std::move(line));
}

void Report::add(Curve curve) {
    const double exponent = growthExponent(curve.rows, curve.seconds);
    const auto thousands = [](double rows) {
        return std::to_string(static_cast<long>(rows / 1000)) + ",000";
    };
    std::string last = thousands(curve.rows.back());
    if (curve.rows.back() >= 1e6) last = "1,000,000";
    add(Line{.what = "growth: " + curve.what,
             .against = thousands(curve.rows.front()) + " to " + last + " rows",
             .value = {exponent, exponent, exponent},
             .goal = mostExponent,
             .unit = "exponent"});
    curves_.push_back(std::move(curve));
}

std::string Report::table() const {
    std::string text = "| What | Against | Median | Middle half | Goal | |\n|---|---|---|---|---|---|\n";
    for (const Line& line : lines_)
        text += row(line);
    return text;
}

}  // namespace tsln::bench
