#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <random>
#include <string>
#include <utility>

#include "automation/Variant.h"

namespace tsln::test {

/// Random choices, the same on every system for the same seed.
class Random {
  public:
    explicit Random(unsigned seed) : engine_(seed) {}

    /// A number below `end`, which is at least 1.
    std::size_t below(std::size_t end) { return engine_() % end; }
    int between(int least, int most) { return least + static_cast<int>(below(most - least + 1U)); }
    bool chance(int percent) { return between(1, 100) <= percent; }
    /// True once in `times` times; never for 0.
    bool oneIn(std::size_t times) { return times > 0 && below(times) == 0; }
    template <class List>
    auto& of(List&& list) {
        return list[below(std::size(list))];
    }
    template <class T>
    T of(std::initializer_list<T> list) {
        return list.begin()[below(list.size())];
    }

    /// What a user, or a cat, might type: names, numbers, dates, quotes, markup, other scripts, long texts, nothing.
    std::string text();
    Date day();
    /// A number of a record that may exist, or one that is at a limit.
    std::int32_t number();

  private:
    std::mt19937 engine_;
};

}  // namespace tsln::test
