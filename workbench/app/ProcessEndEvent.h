#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "screens/Desktop.h"

namespace tsln::workbench {

/// Returns the event log entry for a failed program that the module waited for; nothing when the program succeeded.
/// The user sees no message, because the module ignores the exit code of such programs.
std::optional<std::string> processEndEvent(std::string_view commandLine, ProcessEnd end);

}  // namespace tsln::workbench
