#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "benchmark/contest/Contest.h"

namespace tsln::bench {

/// One line of the table.
struct Line {
    enum class Goal { AtMost, AtLeast };
    std::string what;
    std::string against;
    Spread value;
    Goal kind = Goal::AtMost;
    std::optional<double> goal;  ///< none: the line is only reported
    std::string unit = "times";
    std::string note = {};

    bool met() const {
        return !goal || (kind == Goal::AtMost ? value.median <= *goal : value.median >= *goal);
    }
};

/// How the time of some work grows with the number of rows.
struct Curve {
    std::string what;
    std::vector<double> rows;
    std::vector<double> seconds;
};

/// All results.
class Report {
  public:
    /// Adds a line and prints it at once.
    void add(Line line);
    /// Adds a curve and a line for its exponent.
    void add(Curve curve);

    /// Returns the lines as a Markdown table.
    std::string table() const;

    const std::vector<Line>& lines() const noexcept { return lines_; }
    const std::vector<Curve>& curves() const noexcept { return curves_; }

  private:
    std::vector<Line> lines_;
    std::vector<Curve> curves_;
};

}  // namespace tsln::bench
