#pragma once

#include <string>
#include <string_view>

namespace tsln::workbench {

/// Returns the text as an SQL literal, with its quotes.
std::string literal(std::string_view text);

/// Returns the name of a table or column as statements write it. A name with other characters than A to Z, digits and
/// underscores raises HostError(code::fail).
std::string bracketed(std::string_view name);
bool isPlainName(std::string_view name);

}  // namespace tsln::workbench
