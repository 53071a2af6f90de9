#pragma once

#include <string>
#include <string_view>

namespace tsln::workbench {

/// The text as a literal of a statement, with its quotes.
std::string literal(std::string_view text);

/// A table's or column's name as it stands in a statement. A name that is not made of letters A to Z, digits
/// and underscores raises HostError(code::fail).
std::string bracketed(std::string_view name);
bool isPlainName(std::string_view name);

}  // namespace tsln::workbench
