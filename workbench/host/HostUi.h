#pragma once

#include <optional>
#include <string>
#include <vector>

#include "screens/Desktop.h"
#include "workbench/host/RecordLists.h"

namespace tsln::workbench {

/// The kinds of message that the host shows. The front end determines their look.
enum class MessageStyle {
    Style1,            ///< the standard message: a main text and a second line
    Style1WithMemory,  ///< the standard message with a "do not show again" box
    Style2,            ///< the second style
    Error,             ///< a failure
    LoggedError,       ///< a failure that is also written to the event log
};

/// A message. `text` and `advice` may hold the markup that shared/Markup.h reads; the other members are plain text.
struct Message {
    MessageStyle style = MessageStyle::Style1;
    std::string text;
    std::string advice;       ///< the second line; may be empty
    std::string explanation;  ///< for a failure: its usual cause and remedy
    std::string detail;       ///< for a failure: the database's error text
    std::string title;        ///< the window's title; empty: the program's name
    MessageButtons buttons = MessageButtons::Ok;
};

/// The user's answer.
struct Reply {
    MessageAnswer answer = MessageAnswer::Ok;
    bool doNotShowAgain = false;  ///< for Style1WithMemory only
};

/// An expression for the user to edit.
struct ExpressionEdit {
    std::string expression;
    std::string title;               ///< the window's title; empty: the default
    std::vector<std::string> names;  ///< the names that the user can choose from
};

/// Records for the user to search and to choose one of.
struct RecordSearch {
    std::string title;
    std::string table;
    std::vector<std::string> columns;
    std::vector<ListedRecord> records;
};

/// A message to be sent.
struct Email {
    std::string from, to, cc, bcc, subject, body;
};

/// The host's user interface.
class HostUi {
  public:
    virtual ~HostUi() = default;
    /// Shows the message and returns the answer. A message closed without an answer returns Cancel where it is
    /// offered, else No or Ok.
    virtual Reply showMessage(const Message& message) = 0;
    /// Lets the user edit an expression. Returns the edited text, or nothing when cancelled. Without a window for it,
    /// every edit is cancelled.
    virtual std::optional<std::string> editExpression(const ExpressionEdit&) { return std::nullopt; }
    /// Lets the user choose a record. Returns its identifier, or nothing when cancelled. Without a window for it, every
    /// search is cancelled.
    virtual std::optional<std::int32_t> searchRecord(const RecordSearch&) { return std::nullopt; }
    /// Lets the user edit and send a message. Returns it as it was sent, or nothing when cancelled. Without a window for
    /// it, every message is cancelled.
    virtual std::optional<Email> editEmail(const Email&) { return std::nullopt; }
    /// Lets the user choose a folder. Returns its path, or nothing when cancelled. Without a window for it, every choice is
    /// cancelled.
    virtual std::optional<std::string> chooseFolder([[maybe_unused]] const std::string& title) {
        return std::nullopt;
    }
};

}  // namespace tsln::workbench
