#include "shared/modSharedStrings.h"

#include <algorithm>

namespace tsln::modSharedStrings {
namespace {

/// Capital letters `first` to `last`. With step 2 capitals and small letters alternate, each capital before
/// its small letter; with step 1 the small letters stand `distance` further on.
struct Capitals {
    char32_t first;
    char32_t last;
    char32_t distance;
    char32_t step;
};

constexpr Capitals alphabets[] = {
    {U'A', U'Z', 32, 1},     {0x00C0, 0x00D6, 32, 1}, {0x00D8, 0x00DE, 32, 1}, {0x0100, 0x012E, 1, 2},
    {0x0132, 0x0136, 1, 2},  {0x0139, 0x0147, 1, 2},  {0x014A, 0x0176, 1, 2},  {0x0179, 0x017D, 1, 2},
    {0x0391, 0x03A1, 32, 1}, {0x03A3, 0x03AB, 32, 1}, {0x0400, 0x040F, 80, 1}, {0x0410, 0x042F, 32, 1},
};

char32_t lower(char32_t c) {
    if (c == 0x0178) return 0x00FF;
    for (const Capitals& capitals : alphabets) {
        if (c >= capitals.first && c <= capitals.last) {
            return (c - capitals.first) % capitals.step == 0 ? c + capitals.distance : c;
        }
    }
    return c;
}

/// Takes the next character in lower case. Characters of three and four bytes come byte by byte, above all
/// others: they have no case here, and UTF-8 bytes order as their characters do.
char32_t takeLower(std::string_view& text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(0);
    char32_t c = lead;
    std::size_t length = 1;
    if (lead >= 0xC2 && lead <= 0xDF && text.size() > 1 && (byte(1) & 0xC0) == 0x80) {
        c = static_cast<char32_t>((lead & 0x1F) << 6 | (byte(1) & 0x3F));
        length = 2;
    } else if (lead >= 0x80) {
        c += 0x10000;
    }
    text.remove_prefix(length);
    return lower(c);
}

}  // namespace

std::string trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == text.npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string toLower(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const char32_t c = takeLower(text);
        if (c >= 0x80 && c < 0x10000) {
            result += static_cast<char>(0xC0 | c >> 6);
            result += static_cast<char>(0x80 | (c & 0x3F));
        } else {
            result += static_cast<char>(c & 0xFF);
        }
    }
    return result;
}

int compareNoCase(std::string_view a, std::string_view b) noexcept {
    while (!a.empty() && !b.empty()) {
        const char32_t x = takeLower(a);
        const char32_t y = takeLower(b);
        if (x != y) return x < y ? -1 : 1;
    }
    return static_cast<int>(!a.empty()) - static_cast<int>(!b.empty());
}

bool equalNoCase(std::string_view a, std::string_view b) noexcept {
    return a == b || compareNoCase(a, b) == 0;
}

char* writeSortKey(char* to, std::string_view text) noexcept {
    while (!text.empty()) {
        const auto byte = static_cast<unsigned char>(text.front());
        if (byte > 1 && byte < 0x80) {
            *to++ = byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + ('a' - 'A')) : text.front();
            text.remove_prefix(1);
            continue;
        }
        const char32_t c = takeLower(text);
        if (c <= 1) {  // zero is kept free, and one stands before what took its place
            *to++ = 1;
            *to++ = static_cast<char>(c + 1);
        } else if (c < 0x10000) {
            *to++ = static_cast<char>(0xC0 | c >> 6);
            *to++ = static_cast<char>(0x80 | (c & 0x3F));
        } else {
            *to++ = static_cast<char>(0xFF);  // above all characters of two bytes
            *to++ = static_cast<char>(c & 0xFF);
        }
    }
    return to;
}

std::string replaceAll(std::string_view text, std::string_view what, std::string_view with) {
    std::string result;
    std::size_t at = 0;
    if (!what.empty()) {
        for (std::size_t hit = text.find(what); hit != text.npos; hit = text.find(what, at)) {
            result.append(text, at, hit - at).append(with);
            at = hit + what.size();
        }
    }
    return result.append(text, at);
}

std::string appendPathSeparator(std::string path) {
    if (!path.empty() && path.back() != '/' && path.back() != '\\') {
#ifdef _WIN32
        path += '\\';
#else
        path += '/';
#endif
    }
    return path;
}

}  // namespace tsln::modSharedStrings
