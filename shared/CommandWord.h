#pragma once

#include <string>
#include <string_view>

#include "shared/modSharedStrings.h"

namespace tsln {

/// The text in double quotes, as one word of a command line.
inline std::string commandWord(std::string_view text) {
    std::string word = modSharedStrings::replaceAll(text, "\"", "\\\"");
    // A backslash before the closing quote would make it a part of the text; "C:\." is the folder "C:\".
    if (word.ends_with('\\')) word += '.';
    return '"' + word + '"';
}

}  // namespace tsln
