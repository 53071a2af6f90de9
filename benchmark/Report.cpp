#include "benchmark/Report.h"

#include <cstdio>
#include <fstream>
#include <memory>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <thread>

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

std::string Report::json() const {
    using nlohmann::json;
    json all = {{"processors", std::thread::hardware_concurrency()},
                {"lines", json::array()},
                {"curves", json::array()}};
    for (const Line& line : lines_) {
        all["lines"].push_back({{"what", line.what},
                                {"against", line.against},
                                {"median", line.value.median},
                                {"low", line.value.low},
                                {"high", line.value.high},
                                {"unit", line.unit},
                                {"goal", line.goal ? json(*line.goal) : json()},
                                {"atMost", line.kind == Line::Goal::AtMost},
                                {"met", line.met()},
                                {"note", line.note}});
    }
    for (const Curve& curve : curves_) {
        all["curves"].push_back({{"what", curve.what}, {"rows", curve.rows}, {"seconds", curve.seconds}});
    }
    return all.dump(2) + "\n";
}

void Report::plot(const std::string& file) const {
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> gnuplot(popen("gnuplot", "w"), pclose);
    if (curves_.empty())
        throw std::runtime_error("Nothing was measured that grows; there is no picture to draw.");
    if (!gnuplot) throw std::runtime_error("gnuplot cannot be started.");
    std::string script =
        "set terminal svg size 900,620 font 'Inter,sans-serif,14' background '#ffffff'\n"
        "set output '" +
        file +
        "'\n"
        "set logscale xy\nset format y '%g'\nset grid\nset key outside below maxcols 2\n"
        "set xlabel 'rows'\nset ylabel 'milliseconds'\nplot ";
    for (const Curve& curve : curves_) {
        script += &curve == &curves_.front() ? "" : ", ";
        script += "'-' with linespoints linewidth 2 title \"" + curve.what + "\"";
    }
    script += "\n";
    for (const Curve& curve : curves_) {
        for (std::size_t i = 0; i < curve.rows.size(); ++i)
            script += std::to_string(curve.rows[i]) + " " + std::to_string(curve.seconds[i] * 1000) + "\n";
        script += "e\n";
    }
    std::fputs(script.c_str(), gnuplot.get());
    gnuplot.reset();
    if (!std::ifstream(file)) throw std::runtime_error("The picture cannot be drawn to " + file + ".");
}

}  // namespace tsln::bench
