#pragma once

#include <array>
#include <concepts>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "automation/Variant.h"

/// Statement and message texts are templates that are filled with values made safe beforehand: nothing here
/// adds quotes, they stand in the template.
namespace tsln::modSharedSQL {

template <class T>
concept WholeNumber = std::integral<T> && !std::same_as<T, bool> && !std::same_as<T, char>;

/// The template with every "{0}" replaced by the text of value 0, then every "{1}" by value 1, and so on up
/// to
/// "{16}"; further values are ignored. A value that itself holds a later placeholder is filled again
/// (deliberate). The placeholder of a value that is not given, or has no text form (Null), stays.
std::string formatValues(std::string_view text, std::span<const Variant> values);

/// A value as format() takes it: whole numbers of any size and what makes a variant.
template <class T>
Variant toValue(const T& value) {
    if constexpr (WholeNumber<T>) {
        return static_cast<std::int64_t>(value);
    } else {
        return value;
    }
}

/// formatValues with the values as arguments.
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

    /// With its angle brackets. Not owned: it is a literal beside the template.
    std::string_view name;
    std::string value;
};

/// The template with each tag replaced at every occurrence, one tag after another in the order given: a value
/// that holds the text of a later tag is filled again (deliberate).
std::string fillTags(std::string_view text, std::span<const Tag> tags);
std::string fillTags(std::string_view text, std::initializer_list<Tag> tags);

}  // namespace tsln::modSharedSQL
