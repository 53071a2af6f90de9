#include "shared/modSharedStrings.h"

#include "automation/UnicodeText.h"

namespace tsln::modSharedStrings {
namespace {

bool isAscii(char c) noexcept {
    return static_cast<unsigned char>(c) < 0x80;
}

char lowerAscii(char c) noexcept {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

/// Removes the first character of the text and returns it folded. ASCII, the common case, needs no table.
char32_t takeFolded(std::string_view& text) noexcept {
    std::size_t at = 1;
    const char32_t c = isAscii(text.front()) ? static_cast<char32_t>(lowerAscii(text.front()))
                                             : tsln::foldCase(nextCodePoint(text, at = 0));
    text.remove_prefix(at);
    return c;
}

char upperAscii(char c) noexcept {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c;
}

std::string changeCharacters(std::string_view text, char (*changeAscii)(char) noexcept,
                             char32_t (*change)(char32_t) noexcept) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        if (isAscii(text[at])) {
            result += changeAscii(text[at++]);
        } else {
            appendUtf8(result, change(nextCodePoint(text, at)));
        }
    }
    return result;
}

}  // namespace

std::string trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == text.npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string toLower(std::string_view text) {
    return changeCharacters(text, lowerAscii, lowerCase);
}

std::string toUpper(std::string_view text) {
    return changeCharacters(text, upperAscii, upperCase);
}

std::string foldCase(std::string_view text) {
    return changeCharacters(text, lowerAscii, tsln::foldCase);
}

int compareNoCase(std::string_view a, std::string_view b) noexcept {
    while (!a.empty() && !b.empty()) {
        const char32_t x = takeFolded(a);
        const char32_t y = takeFolded(b);
        if (x != y) return x < y ? -1 : 1;
    }
    return static_cast<int>(!a.empty()) - static_cast<int>(!b.empty());
}

bool equalNoCase(std::string_view a, std::string_view b) noexcept {
    return a == b || compareNoCase(a, b) == 0;
}

char* writeSortKey(char* to, std::string_view text) noexcept {
    while (!text.empty()) {
        if (isAscii(text.front()) && text.front() > 1) {
            *to++ = lowerAscii(text.front());
            text.remove_prefix(1);
            continue;
        }
        const char32_t c = takeFolded(text);
        if (c <= 1) {  // a key holds no zero: 0 is written as 1 1, and 1 as 1 2
            *to++ = 1;
            *to++ = static_cast<char>(c + 1);
        } else if (c >= strayByte) {
            *to++ = static_cast<char>(0xFF);  // above the first byte of every character
            *to++ = static_cast<char>(c & 0xFF);
        } else {
            to = writeUtf8(to, c);
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
