#pragma once

#include <string>
#include <string_view>

namespace tsln::workbench {

/// A new random GUID: 36 characters, capital letters, no braces.
std::string createGuid();

/// The GUID in braces and capital letters, from 32 hexadecimal digits with or without dashes and braces. A
/// text of another form raises HostError(code::typeMismatch).
std::string formatAsGuid(std::string_view text);

}  // namespace tsln::workbench
