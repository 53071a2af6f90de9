#include "workbench/sql/Guid.h"

#include <random>

namespace tsln::workbench {

namespace {

constexpr std::size_t digitCount = 32;

std::string withDashes(const std::string& digits) {
    return digits.substr(0, 8) + "-" + digits.substr(8, 4) + "-" + digits.substr(12, 4) + "-" +
           digits.substr(16, 4) + "-" + digits.substr(20);
}

}  // namespace

std::string createGuid() {
    // The system's random source: two programs with equally seeded generators would create equal GUIDs.
    static thread_local std::random_device random;
    std::string digits;
    while (digits.size() < digitCount) {
        for (unsigned bits = random(), i = 0; i < 8; ++i, bits >>= 4)
            digits += "0123456789ABCDEF"[bits & 15];
    }
    digits[12] = '4';                   // version 4: random
    digits[16] = "89AB"[random() % 4];  // the standard variant
    return withDashes(digits);
}

std::optional<std::string> formatAsGuid(std::string_view text) {
    std::string digits;
    for (const char c : text) {
        if (c == '-' || c == '{' || c == '}' || c == ' ') continue;
        const char upper = c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c;
        if (!((upper >= '0' && upper <= '9') || (upper >= 'A' && upper <= 'F'))) return std::nullopt;
        digits += upper;
    }
    if (digits.size() != digitCount) return std::nullopt;
    return "{" + withDashes(digits) + "}";
}

}  // namespace tsln::workbench
