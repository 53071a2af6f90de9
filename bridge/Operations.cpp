#include "bridge/Operations.h"

#include <algorithm>

namespace tsln {

std::optional<Operation> findOperation(std::string_view name) {
    const auto found =
        std::ranges::find_if(operations, [&](const auto& row) { return sameName(row.name, name); });
    if (found == operations.end()) return std::nullopt;
    return found->operation;
}

Variant convert(const Variant& value, ValueType type) {
    switch (type) {
        case ValueType::None:
            return {};
        case ValueType::Boolean:
            return value.toBoolean();
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
