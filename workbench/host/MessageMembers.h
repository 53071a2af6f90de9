#pragma once

#include <string_view>

#include "automation/Object.h"
#include "workbench/host/HostContext.h"

namespace tsln::workbench {

// How the shared-code object shows messages. The arguments are its members'; "{standard explanation}" among
// them stands for the usual one.

inline constexpr std::string_view usualExplanation =
    "This typically happens if the database is in use by another user or program. Try saving again. If the problem persists, close the program, restart and try again.";

/// Main text and second line. Of what follows, a number says the buttons, which makes the message a question,
/// and a text is the window's title. A question is answered with the platform's number of the button.
Variant showMessage(HostContext& context, MessageStyle style, Arguments a);

/// Main text and second line of a message that the user may choose not to see again. Messages are known by
/// their texts, for each user by himself.
Variant showMessageWithMemory(HostContext& context, Arguments a);

/// Message, explanation, the database's words or the connection that has them among its errors; what some
/// callers add is further detail. A LoggedError goes to the event log, too.
Variant showError(HostContext& context, MessageStyle style, Arguments a);

}  // namespace tsln::workbench
