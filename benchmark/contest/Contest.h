#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tsln::bench {

/// One implementation to compare: `run` is timed, `prepare` is not.
struct Contestant {
    std::string name;
    std::function<void()> run;
    std::function<void()> prepare = [] {};
};

/// When a contest ends.
struct Patience {
    double seconds = 3;  ///< total time of all contestants
    std::size_t leastRounds = 5;
    std::size_t mostRounds = 41;
    /// Measures processor time, which other programs do not affect. Off for work that waits for other processes.
    bool ofProcessor = true;
};

/// The median and the quartiles of several numbers.
struct Spread {
    double median = 0;
    double low = 0;
    double high = 0;
};
Spread spreadOf(std::vector<double> numbers);

/// The seconds of each contestant in each round.
class Contest {
  public:
    /// Runs the contestants in turn, starting each round with the next one, after a first round that is not counted.
    /// Disturbances by other programs affect all contestants equally.
    explicit Contest(std::vector<Contestant> contestants, Patience patience = {});

    std::size_t rounds() const noexcept { return seconds_.front().size(); }
    const std::vector<double>& seconds(std::size_t contestant) const { return seconds_.at(contestant); }
    /// The ratios of a contestant's times to another's in each round.
    Spread ratio(std::size_t contestant, std::size_t to) const;

  private:
    std::vector<std::vector<double>> seconds_;
};

/// Returns the seconds that work takes: processor time (of this program and of the system for it) or elapsed time.
double secondsOf(const std::function<void()>& work, bool ofProcessor = true);

/// Prevents the compiler from removing the computation of a result.
void use(std::size_t result);

/// The exponent of the growth of the seconds with the sizes: the slope in a double logarithmic plot.
double growthExponent(const std::vector<double>& sizes, const std::vector<double>& seconds);

}  // namespace tsln::bench
