#include "automation/Object.h"

#include <algorithm>

namespace tsln {
namespace {

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

}  // namespace

const Variant& Arguments::operator[](std::size_t i) const {
    static const Variant leftOut{Missing()};
    return i < count() ? arguments_[i].value() : leftOut;
}

Variant Arguments::valueOr(std::size_t i, const Variant& otherwise) const {
    return has(i) ? arguments_[i].value() : otherwise;
}

void Arguments::assign(std::size_t i, Variant value) {
    if (i < count()) arguments_[i].assign(std::move(value));
}

void Arguments::require(std::size_t least, std::size_t most) const {
    if (count() > most) {
        throw HostError(code::badParamCount, "Automation",
                        "Wrong number of arguments or invalid property assignment.");
    }
    for (std::size_t i = 0; i < least; ++i) {
        if (!has(i)) {
            throw HostError(code::paramNotOptional, "Automation",
                            "Argument not optional: " + std::to_string(i + 1) + ".");
        }
    }
}

bool sameName(std::string_view a, std::string_view b) noexcept {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lower(x) == lower(y); });
}

void raiseUnknownMember(std::string_view who, std::string_view member) {
    throw HostError(code::unknownName, std::string(who),
                    "Object doesn't support this property or method: " + std::string(member));
}

void raiseWrongAccess(std::string_view who, std::string_view member) {
    throw HostError(code::memberNotFound, std::string(who),
                    "Object doesn't support this use of the property or method: " + std::string(member));
}

}  // namespace tsln
