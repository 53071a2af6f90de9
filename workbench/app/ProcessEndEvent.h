#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "screens/Desktop.h"

namespace tsln::workbench {

/// What the event log notes of a program that the module waited for and that failed; nothing when it succeeded. The
/// user is told nothing: the module does not look at how such a program ends.
std::optional<std::string> processEndEvent(std::string_view commandLine, ProcessEnd end);

}  // namespace tsln::workbench
