#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tsln::workbench {

/// Returns a new random GUID: 36 characters, capital letters, no braces.
std::string createGuid();

/// Returns the GUID in braces and capital letters, from 32 hexadecimal digits with or without dashes, braces and
/// blanks. Returns nothing for another text.
std::optional<std::string> formatAsGuid(std::string_view text);

}  // namespace tsln::workbench
