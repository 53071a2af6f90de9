#include "benchmark/ReportFiles.h"

#include <cstdio>
#include <fstream>
#include <memory>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <thread>

namespace tsln::bench {

std::string toJson(const Report& report) {
    using nlohmann::json;
    json all = {{"processors", std::thread::hardware_concurrency()},
                {"lines", json::array()},
                {"curves", json::array()}};
    for (const Line& line : report.lines()) {
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
    for (const Curve& curve : report.curves()) {
        all["curves"].push_back({{"what", curve.what}, {"rows", curve.rows}, {"seconds", curve.seconds}});
    }
    return all.dump(2) + "\n";
}

void plot(const Report& report, const std::string& file) {
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> gnuplot(popen("gnuplot", "w"), pclose);
    if (report.curves().empty())
        throw std::runtime_error("No growth was measured, so there is nothing to plot.");
    if (!gnuplot) throw std::runtime_error("gnuplot cannot be started.");
    std::string script =
        "set terminal svg size 900,620 font 'Inter,sans-serif,14' background '#ffffff'\n"
        "set output '" +
        file +
        "'\n"
        "set logscale xy\nset format y '%g'\nset grid\nset key outside below maxcols 2\n"
        "set xlabel 'rows'\nset ylabel 'milliseconds'\nplot ";
    for (const Curve& curve : report.curves()) {
        script += &curve == &report.curves().front() ? "" : ", ";
        script += "'-' with linespoints linewidth 2 title \"" + curve.what + "\"";
    }
    script += "\n";
    for (const Curve& curve : report.curves()) {
        for (std::size_t i = 0; i < curve.rows.size(); ++i)
            script += std::to_string(curve.rows[i]) + " " + std::to_string(curve.seconds[i] * 1000) + "\n";
        script += "e\n";
    }
    std::fputs(script.c_str(), gnuplot.get());
    gnuplot.reset();
    if (!std::ifstream(file)) throw std::runtime_error("The picture cannot be drawn to " + file + ".");
}

}  // namespace tsln::bench
