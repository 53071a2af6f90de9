#include "shared/modSharedSQL.h"

#include <algorithm>

#include "shared/modSharedStrings.h"

namespace tsln::modSharedSQL {
namespace {

constexpr std::size_t mostPlaceholders = 17;

}  // namespace

std::string formatValues(std::string_view text, std::span<const Variant> values) {
    std::string result(text);
    for (std::size_t i = 0; i < std::min(values.size(), mostPlaceholders); ++i) {
        const std::string placeholder = "{" + std::to_string(i) + "}";
        if (result.find(placeholder) == result.npos) continue;
        try {
            result = modSharedStrings::replaceAll(result, placeholder, values[i].toText());
        } catch (const HostError&) {
            // The placeholder stays, so that it shows in the database's error message.
        }
    }
    return result;
}

std::string doubleQuotes(std::string_view text) {
    return modSharedStrings::replaceAll(text, "'", "''");
}

std::string fillTags(std::string_view text, std::span<const Tag> tags) {
    std::string result(text);
    for (const Tag& tag : tags)
        result = modSharedStrings::replaceAll(result, tag.name, tag.value);
    return result;
}

std::string fillTags(std::string_view text, std::initializer_list<Tag> tags) {
    return fillTags(text, std::span(tags.begin(), tags.size()));
}

}  // namespace tsln::modSharedSQL
