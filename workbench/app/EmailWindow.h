#pragma once

#include <optional>

#include "workbench/host/HostUi.h"

namespace tsln::workbench {

/// Lets the user edit and send a message in a window over the calling screen. Returns the message as it was sent, or
/// nothing when the user cancels.
std::optional<Email> editEmailInWindow(const Email& email);

}  // namespace tsln::workbench
