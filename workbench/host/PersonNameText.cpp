#include "workbench/host/PersonNameText.h"

#include <algorithm>
#include <span>
#include <vector>

#include "automation/UnicodeText.h"
#include "shared/modSharedStrings.h"

namespace tsln::workbench {
namespace {

constexpr std::string_view titles[] = {"mr", "mrs", "ms", "miss", "dr", "prof", "rev"};
constexpr std::string_view suffixes[] = {"jr", "sr", "ii", "iii", "iv", "esq", "md", "phd"};
constexpr std::string_view particles[] = {"van", "von", "de",  "da",  "del", "di",
                                          "la",  "le",  "der", "den", "st"};

using Words = std::vector<std::string>;

bool isOneOf(std::span<const std::string_view> list, std::string_view word) {
    if (word.ends_with('.')) word.remove_suffix(1);
    return std::ranges::find(list, modSharedStrings::toLower(word)) != list.end();
}

Words wordsOf(std::string_view text) {
    Words words;
    while (true) {
        const std::size_t begin = std::min(text.find_first_not_of(" \t\r\n"), text.size());
        text.remove_prefix(begin);
        if (text.empty()) return words;
        const std::size_t end = std::min(text.find_first_of(" \t\r\n"), text.size());
        words.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
    }
}

std::string join(std::span<const std::string> words) {
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : " ") + word;
    return text;
}

std::string firstLetter(const std::string& word) {
    std::size_t end = 0;
    nextCodePoint(word, end);
    return word.substr(0, end);
}

/// Takes the first name and the middle initial from the words before the last name.
void takeGivenNames(std::span<const std::string> words, PersonNameParts& parts) {
    if (words.empty()) return;
    parts.first = words[0];
    if (words.size() > 1) parts.middleInitial = firstLetter(words[1]);
}

}  // namespace

PersonNameParts parsePersonName(std::string_view name) {
    PersonNameParts parts;
    const std::size_t comma = name.find(',');
    Words words = wordsOf(name.substr(0, comma));
    Words after = comma == name.npos ? Words() : wordsOf(name.substr(comma + 1));
    if (!after.empty() && !isOneOf(suffixes, after.front())) {  // "Lund, Anna M."
        parts.last = join(words);
        takeGivenNames(after, parts);
        return parts;
    }
    while (words.size() > 1 && isOneOf(titles, words.front()))
        words.erase(words.begin());
    if (words.empty()) return parts;
    std::size_t last = words.size() - 1;
    while (last > 0 && isOneOf(suffixes, words[last]))
        --last;
    while (last > 1 && isOneOf(particles, words[last - 1]))
        --last;
    words.insert(words.end(), after.begin(), after.end());
    parts.last = join(std::span(words).subspan(last));
    takeGivenNames(std::span(words).first(last), parts);
    return parts;
}

}  // namespace tsln::workbench
