#pragma once

#include <string_view>

#include "automation/Object.h"
#include "workbench/host/HostContext.h"

namespace tsln::workbench {

// The message members of the shared-code object. In the arguments, "{standard explanation}" is replaced by the usual
// explanation.

inline constexpr std::string_view usualExplanation =
    "This typically happens if the database is in use by another user or program. Try saving again. If the problem persists, close the program, restart and try again.";

/// Arguments: main text and second line; then optionally a number for the buttons, which makes the message a
/// question, and a text as the window's title. A question returns the platform's code of the chosen button.
Variant showMessage(HostContext& context, MessageStyle style, Arguments a);

/// Arguments: main text and second line of a message that the user can choose not to see again. The choice is stored
/// per user and text.
Variant showMessageWithMemory(HostContext& context, Arguments a);

/// Arguments: message, explanation, and the database's error text or the connection that reported it; further
/// arguments are shown as detail. A LoggedError is also written to the event log.
Variant showError(HostContext& context, MessageStyle style, Arguments a);

}  // namespace tsln::workbench
