#pragma once

#include <optional>
#include <string>

#include "workbench/host/HostUi.h"

class wxWindow;

namespace tsln::workbench {

/// Lets the user edit an expression in a window over `owner` (null: over none), with its names to choose from
/// and a word about brackets that do not match. The edited text, or none when he cancels.
std::optional<std::string> editExpressionInWindow(wxWindow* owner, const ExpressionEdit& edit);

}  // namespace tsln::workbench
