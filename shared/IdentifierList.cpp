#include "shared/IdentifierList.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <utility>

#include "automation/Object.h"

namespace tsln {
namespace {

using Limits = std::numeric_limits<std::int32_t>;

[[noreturn]] void raiseElement(std::int32_t code, std::size_t place, const std::string& what) {
    throw HostError(code, "Automation", "Identifier " + std::to_string(place) + " of the list " + what + ".");
}

[[noreturn]] void raiseNoNumber(std::size_t place, const std::string& told) {
    raiseElement(code::typeMismatch, place, "is not a whole number: " + told);
}

[[noreturn]] void raiseTooLarge(std::size_t place) {
    raiseElement(code::overflow, place, "does not fit into 32 bits");
}

void requireCount(double count) {
    if (count >= 0 && count <= mostIdentifiers) return;
    throw HostError(code::badIndex, "Automation",
                    "A list of identifiers has 0 to " + std::to_string(mostIdentifiers) + " elements.");
}

/// The text without the blanks at both ends.
std::string_view stripped(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == text.npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::int32_t readText(std::string_view text, std::size_t place) {
    std::string_view digits = stripped(text);
    if (digits.starts_with('+') && !digits.starts_with("+-")) digits.remove_prefix(1);
    std::int32_t value = 0;
    const auto [stop, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error == std::errc::invalid_argument || stop != digits.data() + digits.size()) {
        constexpr std::size_t mostTold = 40;
        raiseNoNumber(place, "'" + std::string(text.substr(0, mostTold)) + "'");
    }
    if (error != std::errc()) raiseTooLarge(place);
    return value;
}

std::int32_t readElement(const Variant& element, std::size_t place) {
    const auto read = [&]<class T>(const T& value) -> std::int32_t {
        if constexpr (std::is_same_v<T, std::string>) {
            return readText(value, place);
        } else if constexpr (std::is_floating_point_v<T>) {
            if (!(std::floor(value) == value)) raiseNoNumber(place, element.toText());
            if (value < static_cast<T>(Limits::min()) || static_cast<double>(value) > Limits::max())
                raiseTooLarge(place);
            return static_cast<std::int32_t>(value);
        } else if constexpr (std::is_integral_v<T> && !std::is_same_v<T, bool>) {
            if (!std::in_range<std::int32_t>(value)) raiseTooLarge(place);
            return static_cast<std::int32_t>(value);
        } else {
            raiseNoNumber(place, std::string(typeName(element)));
        }
    };
    return std::visit(read, element.held());
}

std::vector<std::int32_t> readTextList(std::string_view text) {
    std::vector<std::int32_t> identifiers;
    for (std::size_t start = 0; start != text.npos;) {
        requireCount(static_cast<double>(identifiers.size() + 1));
        const std::size_t comma = text.find(',', start);
        identifiers.push_back(readText(text.substr(start, comma - start), identifiers.size() + 1));
        start = comma == text.npos ? comma : comma + 1;
    }
    return identifiers;
}

/// True when the collection's first item is Item(0).
bool startsAtZero(Object& collection) {
    try {
        const Variant item = collection.get("Item", std::int32_t{0});
        return !(item.isEmpty() || item.isNull() || (item.isObject() && !item.toObject()));
    } catch (const HostError&) {
        return false;
    }
}

std::vector<std::int32_t> readCollection(Object& collection) {
    const double counted = collection.get("Count").toDouble();
    requireCount(counted);
    const auto count = static_cast<std::int32_t>(counted);
    std::vector<std::int32_t> identifiers;
    if (count == 0) return identifiers;
    const std::int32_t first = startsAtZero(collection) ? 0 : 1;
    for (std::int32_t i = 0; i < count; ++i) {
        identifiers.push_back(
            readElement(collection.get("Item", first + i), static_cast<std::size_t>(i) + 1));
    }
    return identifiers;
}

}  // namespace

std::vector<std::int32_t> readIdentifiers(const Variant& list) {
    if (list.isEmpty() || list.isNull() || list.isMissing()) return {};
    if (list.isText()) {
        const std::string text = list.toText();
        return stripped(text).empty() ? std::vector<std::int32_t>() : readTextList(text);
    }
    if (!list.isObject()) return {readElement(list, 1)};
    const ObjectPtr collection = list.toObject();
    return collection ? readCollection(*collection) : std::vector<std::int32_t>();
}

}  // namespace tsln
