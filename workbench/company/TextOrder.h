#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tsln::workbench {

/// The code points of UTF-8 text; a byte that belongs to no character becomes U+FFFD.
std::u32string decodeUtf8(std::string_view text);
std::string encodeUtf8(std::u32string_view text);
/// The code points without letter case (tsln::foldCase), one for each of decodeUtf8.
std::u32string decodeFolded(std::string_view text);

/// Reads one code point at `at` as decodeUtf8 does and moves past it. `at` must be below text.size().
char32_t nextCodePoint(std::string_view text, std::size_t& at) noexcept;

/// The order of text in the database: code points without letter case, the shorter text padded with blanks,
/// so that "Net 30" and "net 30  " are the same. Accents do make a difference. Negative, zero or positive.
int compareText(std::string_view left, std::string_view right) noexcept;

/// LIKE: % any run, _ one character, [abc], [a-z] and [^abc] sets, without letter case. `escape` takes the
/// meaning from the character after it. Blanks at the end count.
bool matchesPattern(std::string_view text, std::string_view pattern, std::optional<char32_t> escape = {});

}  // namespace tsln::workbench
