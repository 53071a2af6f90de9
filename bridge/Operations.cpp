#include "bridge/Operations.h"

#include <algorithm>

#include "automation/NumericText.h"

namespace tsln {

std::optional<Operation> findOperation(std::string_view name) {
    const auto found =
        std::ranges::find_if(operations, [&](const auto& row) { return sameName(row.name, name); });
    if (found == operations.end()) return std::nullopt;
    return found->operation;
}

namespace {

/// Unlike a conversion to Boolean, keeps a number. The texts "True" and "False" are -1 and 0.
std::int16_t toFlag(const Variant& value) {
    bool truth = false;
    if (value.isText() && !value.isNumeric() && readBoolean(value.toText(), truth) == Reading::Done)
        return truth ? -1 : 0;
    return value.toInteger();
}

}  // namespace

Variant convert(const Variant& value, ValueType type) {
    switch (type) {
        case ValueType::None:
            return {};
        case ValueType::Boolean:
            return value.toBoolean();
        case ValueType::Flag:
            return toFlag(value);
        case ValueType::Integer:
            return value.toInteger();
        case ValueType::Long:
            return value.toLong();
        case ValueType::String:
            return value.toText();
        case ValueType::Variant:
            return value;
        case ValueType::Object:
            return value.toObject();
    }
    return {};
}

}  // namespace tsln
