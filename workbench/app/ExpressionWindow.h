#pragma once

#include <optional>
#include <string>

#include "workbench/host/HostUi.h"

namespace tsln::workbench {

/// Lets the user edit an expression in a window over the screen that asked for it, with its names to choose
/// from and a word about brackets that do not match. The edited text, or none when he cancels.
std::optional<std::string> editExpressionInWindow(const ExpressionEdit& edit);

}  // namespace tsln::workbench
