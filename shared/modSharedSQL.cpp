#include "shared/modSharedSQL.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "shared/modSharedStrings.h"

namespace tsln::modSharedSQL {
namespace {

constexpr std::size_t mostPlaceholders = 17;
constexpr std::size_t mostTags = 100;  // filled in one pass; no statement has more

bool holdsBracket(std::string_view text) {
    return std::ranges::any_of(text, [](char c) { return c == '<' || c == '>'; });
}

/// Finds a tag by its name; of tags with the same name the first.
class TagTable {
  public:
    explicit TagTable(std::span<const Tag> tags) : tags_(tags) {
        for (std::size_t i = 0; i < tags.size(); ++i) {
            const std::size_t slot = slotOf(tags[i].name);
            if (slots_[slot] == 0) slots_[slot] = static_cast<std::uint8_t>(i + 1);
        }
    }
    const Tag* find(std::string_view name) const {
        const std::uint8_t found = slots_[slotOf(name)];
        return found == 0 ? nullptr : &tags_[found - 1U];
    }

  private:
    /// The slot that holds the name, or the free one where it would go.
    std::size_t slotOf(std::string_view name) const {
        std::size_t slot = name.size() * 67;
        for (const std::size_t at : {std::size_t{1}, name.size() / 2, name.size() - 2})
            slot = slot * 31 + static_cast<unsigned char>(name[at]);
        for (;; ++slot) {
            slot %= slots_.size();
            if (slots_[slot] == 0 || tags_[slots_[slot] - 1U].name == name) return slot;
        }
    }

    std::span<const Tag> tags_;
    std::array<std::uint8_t, 256> slots_{};  // a tag's index and one, or zero
};

/// A name in brackets, and a value without any: what the value puts in can then be no part of another tag.
bool isPlain(const Tag& tag) {
    const std::string_view name = tag.name;
    return name.size() > 2 && name.front() == '<' && name.back() == '>' &&
           !holdsBracket(name.substr(1, name.size() - 2)) && !holdsBracket(tag.value);
}

/// Fills all tags in one pass over the text; nothing where filling one after another could give another
/// result.
std::optional<std::string> fillInOnePass(std::string_view text, std::span<const Tag> tags) {
    if (tags.size() > mostTags || !std::ranges::all_of(tags, isPlain)) return std::nullopt;
    const TagTable table(tags);
    std::size_t size = text.size();
    for (const Tag& tag : tags)
        size += tag.value.size();
    std::string result;
    result.reserve(size);
    std::size_t copied = 0;
    for (std::size_t open = text.find('<'); open != text.npos;) {
        std::size_t close = open + 1;
        while (close < text.size() && text[close] != '<' && text[close] != '>')
            ++close;
        if (close == text.size()) break;
        // A bracket that opens nothing could come to stand before one that a tag leaves behind.
        if (text[close] == '<') return std::nullopt;
        ++close;
        const std::string_view name = text.substr(open, close - open);
        if (const Tag* tag = name.size() > 2 ? table.find(name) : nullptr) {
            result.append(text, copied, open - copied).append(tag->value);
            copied = close;
        }
        open = text.find('<', close);
    }
    return std::move(result.append(text, copied));
}

}  // namespace

std::string formatValues(std::string_view text, std::span<const Variant> values) {
    std::string result(text);
    for (std::size_t i = 0; i < std::min(values.size(), mostPlaceholders); ++i) {
        const std::string placeholder = "{" + std::to_string(i) + "}";
        if (result.find(placeholder) == result.npos) continue;
        try {
            result = modSharedStrings::replaceAll(result, placeholder, values[i].toText());
        } catch (const HostError&) {
            // A value without a text form leaves its placeholder, which shows in the statement's error
            // message.
        }
    }
    return result;
}

std::string doubleQuotes(std::string_view text) {
    return modSharedStrings::replaceAll(text, "'", "''");
}

std::string fillTags(std::string_view text, std::span<const Tag> tags) {
    if (auto filled = fillInOnePass(text, tags)) return *std::move(filled);
    return fillTagsOneByOne(text, tags);
}

std::string fillTagsOneByOne(std::string_view text, std::span<const Tag> tags) {
    std::string result(text);
    for (const Tag& tag : tags)
        result = modSharedStrings::replaceAll(result, tag.name, tag.value);
    return result;
}

std::string fillTags(std::string_view text, std::initializer_list<Tag> tags) {
    return fillTags(text, std::span(tags.begin(), tags.size()));
}

}  // namespace tsln::modSharedSQL
