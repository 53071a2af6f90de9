#include "workbench/host/StoredSecret.h"

#include "automation/HostError.h"
#include "workbench/host/Sha2.h"
#include "workbench/sql/Guid.h"

namespace tsln::workbench {
namespace {

constexpr std::string_view key = "Tessaline workbench: stored passwords";
constexpr std::int32_t bits = 256;
constexpr std::size_t digestSize = bits / 4;  // hexadecimal digits
constexpr std::size_t saltSize = 32;          // likewise
constexpr std::string_view digits = "0123456789abcdef";

std::string seal(std::string_view salt, std::string_view hidden) {
    return sha2(std::string(key) + "seal" + std::string(salt) + std::string(hidden), bits);
}

/// The hexadecimal digits, each combined with a stream that follows from the key and the salt. A second call gives the
/// digits back.
std::string combine(std::string_view text, std::string_view salt) {
    std::string stream, result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i % digestSize == 0)
            stream = sha2(std::string(key) + std::string(salt) + std::to_string(i / digestSize), bits);
        const std::size_t a = digits.find(text[i]), b = digits.find(stream[i % digestSize]);
        result += digits[(a ^ b) & 15];
    }
    return result;
}

std::string newSalt() {
    return sha2(createGuid() + createGuid(), bits).substr(0, saltSize);
}

}  // namespace

std::string protectSecret(std::string_view text) {
    if (text.empty()) return {};
    std::string hex;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        hex += digits[byte >> 4];
        hex += digits[byte & 15];
    }
    const std::string salt = newSalt(), hidden = combine(hex, salt);
    return salt + hidden + seal(salt, hidden);
}

std::string readSecret(std::string_view stored) {
    if (stored.empty()) return {};
    const bool fits = stored.size() > saltSize + digestSize && stored.size() % 2 == 0;
    const std::string_view salt = stored.substr(0, saltSize);
    const std::string_view hidden =
        fits ? stored.substr(saltSize, stored.size() - saltSize - digestSize) : std::string_view();
    if (!fits || seal(salt, hidden) != stored.substr(stored.size() - digestSize))
        throw HostError(code::typeMismatch, "Common", "The text was not protected by this host.");
    const std::string hex = combine(hidden, salt);
    std::string text;
    for (std::size_t i = 0; i < hex.size(); i += 2)
        text += static_cast<char>(digits.find(hex[i]) << 4 | digits.find(hex[i + 1]));
    return text;
}

}  // namespace tsln::workbench
