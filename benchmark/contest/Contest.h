#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tsln::bench {

/// One who takes part: `prepare` is not timed, `run` is.
struct Contestant {
    std::string name;
    std::function<void()> run;
    std::function<void()> prepare = [] {};
};

/// When a contest has had enough rounds.
struct Patience {
    double seconds = 3;  ///< of all contestants together
    std::size_t leastRounds = 5;
    std::size_t mostRounds = 41;
    /// Count the processor's seconds, which other programs do not lengthen. Off for what waits for others.
    bool ofProcessor = true;
};

/// Several numbers as their middle and the two between which the middle half of them lies.
struct Spread {
    double median = 0;
    double low = 0;
    double high = 0;
};
Spread spreadOf(std::vector<double> numbers);

/// How long each contestant took in each round.
class Contest {
  public:
    /// Lets the contestants run in turns, each round beginning with another one, after a round that does not
    /// count. Whatever else the machine does meets them alike.
    explicit Contest(std::vector<Contestant> contestants, Patience patience = {});

    std::size_t rounds() const noexcept { return seconds_.front().size(); }
    const std::vector<double>& seconds(std::size_t contestant) const { return seconds_.at(contestant); }
    /// A contestant's times by another's of the same round.
    Spread ratio(std::size_t contestant, std::size_t to) const;

  private:
    std::vector<std::vector<double>> seconds_;
};

/// Seconds that something takes, of the processor (this program's, the system's for it included) or of the
/// clock on the wall.
double secondsOf(const std::function<void()>& work, bool ofProcessor = true);

/// Keeps a result from being left out as unused.
void use(std::size_t result);

/// The exponent by which the seconds grow with the sizes: the slope of the line through their logarithms.
double growthExponent(const std::vector<double>& sizes, const std::vector<double>& seconds);

}  // namespace tsln::bench
