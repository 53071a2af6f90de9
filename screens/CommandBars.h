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
    bool beginsGroup = false;  ///< a separator is drawn before it
    std::vector<Command> commands;
};

/// Gives each command without an access letter the first letter or digit of its caption that is not taken yet.
void giveAccessLetters(std::vector<Command>& commands);

/// The context popups of a screen. Before a popup is shown, `onUpdate` enables or disables each of its
/// commands; `onExecute` runs the command that the user chooses.
class CommandBars : public Control {
  public:
    CommandBars(Screen& screen, std::string name) : Control(screen, std::move(name)) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    std::vector<Command> popups;
    /// The first popup with this identifier, or null.
    Command* popup(int id);

    std::function<void(Command&)> onUpdate;
    std::function<void(int id)> onExecute;

    /// Calls `onUpdate` for every command of the popup. A command for which it throws is disabled.
    void update(Command& popup);
    /// Runs an enabled command. An unknown or disabled command is ignored.
    void execute(const Command& popup, int id);
    /// Updates the popup, shows it below the control `below` and executes the chosen command. An unknown identifier is
    /// ignored. From a report control's onContextMenu, the popup opens at the pointer, or under the focused row when it
    /// was opened by the keyboard.
    void showPopup(int id, Control& below);
    /// Updates and shows one of the `popups`.
    void showPopup(Command& popup, Control& below);
};

}  // namespace tsln
