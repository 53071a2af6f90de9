#pragma once

#include <string>
#include <string_view>

namespace tsln::workbench {

/// Checks the brackets and quotation marks of an expression. Returns a sentence for the user, or an empty text
/// without a fault. Brackets within quotation marks are text. The time is linear.
std::string expressionFault(std::string_view expression);

}  // namespace tsln::workbench
