#pragma once

#include <optional>
#include <string_view>

#include "screens/Desktop.h"
#include "workbench/host/HostUi.h"

namespace tsln::workbench {

/// What the user is told when a program that the module waited for has not come to a good end; nothing when
/// it has. The module itself does not look at how such a program ends.
std::optional<Message> processEndMessage(std::string_view commandLine, ProcessEnd end);

}  // namespace tsln::workbench
