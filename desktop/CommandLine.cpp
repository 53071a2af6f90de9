#include <algorithm>
#include <utility>

#include "desktop/Process.h"

namespace tsln::desktop {

std::vector<std::string> splitCommandLine(std::string_view commandLine) {
    std::vector<std::string> words;
    std::string word;
    bool inWord = false;
    bool quoted = false;
    for (std::size_t i = 0; i < commandLine.size(); ++i) {
        const char c = commandLine[i];
        if (c == '\\') {
            const std::size_t end = std::min(commandLine.find_first_not_of('\\', i), commandLine.size());
            const bool beforeQuote = end < commandLine.size() && commandLine[end] == '"';
            const std::size_t count = end - i;
            word.append(beforeQuote ? count / 2 : count, '\\');
            inWord = true;
            i = end - 1;
            if (beforeQuote && count % 2 == 1) {
                word += '"';
                i = end;
            }
        } else if (c == '"') {
            quoted = !quoted;
            inWord = true;  // "" is an empty word
        } else if (!quoted && (c == ' ' || c == '\t')) {
            if (inWord) words.push_back(std::exchange(word, {}));
            inWord = false;
        } else {
            word += c;
            inWord = true;
        }
    }
    if (inWord) words.push_back(std::move(word));
    return words;
}

}  // namespace tsln::desktop
