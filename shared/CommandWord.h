#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tsln {

/// The text in double quotes, as one word of a command line. A quote in it and the backslashes before that quote get a
/// backslash each, as the C runtime of Windows reads them.
inline std::string commandWord(std::string_view text) {
    std::string word = "\"";
    std::size_t backslashes = 0;  // just before
    for (const char c : text) {
        if (c == '"') word.append(backslashes + 1, '\\');
        backslashes = c == '\\' ? backslashes + 1 : 0;
        word += c;
    }
    // Programs that split their command line themselves take a last backslash as part of the quote; "C:\." is the folder
    // "C:\".
    if (backslashes > 0) word += '.';
    return word + '"';
}

}  // namespace tsln
