#pragma once

#include <cstddef>

namespace tsln::bench {

/// Counts the heap bytes that this program allocates during the meter's lifetime through any function based on
/// malloc. At most one meter at a time, on one thread.
class HeapMeter {
  public:
    HeapMeter();
    ~HeapMeter();
    HeapMeter(const HeapMeter&) = delete;
    HeapMeter& operator=(const HeapMeter&) = delete;

    /// The peak, relative to the start.
    std::size_t peak() const;
    /// The current amount, relative to the start. Freeing older memory counts as negative.
    std::ptrdiff_t now() const;
};

}  // namespace tsln::bench
