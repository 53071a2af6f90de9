#include "workbench/host/Guid.h"

#include <random>

#include "automation/HostError.h"

namespace tsln::workbench {
namespace {

constexpr std::size_t kDigits = 32;

std::string withDashes(const std::string& digits) {
    return digits.substr(0, 8) + "-" + digits.substr(8, 4) + "-" + digits.substr(12, 4) + "-" +
           digits.substr(16, 4) + "-" + digits.substr(20);
}

}  // namespace

std::string createGuid() {
    std::random_device random;
    std::uniform_int_distribution<int> digit(0, 15);
    std::string digits;
    for (std::size_t i = 0; i < kDigits; ++i)
        digits += "0123456789ABCDEF"[digit(random)];
    digits[12] = '4';                        // a random GUID ...
    digits[16] = "89AB"[digit(random) % 4];  // ... of the usual variant
    return withDashes(digits);
}

std::string formatAsGuid(std::string_view text) {
    std::string digits;
    bool wellFormed = true;
    for (const char c : text) {
        if (c == '-' || c == '{' || c == '}' || c == ' ') continue;
        const char upper = c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c;
        wellFormed = wellFormed && ((upper >= '0' && upper <= '9') || (upper >= 'A' && upper <= 'F'));
        digits += upper;
    }
    if (!wellFormed || digits.size() != kDigits) {
        throw HostError(code::typeMismatch, "Common", "'" + std::string(text) + "' is no GUID.");
    }
    return "{" + withDashes(digits) + "}";
}

}  // namespace tsln::workbench
