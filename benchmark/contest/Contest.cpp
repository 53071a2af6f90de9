#include "benchmark/contest/Contest.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <time.h>

namespace tsln::bench {

double secondsOf(const std::function<void()>& work, bool ofProcessor) {
    const auto now = [clock = ofProcessor ? CLOCK_PROCESS_CPUTIME_ID : CLOCK_MONOTONIC] {
        timespec time{};
        clock_gettime(clock, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    };
    const double start = now();
    work();
    return now() - start;
}

void use(std::size_t result) {
    [[maybe_unused]] volatile std::size_t sink = result;
}

Spread spreadOf(std::vector<double> numbers) {
    std::ranges::sort(numbers);
    const auto at = [&](double part) {
        const double place = part * static_cast<double>(numbers.size() - 1);
        const auto below = static_cast<std::size_t>(place);
        const std::size_t above = std::min(below + 1, numbers.size() - 1);
        return std::lerp(numbers[below], numbers[above], place - std::floor(place));
    };
    return {at(0.5), at(0.25), at(0.75)};
}

Contest::Contest(std::vector<Contestant> contestants, Patience patience) : seconds_(contestants.size()) {
    double spent = 0;
    const auto round = [&](std::size_t number, bool counts) {
        for (std::size_t turn = 0; turn < contestants.size(); ++turn) {
            const std::size_t i = (number + turn) % contestants.size();
            contestants[i].prepare();
            const double took = secondsOf(contestants[i].run, patience.ofProcessor);
            if (counts) seconds_[i].push_back(took);
            spent += took;
        }
    };
    round(0, false);
    spent = 0;
    for (std::size_t i = 0; i < patience.mostRounds; ++i) {
        if (i >= patience.leastRounds && spent > patience.seconds) break;
        round(i, true);
    }
}

Spread Contest::ratio(std::size_t contestant, std::size_t to) const {
    std::vector<double> ratios(rounds());
    std::ranges::transform(seconds_.at(contestant), seconds_.at(to), ratios.begin(), std::divides());
    return spreadOf(std::move(ratios));
}

double growthExponent(const std::vector<double>& sizes, const std::vector<double>& seconds) {
    const auto count = static_cast<double>(sizes.size());
    double sumX = 0, sumY = 0, sumXX = 0, sumXY = 0;
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        const double x = std::log(sizes[i]);
        const double y = std::log(seconds[i]);
        sumX += x;
        sumY += y;
        sumXX += x * x;
        sumXY += x * y;
    }
    return (count * sumXY - sumX * sumY) / (count * sumXX - sumX * sumX);
}

}  // namespace tsln::bench
