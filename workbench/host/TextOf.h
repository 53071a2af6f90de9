#pragma once

#include <string>

#include "automation/Variant.h"

namespace tsln::workbench {

/// Returns the value's text; an empty text for Null and a missing value.
inline std::string textOf(const Variant& value) {
    return value.isNull() || value.isMissing() ? std::string() : value.toText();
}

}  // namespace tsln::workbench
