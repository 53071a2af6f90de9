#include "automation/UnicodeText.h"

#include <algorithm>
#include <array>
#include <utf8proc.h>

namespace tsln {
namespace {

using Folding = std::array<utf8proc_int32_t, 4>;  // the longest has three characters

/// Unicode's full case folding. Returns the number of characters, or less than zero if `c` is no character.
utf8proc_ssize_t foldFully(char32_t c, Folding& folding) noexcept {
    return utf8proc_decompose_char(static_cast<utf8proc_int32_t>(c), folding.data(),
                                   static_cast<utf8proc_ssize_t>(folding.size()), UTF8PROC_CASEFOLD, nullptr);
}

char32_t simpleLower(char32_t c) noexcept {
    return static_cast<char32_t>(utf8proc_tolower(static_cast<utf8proc_int32_t>(c)));
}

char32_t simpleUpper(char32_t c) noexcept {
    return static_cast<char32_t>(utf8proc_toupper(static_cast<utf8proc_int32_t>(c)));
}

bool isAscii(char32_t c) noexcept {
    return c < 0x80;
}

char32_t lowerAscii(char32_t c) noexcept {
    return c >= U'A' && c <= U'Z' ? c + (U'a' - U'A') : c;
}

}  // namespace

char32_t nextCodePoint(std::string_view text, std::size_t& at) noexcept {
    const auto first = static_cast<unsigned char>(text[at]);
    if (isAscii(first)) {
        ++at;
        return first;
    }
    constexpr std::size_t longest = 4;
    const auto size = static_cast<utf8proc_ssize_t>(std::min(text.size() - at, longest));
    utf8proc_int32_t c = 0;
    const utf8proc_ssize_t length =
        utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data() + at), size, &c);
    if (length <= 0) {
        ++at;
        return strayByte + first;
    }
    at += static_cast<std::size_t>(length);
    return static_cast<char32_t>(c);
}

char* writeUtf8(char* to, char32_t c) noexcept {
    if (isAscii(c) || c >= strayByte) {
        *to = static_cast<char>(c & 0xFF);
        return to + 1;
    }
    return to +
           utf8proc_encode_char(static_cast<utf8proc_int32_t>(c), reinterpret_cast<utf8proc_uint8_t*>(to));
}

void appendUtf8(std::string& text, char32_t c) {
    std::array<char, 4> bytes;
    text.append(bytes.data(), writeUtf8(bytes.data(), c));
}

char32_t foldCase(char32_t c) noexcept {
    if (isAscii(c)) return lowerAscii(c);
    Folding folding{};
    const utf8proc_ssize_t length = foldFully(c, folding);
    if (length == 1) return static_cast<char32_t>(folding[0]);
    if (length < 1) return c;
    Folding ofLower{};
    const char32_t lower = simpleLower(c);
    return foldFully(lower, ofLower) == length && folding == ofLower ? lower : c;
}

char32_t lowerCase(char32_t c) noexcept {
    if (isAscii(c)) return lowerAscii(c);
    const char32_t lower = simpleLower(c);
    return lower == c || foldCase(lower) == foldCase(c) ? lower : c;
}

char32_t upperCase(char32_t c) noexcept {
    const char32_t upper = simpleUpper(c);
    return upper == c || foldCase(upper) == foldCase(c) ? upper : c;
}

}  // namespace tsln
