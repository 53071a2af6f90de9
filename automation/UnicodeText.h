#pragma once

#include <string>
#include <string_view>

namespace tsln {

/// A byte that belongs to no UTF-8 character is read as strayByte plus the byte: a value of its own above all
/// characters.
inline constexpr char32_t strayByte = 0x110000;

/// Reads the character at `at`, which must be below text.size(), and moves `at` past it.
char32_t nextCodePoint(std::string_view text, std::size_t& at) noexcept;

/// Writes the character as UTF-8, a stray byte as that byte: at most four bytes. Returns their end.
/// Surrogates are encoded like other characters.
char* writeUtf8(char* to, char32_t c) noexcept;
/// Appends what writeUtf8 writes.
void appendUtf8(std::string& text, char32_t c);

/// The character that stands for all letter cases of `c`, by Unicode's case folding. A letter whose folding
/// takes several characters ("ß", "İ") stands for itself, "ẞ" for "ß".
char32_t foldCase(char32_t c) noexcept;

/// The lower-case letter of `c`. A letter whose lower-case form folds differently ("İ" and "i") stays as it
/// is, so that foldCase(lowerCase(c)) == foldCase(c).
char32_t lowerCase(char32_t c) noexcept;

/// The upper-case letter of `c`. A letter whose upper-case form folds differently or takes several characters stays as it
/// is, so that foldCase(upperCase(c)) == foldCase(c).
char32_t upperCase(char32_t c) noexcept;

}  // namespace tsln
