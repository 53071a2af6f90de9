#pragma once

#include <array>
#include <concepts>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "automation/Variant.h"

/// Fills the templates of statements and messages. Quotes stand in the template; nothing here adds any, so a
/// text between quotes is to be passed through doubleQuotes() first.
namespace tsln::modSharedSQL {

template <class T>
concept WholeNumber = std::integral<T> && !std::same_as<T, bool> && !std::same_as<T, char>;

/// Replaces every "{0}" of the template by the text of value 0, then every "{1}" by value 1, and so on up to
/// "{16}"; further values are ignored. A later placeholder within a value is replaced, too (deliberate). The
/// placeholder of a value that is missing or has no text form (Null) stays.
std::string formatValues(std::string_view text, std::span<const Variant> values);

/// The variant of an argument of format(): a whole number of any size, or anything that converts to a
/// Variant.
template <class T>
Variant toValue(const T& value) {
    if constexpr (WholeNumber<T>) {
        return static_cast<std::int64_t>(value);
    } else {
        return value;
    }
}

/// Calls formatValues with the arguments as values.
template <class... Values>
std::string format(std::string_view text, const Values&... values) {
    return formatValues(text, std::array<Variant, sizeof...(Values)>{toValue(values)...});
}

/// The text with every single quote doubled, to stand between a statement's single quotes.
std::string doubleQuotes(std::string_view text);

/// A tag of a statement, such as "<name>", and the text that takes its place.
struct Tag {
    Tag(std::string_view tagName, std::string_view text) : name(tagName), value(text) {}
    Tag(std::string_view tagName, WholeNumber auto number) : name(tagName), value(std::to_string(number)) {}
    /// A check box: 1 when ticked, 0 when clear.
    Tag(std::string_view tagName, std::same_as<bool> auto ticked)
        : name(tagName), value(ticked ? "1" : "0") {}

    /// The tag with its angle brackets. Not owned; usually a literal.
    std::string_view name;
    std::string value;
};

/// Replaces each tag at every occurrence, one tag after another in the given order. A later tag within a
/// value is replaced, too (deliberate).
std::string fillTags(std::string_view text, std::span<const Tag> tags);
std::string fillTags(std::string_view text, std::initializer_list<Tag> tags);

}  // namespace tsln::modSharedSQL
