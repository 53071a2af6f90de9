#pragma once

#include <string>
#include <string_view>

namespace tsln::workbench {

/// What is wrong with the expression's brackets and quotation marks, a sentence for the user; empty when
/// nothing is. Brackets within quotation marks are text. Linear in its length.
std::string expressionFault(std::string_view expression);

}  // namespace tsln::workbench
