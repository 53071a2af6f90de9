#pragma once

#include <optional>
#include <string>
#include <vector>

#include "screens/Desktop.h"

namespace tsln::workbench {

/// The kinds of message that the host shows; the front end gives each its look.
enum class MessageStyle {
    Style1,            ///< the standard message: a main text and a second line
    Style1WithMemory,  ///< the same with a "do not show again" box
    Style2,            ///< the second style
    Error,             ///< a failure
    LoggedError,       ///< a failure that stands in the event log, too
};

/// One message. `text` and `advice` may hold the markup that shared/Markup.h reads, the rest is plain text.
struct Message {
    MessageStyle style = MessageStyle::Style1;
    std::string text;
    std::string advice;       ///< the second line; may be empty
    std::string explanation;  ///< of a failure: what usually causes it and what to do
    std::string detail;       ///< of a failure: the words of the database
    std::string title;        ///< of the window; empty for the program's name
    MessageButtons buttons = MessageButtons::Ok;
};

/// How the user answered.
struct Reply {
    MessageAnswer answer = MessageAnswer::Ok;
    bool doNotShowAgain = false;  ///< Style1WithMemory only
};

/// An expression for the user to edit.
struct ExpressionEdit {
    std::string expression;
    std::string title;               ///< of the window; empty for its own
    std::vector<std::string> names;  ///< that an expression may hold, for the user to choose from
};

/// What the host needs of whoever shows its windows.
class HostUi {
  public:
    virtual ~HostUi() = default;
    /// Shows the message and returns when it is answered. A message closed without an answer gives Cancel
    /// where there is one, else No or Ok.
    virtual Reply showMessage(const Message& message) = 0;
    /// Lets the user edit an expression; the edited text, or none when he cancels. Without a window for it,
    /// every edit is cancelled.
    virtual std::optional<std::string> editExpression(const ExpressionEdit&) { return std::nullopt; }
};

}  // namespace tsln::workbench
