#pragma once

#include <string>

#include "automation/Variant.h"

namespace tsln::workbench {

/// The value's text; Null and what is missing are an empty text.
inline std::string textOf(const Variant& value) {
    return value.isNull() || value.isMissing() ? std::string() : value.toText();
}

}  // namespace tsln::workbench
