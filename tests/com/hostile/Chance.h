#pragma once

#include <cstdint>
#include <initializer_list>
#include <random>

namespace tsln::test {

/// Random choices, the same ones again for the same seed.
class Chance {
  public:
    explicit Chance(std::uint64_t seed) : numbers_(seed) {}

    /// A number from 0 to `end` - 1; `end` is at least 1.
    std::size_t below(std::size_t end) { return static_cast<std::size_t>(numbers_() % end); }
    /// True once in `times` times; never for 0.
    bool oneIn(std::size_t times) { return times > 0 && below(times) == 0; }
    template <class T>
    T of(std::initializer_list<T> choices) {
        return choices.begin()[below(choices.size())];
    }

  private:
    std::mt19937_64 numbers_;
};

}  // namespace tsln::test
