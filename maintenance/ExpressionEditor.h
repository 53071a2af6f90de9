#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "bridge/HostScreen.h"

namespace tsln {

/// Lets the user edit a text in the host's expression editor, whose window has the title (empty: its own). Returns nothing where the host has no such editor or
/// the editor returns no text. An editor that fails raises HostError.
std::optional<std::string> editExpression(HostScreen& screen, const std::string& expression,
                                          std::string_view title = {});

}  // namespace tsln
