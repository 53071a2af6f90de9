#pragma once

#include <string>
#include <string_view>

namespace tsln::modSharedStrings {

/// The text without the spaces at both ends. Other white space stays, as the platform's Trim has it.
std::string trim(std::string_view text);

/// The text in lower case, by Unicode's letters; bytes that are no UTF-8 stay as they are.
std::string toLower(std::string_view text);

/// The text with all letter cases of a letter made the same character (tsln::foldCase), for searching without letter
/// case: foldCase(text).find(foldCase(searched)). Bytes that are no UTF-8 stay as they are.
std::string foldCase(std::string_view text);

/// Orders two texts by their characters without letter case (those of foldCase): below, equal to or above zero.
/// Bytes that are no UTF-8 come after all characters, in their own order.
int compareNoCase(std::string_view a, std::string_view b) noexcept;
bool equalNoCase(std::string_view a, std::string_view b) noexcept;

/// Writes bytes for sorting many texts: compared as unsigned bytes, the shorter first where one begins with
/// the other, they order as compareNoCase orders the texts. None of them is zero. Writes at most
/// sortKeySize(text) bytes and returns the end.
char* writeSortKey(char* to, std::string_view text) noexcept;
inline std::size_t sortKeySize(std::string_view text) noexcept {
    return 2 * text.size();
}

/// The text with every `what` replaced by `with`, left to right; what was put in is not looked at again.
/// An empty `what` replaces nothing.
std::string replaceAll(std::string_view text, std::string_view what, std::string_view with);

/// The folder path with a separator at its end; one that ends with "/" or "\" stays as it is, and so does an
/// empty path, which would become the root folder.
std::string appendPathSeparator(std::string path);

}  // namespace tsln::modSharedStrings
