#include "options/Sequence.h"

#include <algorithm>

#include "automation/NumericText.h"

namespace tsln::options {

std::optional<std::int32_t> readSequence(std::string_view text) {
    const auto number = parseNumber(text);
    if (!number || *number < 0 || *number > notPlaced) return std::nullopt;
    const auto whole = static_cast<std::int32_t>(*number);
    return whole == *number ? std::optional(whole) : std::nullopt;
}

void SequenceNumbers::use(std::int32_t number) {
    if (number < 0 || number >= notPlaced) return;
    used_[static_cast<std::size_t>(number)] = true;
    highest_ = std::max(highest_, number);
}

std::optional<std::int32_t> SequenceNumbers::next() {
    std::int32_t number = highest_ + 1;
    if (number >= notPlaced) {
        while (lowest_ < notPlaced && used_[static_cast<std::size_t>(lowest_)])
            ++lowest_;
        if (lowest_ >= notPlaced) return std::nullopt;
        number = lowest_;
    }
    use(number);
    return number;
}

}  // namespace tsln::options
