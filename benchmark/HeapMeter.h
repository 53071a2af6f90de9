#pragma once

#include <cstddef>

namespace tsln::bench {

/// Counts the bytes that this program has from the heap while the meter lives, by any allocator that ends in
/// malloc. One at a time, on one thread.
class HeapMeter {
  public:
    HeapMeter();
    ~HeapMeter();
    HeapMeter(const HeapMeter&) = delete;
    HeapMeter& operator=(const HeapMeter&) = delete;

    /// The most that there was at a time, over what there was in the beginning.
    std::size_t peak() const;
    /// What there is now over what there was in the beginning; what was freed counts against it.
    std::ptrdiff_t now() const;
};

}  // namespace tsln::bench
