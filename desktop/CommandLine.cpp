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
        if (c == '\\' && i + 1 < commandLine.size() && commandLine[i + 1] == '"') {
            word += '"';
            inWord = true;
            ++i;
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
