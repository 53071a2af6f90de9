#pragma once

#include <concepts>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include "automation/HostError.h"

namespace tsln {

class Object;
using ObjectPtr = std::shared_ptr<Object>;

/// A point in time as the automation platform counts it: days since 30 December 1899. The fraction is the
/// time of day and counts forward on days before that date, too: -1.25 is 29 December, 6:00.
struct Date {
    double days = 0;
    friend bool operator==(Date, Date) = default;
};

/// The database's "no value".
struct Null {
    friend bool operator==(Null, Null) = default;
};

/// An optional argument that the caller left out.
struct Missing {
    friend bool operator==(Missing, Missing) = default;
};

/// A value of a late-bound call: an argument or a result of the host's members. Text is UTF-8.
///
/// The to...() conversions follow the platform's automation rules:
/// - numeric text with signs, thousands separators, "$", parentheses, exponents and &H/&O digits is a number;
/// - fractions round half to even;
/// - booleans are -1 and 0 as numbers and "True" and "False" as text;
/// - an empty variant is 0, "" or false.
/// A value that does not fit raises HostError(code::overflow). One that cannot be converted raises
/// HostError(code::typeMismatch); so do Null, Missing and objects in every conversion.
class Variant {
  public:
    Variant() = default;
    Variant(Null value) : value_(value) {}
    Variant(Missing value) : value_(value) {}
    Variant(std::same_as<bool> auto value) : value_(value) {}
    Variant(std::int16_t value) : value_(value) {}
    Variant(std::int32_t value) : value_(value) {}
    Variant(std::int64_t value) : value_(value) {}
    Variant(float value) : value_(value) {}
    Variant(double value) : value_(value) {}
    Variant(Date value) : value_(value) {}
    Variant(std::string value) : value_(std::move(value)) {}
    Variant(std::string_view value) : value_(std::string(value)) {}
    Variant(const char* value) : value_(std::string(value)) {}
    /// An object reference; a null pointer is the platform's "nothing".
    Variant(ObjectPtr value) : value_(std::move(value)) {}
    template <std::derived_from<Object> T>
    Variant(std::shared_ptr<T> value) : value_(ObjectPtr(std::move(value))) {}

    bool isEmpty() const noexcept { return holds<std::monostate>(); }
    bool isNull() const noexcept { return holds<Null>(); }
    bool isMissing() const noexcept { return holds<Missing>(); }
    bool isText() const noexcept { return holds<std::string>(); }
    bool isObject() const noexcept { return holds<ObjectPtr>(); }
    template <class T>
    bool holds() const noexcept {
        return std::holds_alternative<T>(value_);
    }

    /// True when the value is a number, a boolean, empty or text that reads as a number, but not for a date
    /// (the platform's IsNumeric).
    bool isNumeric() const;

    bool toBoolean() const;
    std::int16_t toInteger() const;
    std::int32_t toLong() const;
    std::int64_t toLongLong() const;
    float toSingle() const;
    double toDouble() const;
    Date toDate() const;
    std::string toText() const&;
    std::string toText() &&;  ///< moves the text out

    /// The object, which may be null. A value that is no object raises HostError(code::typeMismatch).
    ObjectPtr toObject() const;
    /// The object. A null one raises HostError(code::objectNotSet), a value that is no object
    /// code::typeMismatch.
    Object& object() const;

    /// The value in its own type, for code that converts variants to other representations.
    using Held = std::variant<std::monostate, Null, Missing, bool, std::int16_t, std::int32_t, std::int64_t,
                              float, double, Date, std::string, ObjectPtr>;
    const Held& held() const noexcept { return value_; }

    /// Same type and same value; no conversion.
    friend bool operator==(const Variant&, const Variant&) = default;

  private:
    Held value_;
};

/// The platform's name of the value's type ("Empty", "Long", "String" ...), for messages and traces.
std::string_view typeName(const Variant& value);

}  // namespace tsln
