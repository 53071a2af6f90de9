#pragma once

#include <cstddef>
#include <string>

namespace tsln::soak {

/// What was done last, so that a fault can be understood and repeated. It is printed when a fault is found, when the
/// program crashes, and when an act does not end.
namespace diary {

/// Begins the diary of a run. `title` says how to repeat it.
void begin(const std::string& title);
void add(std::string act);
/// Prints the fault and the latest acts, and ends the program.
[[noreturn]] void fail(const std::string& fault);

}  // namespace diary

/// The bytes of memory that the program uses.
std::size_t memoryInUse();

}  // namespace tsln::soak
