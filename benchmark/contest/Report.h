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
    std::optional<double> goal;  ///< none: reported only
    std::string unit = "times";
    std::string note = {};

    bool met() const {
        return !goal || (kind == Goal::AtMost ? value.median <= *goal : value.median >= *goal);
    }
};

/// How one thing grows with the number of rows.
struct Curve {
    std::string what;
    std::vector<double> rows;
    std::vector<double> seconds;
};

/// What was measured.
class Report {
  public:
    /// Adds a line and tells of it as soon as it is known.
    void add(Line line);
    /// Adds a curve and the line of its exponent.
    void add(Curve curve);

    /// The lines as a Markdown table.
    std::string table() const;

    const std::vector<Line>& lines() const noexcept { return lines_; }
    const std::vector<Curve>& curves() const noexcept { return curves_; }

  private:
    std::vector<Line> lines_;
    std::vector<Curve> curves_;
};

}  // namespace tsln::bench
