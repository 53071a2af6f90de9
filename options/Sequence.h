#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace tsln::options {

/// The sequence number of an option that has no place in the sequence.
inline constexpr std::int32_t notPlaced = 9999;

/// Reads a whole number from 0 to notPlaced; no value for another text.
std::optional<std::int32_t> readSequence(std::string_view text);

/// Gives numbers to options that join a sequence: those that follow the highest one in use and, when these are used up, the
/// lowest free ones. All are below notPlaced.
class SequenceNumbers {
  public:
    SequenceNumbers() : used_(notPlaced) {}
    /// Marks a number as taken. Numbers outside the sequence are ignored.
    void use(std::int32_t number);
    /// The next number; no value when all are used.
    std::optional<std::int32_t> next();

  private:
    std::vector<bool> used_;  // by number
    std::int32_t highest_ = 0;
    std::int32_t lowest_ = 1;  // no free number is below it
};

}  // namespace tsln::options
