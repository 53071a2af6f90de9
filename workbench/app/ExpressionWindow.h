#pragma once

#include <optional>
#include <string>

#include "workbench/host/HostUi.h"

namespace tsln::workbench {

/// Lets the user edit an expression in a window over the calling screen, with a choice of names and a hint about
/// unmatched brackets. Returns the edited text, or nothing when the user cancels.
std::optional<std::string> editExpressionInWindow(const ExpressionEdit& edit);

}  // namespace tsln::workbench
