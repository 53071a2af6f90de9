#pragma once

#include <string>
#include <string_view>

namespace tsln::modSharedStrings {

/// The text without the spaces at both ends. Other white space stays, as with the platform's Trim.
std::string trim(std::string_view text);

/// The text in lower case, by Unicode's letters; bytes that are no UTF-8 stay as they are.
std::string toLower(std::string_view text);

/// The text in upper case, by the same rules.
std::string toUpper(std::string_view text);

/// The text with tsln::foldCase applied to every character, for searching without letter case:
/// foldCase(text).find(foldCase(searched)). Bytes that are no UTF-8 stay as they are.
std::string foldCase(std::string_view text);

/// Compares two texts by their folded characters: below, equal to or above zero. Bytes that are no UTF-8 come
/// after all characters, in the order of their values.
int compareNoCase(std::string_view a, std::string_view b) noexcept;
bool equalNoCase(std::string_view a, std::string_view b) noexcept;

/// Writes a sort key, at most sortKeySize(text) bytes, and returns its end. Keys compared as strings of
/// unsigned bytes have the order that compareNoCase gives to their texts. No byte of a key is zero.
char* writeSortKey(char* to, std::string_view text) noexcept;
inline std::size_t sortKeySize(std::string_view text) noexcept {
    return 2 * text.size();
}

/// The text with every `what` replaced by `with`, from left to right. An occurrence of `what` that a
/// replacement creates stays. An empty `what` replaces nothing.
std::string replaceAll(std::string_view text, std::string_view what, std::string_view with);

/// The text as the caption of a label or button that shows it unchanged, its "&" included.
inline std::string asCaption(std::string_view text) {
    return replaceAll(text, "&", "&&");
}

/// The folder path with a separator at its end. A path that ends with "/" or "\" stays as it is. An empty
/// path stays empty: with a separator it would be the root folder.
std::string appendPathSeparator(std::string path);

}  // namespace tsln::modSharedStrings
