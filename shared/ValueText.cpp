#include "shared/ValueText.h"

#include <array>
#include <charconv>
#include <cmath>

#include "automation/DateText.h"

namespace tsln {

std::string currencyText(double amount) {
    // 309 digits before the point at most, and two behind it.
    std::array<char, 320> digits{};
    const double shown = std::round(std::fabs(amount) * 100) / 100;
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(),
                      std::isfinite(shown) ? shown : std::fabs(amount), std::chars_format::fixed, 2)
            .ptr;
    std::string text(digits.data(), end);
    if (!std::isfinite(amount)) return text;
    for (std::size_t at = text.size() - 3; at > 3; at -= 3)
        text.insert(at - 3, 1, ',');
    text.insert(0, 1, '$');
    return amount < 0 && shown != 0 ? '(' + text + ')' : text;
}

std::string shortDateText(Date date) {
    return dateText({std::floor(date.days)});
}

}  // namespace tsln
