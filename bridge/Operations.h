#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "automation/Object.h"

namespace tsln {

/// The operations of Library, numbered by their rows in the table.
enum class Operation : std::int16_t {
#define OPERATION(NAME, ...) NAME,
#include "bridge/Operations.def"
#undef OPERATION
};

/// The types of the interface. Integer has 16 bits, Long 32, both signed. A Flag is a Boolean of the interface whose 16
/// bits may also carry a number: the handler gets an Integer, -1 for True and 0 for False.
enum class ValueType { None, Boolean, Flag, Integer, Long, String, Variant, Object };
enum class Passing { ByValue, ByReference };
enum class Visibility { Public, Private, Internal };

struct OperationArgument {
    Passing passing = Passing::ByValue;
    ValueType type = ValueType::None;
    std::string_view name;
};

/// One row of the operation table.
struct OperationInfo {
    Operation operation;
    std::string_view name;
    Visibility visibility;
    ValueType result;
    std::array<OperationArgument, 3> argumentRow;
    std::size_t argumentCount;

    std::span<const OperationArgument> arguments() const {
        return std::span(argumentRow).first(argumentCount);
    }
};

inline constexpr std::array operations = [] {
    constexpr auto row = [](Operation operation, std::string_view name, Visibility visibility,
                            ValueType result, auto... arguments) {
        return OperationInfo{operation, name, visibility, result, {arguments...}, sizeof...(arguments)};
    };
    return std::array{
#define REF(TYPE, NAME)                              \
    OperationArgument {                              \
        Passing::ByReference, ValueType::TYPE, #NAME \
    }
#define VAL(TYPE, NAME)                          \
    OperationArgument {                          \
        Passing::ByValue, ValueType::TYPE, #NAME \
    }
#define OPERATION(NAME, VISIBILITY, RESULT, ...) \
    row(Operation::NAME, #NAME, Visibility::VISIBILITY, ValueType::RESULT __VA_OPT__(, ) __VA_ARGS__),
#include "bridge/Operations.def"
#undef OPERATION
#undef VAL
#undef REF
    };
}();

constexpr const OperationInfo& info(Operation operation) {
    return operations[static_cast<std::size_t>(operation)];
}

/// The operation of that name, compared without letter case; also finds private and internal ones.
std::optional<Operation> findOperation(std::string_view name);

/// Converts the value to the type by the platform's rules. For a Flag, a number stays what it is. Raises HostError(code::typeMismatch) or
/// code::overflow for a value that does not convert.
Variant convert(const Variant& value, ValueType type);

}  // namespace tsln
