#pragma once

#include <optional>
#include <string>

#include "bridge/HostScreen.h"

namespace tsln {

/// Lets the user edit a text in the host's expression editor. Nothing where the host has no such editor or it
/// gives no text back. An editor that fails at its work raises HostError.
std::optional<std::string> editExpression(HostScreen& screen, const std::string& expression);

}  // namespace tsln
