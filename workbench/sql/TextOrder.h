#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tsln::workbench {

/// Decodes UTF-8 text. An invalid byte becomes U+FFFD.
std::u32string decodeUtf8(std::string_view text);
std::string encodeUtf8(std::u32string_view text);
/// Returns the code points of decodeUtf8(), each with tsln::foldCase applied.
std::u32string decodeFolded(std::string_view text);

/// Reads the code point at `at` like decodeUtf8() and moves `at` past it. `at` must be below text.size().
char32_t nextCodePoint(std::string_view text, std::size_t& at) noexcept;

/// Compares texts as the database does: by code points without letter case, the shorter text padded with blanks, so
/// that "Net 30" equals "net 30  ". Accents are significant. Returns -1, 0 or 1.
int compareText(std::string_view left, std::string_view right) noexcept;

/// LIKE: "%" matches any number of characters, "_" one, [abc], [a-z] and [^abc] one of a set, all without letter
/// case. The character after `escape` is literal. Blanks at the end are significant.
bool matchesPattern(std::string_view text, std::string_view pattern, std::optional<char32_t> escape = {});

}  // namespace tsln::workbench
