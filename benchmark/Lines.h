#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "benchmark/contest/Report.h"

namespace tsln::bench {

struct Settings {
    std::size_t rows = 100'000;        ///< for lists of the terms' size
    std::size_t mostRows = 1'000'000;  ///< the largest size of the growth curves
    bool growth = true;

    /// A customer has about ten times the text of a term.
    std::size_t customers() const { return rows / 10; }
};

/// A group of lines measured together.
struct Group {
    std::string_view name;
    bool onDisplay;  ///< needs real windows
    void (*measure)(const Settings& settings, Report& report);
};

void measureList(const Settings& settings, Report& report);
void measureMemory(const Settings& settings, Report& report);
void measureCompany(const Settings& settings, Report& report);
void measureWindow(const Settings& settings, Report& report);
void measureSorting(const Settings& settings, Report& report);
void measureStatements(const Settings& settings, Report& report);
void measureDeleting(const Settings& settings, Report& report);
void measurePricing(const Settings& settings, Report& report);
void measureEditors(const Settings& settings, Report& report);
void measureHostCalls(const Settings& settings, Report& report);
void measureMessages(const Settings& settings, Report& report);
void measureSecurity(const Settings& settings, Report& report);
void measureOptions(const Settings& settings, Report& report);
void measureProperties(const Settings& settings, Report& report);
void measureMigration(const Settings& settings, Report& report);
void measureStart(const Settings& settings, Report& report);

inline constexpr Group groups[] = {
    {"list", false, measureList},         {"memory", false, measureMemory},
    {"company", false, measureCompany},   {"window", true, measureWindow},
    {"sorting", false, measureSorting},   {"statements", false, measureStatements},
    {"deleting", false, measureDeleting}, {"calls", false, measureHostCalls},
    {"pricing", false, measurePricing},   {"messages", false, measureMessages},
    {"editors", false, measureEditors},   {"security", false, measureSecurity},
    {"options", false, measureOptions},   {"properties", false, measureProperties},
    {"migration", false, measureMigration},
    {"start", true, measureStart},
};

/// Measures work at sizes from 1,000 to `most` rows, several rounds each, and adds the curve of the medians.
template <class Make>
void measureGrowth(const Settings& settings, Report& report, std::string_view what, std::size_t most,
                   const Make& make, bool ofProcessor = true) {
    if (!settings.growth) return;
    Curve curve{.what = std::string(what), .rows = {}, .seconds = {}};
    constexpr std::size_t sizes[] = {1'000, 3'000, 10'000, 30'000, 100'000, 300'000, 1'000'000};
    for (const std::size_t rows : sizes) {
        if (rows > most) break;
        const Contest contest(
            {make(rows)}, {.seconds = 0.3, .leastRounds = 3, .mostRounds = 15, .ofProcessor = ofProcessor});
        curve.rows.push_back(static_cast<double>(rows));
        curve.seconds.push_back(spreadOf(contest.seconds(0)).median);
    }
    if (curve.rows.size() < 2) return;  // too few points for a curve
    report.add(std::move(curve));
}

}  // namespace tsln::bench
