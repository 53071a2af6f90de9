#include "automation/Variant.h"

#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "automation/DateText.h"
#include "automation/NumericText.h"

namespace tsln {
namespace {

template <class... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

[[noreturn]] void raiseTypeMismatch() {
    throw HostError(code::typeMismatch, "Automation", "Type mismatch.");
}

[[noreturn]] void raiseOverflow() {
    throw HostError(code::overflow, "Automation", "Overflow.");
}

void require(Reading reading) {
    if (reading == Reading::Unreadable) raiseTypeMismatch();
    if (reading == Reading::Overflow) raiseOverflow();
}

/// Converts a number to another type. Fractions round half to even; a number that does not fit raises
/// overflow.
template <class To, class From>
To convertNumber(From from) {
    if constexpr (std::is_same_v<To, double>) {
        return static_cast<double>(from);
    } else if constexpr (std::is_same_v<To, float>) {
        if (std::abs(static_cast<double>(from)) > std::numeric_limits<float>::max()) raiseOverflow();
        return static_cast<float>(from);
    } else if constexpr (std::is_floating_point_v<From>) {
        // The upper bound is the power of two above the maximum, because the maximum itself has no exact
        // double.
        constexpr double bound = -static_cast<double>(std::numeric_limits<To>::min());
        const double rounded = std::nearbyint(static_cast<double>(from));
        if (!(rounded >= -bound && rounded < bound)) raiseOverflow();
        return static_cast<To>(rounded);
    } else {
        if (!std::in_range<To>(from)) raiseOverflow();
        return static_cast<To>(from);
    }
}

template <class To>
To toNumber(const Variant::Held& held) {
    return std::visit(Overloaded{
                          [](std::monostate) { return To(0); },
                          [](bool value) { return value ? To(-1) : To(0); },
                          [](Date value) { return convertNumber<To>(value.days); },
                          [](const std::string& text) {
                              To value = 0;
                              require(readNumber(text, value));
                              return value;
                          },
                          [](const auto& value) -> To {
                              if constexpr (std::is_arithmetic_v<std::decay_t<decltype(value)>>) {
                                  return convertNumber<To>(value);
                              } else {
                                  raiseTypeMismatch();
                              }
                          },
                      },
                      held);
}

Date dateOfNumber(double days) {
    const Date date{days};
    if (!isInRange(date)) raiseOverflow();
    return date;
}

}  // namespace

bool Variant::isNumeric() const {
    if (const std::string* text = std::get_if<std::string>(&value_)) return isNumericText(*text);
    return !(isNull() || isMissing() || isObject() || holds<Date>());
}

bool Variant::toBoolean() const {
    if (const bool* value = std::get_if<bool>(&value_)) return *value;
    if (const std::string* text = std::get_if<std::string>(&value_)) {
        bool value = false;
        require(readBoolean(*text, value));
        return value;
    }
    return toNumber<double>(value_) != 0;
}

std::int16_t Variant::toInteger() const {
    return toNumber<std::int16_t>(value_);
}

std::int32_t Variant::toLong() const {
    return toNumber<std::int32_t>(value_);
}

std::int64_t Variant::toLongLong() const {
    return toNumber<std::int64_t>(value_);
}

float Variant::toSingle() const {
    return toNumber<float>(value_);
}

double Variant::toDouble() const {
    return toNumber<double>(value_);
}

Date Variant::toDate() const {
    if (const Date* date = std::get_if<Date>(&value_)) return *date;
    if (const std::string* text = std::get_if<std::string>(&value_)) {
        if (const std::optional<Date> date = readDateText(*text)) return *date;
    }
    return dateOfNumber(toNumber<double>(value_));
}

std::string Variant::toText() && {
    if (auto* text = std::get_if<std::string>(&value_)) return std::move(*text);
    return std::as_const(*this).toText();
}

std::string Variant::toText() const& {
    return std::visit(Overloaded{
                          [](std::monostate) { return std::string(); },
                          [](bool value) { return std::string(value ? "True" : "False"); },
                          [](Date value) { return dateText(value); },
                          [](const std::string& value) { return value; },
                          [](float value) { return numberText(value); },
                          [](double value) { return numberText(value); },
                          [](const auto& value) -> std::string {
                              if constexpr (std::is_integral_v<std::decay_t<decltype(value)>>) {
                                  return std::to_string(value);
                              } else {
                                  raiseTypeMismatch();
                              }
                          },
                      },
                      value_);
}

ObjectPtr Variant::toObject() const {
    const ObjectPtr* object = std::get_if<ObjectPtr>(&value_);
    if (!object) raiseTypeMismatch();
    return *object;
}

Object& Variant::object() const {
    const ObjectPtr* object = std::get_if<ObjectPtr>(&value_);
    if (!object) raiseTypeMismatch();
    if (!*object) throw HostError(code::objectNotSet, "Automation", "Object variable not set.");
    return **object;
}

std::string_view typeName(const Variant& value) {
    if (const ObjectPtr* object = std::get_if<ObjectPtr>(&value.held()))
        return *object ? "Object" : "Nothing";
    constexpr std::array<std::string_view, std::variant_size_v<Variant::Held>> names = {
        "Empty",    "Null",   "Error",  "Boolean", "Integer", "Long",
        "LongLong", "Single", "Double", "Date",    "String",  ""};
    return names[value.held().index()];
}

}  // namespace tsln
