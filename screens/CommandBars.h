#pragma once

#include <functional>
#include <string>
#include <vector>

#include "screens/Control.h"

namespace tsln {

/// A command of a context popup, or the popup itself with the commands below it.
struct Command {
    int id = 0;
    std::string caption;
    bool enabled = true;
    bool beginsGroup = false;  ///< a separator stands before it
    std::vector<Command> commands;
};

/// The popups of a screen. A popup asks before it shows a command whether the command is enabled (onUpdate)
/// and hands the chosen one over (onExecute).
class CommandBars : public Control {
  public:
    CommandBars(Screen& screen, std::string name) : Control(screen, std::move(name)) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    std::vector<Command> popups;
    /// The first popup with this identifier, or null.
    Command* popup(int id);

    std::function<void(Command&)> onUpdate;
    std::function<void(int id)> onExecute;

    /// Brings every command of the popup up to date.
    void update(Command& popup);
    /// Runs an enabled command; an unknown or a disabled one is passed over.
    void execute(const Command& popup, int id);
    /// Brings the popup up to date, lets the user choose under `below` and executes the choice. Called by a
    /// report control's onContextMenu with that control, the popup opens at the pointer, or under the focused
    /// row when it was asked for by the keyboard.
    void showPopup(int id, Control& below);
    /// Shows one of the popups, likewise.
    void showPopup(Command& popup, Control& below);
};

}  // namespace tsln
