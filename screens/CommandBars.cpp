#include "screens/CommandBars.h"

#include <algorithm>

#include "screens/Screen.h"

namespace tsln {

Command* CommandBars::popup(int id) {
    const auto found = std::ranges::find(popups, id, &Command::id);
    return found == popups.end() ? nullptr : &*found;
}

void CommandBars::update(Command& popup) {
    if (!onUpdate) return;
    for (Command& command : popup.commands) {
        // A command whose state is unknown is disabled: the user may have no right to run it.
        if (!screen().handle([&] { onUpdate(command); })) command.enabled = false;
    }
}

void CommandBars::execute(const Command& popup, int id) {
    const auto found = std::ranges::find(popup.commands, id, &Command::id);
    if (found == popup.commands.end() || !found->enabled || !onExecute) return;
    screen().handle([&] { onExecute(id); });
}

void CommandBars::showPopup(int id, Control& below) {
    if (Command* shown = popup(id)) showPopup(*shown, below);
}

void CommandBars::showPopup(Command& shown, Control& below) {
    update(shown);
    const Command asShown = shown;  // a copy: handlers that run while the popup is open may change it
    if (const int chosen = screen().desktop().choosePopup(screen(), asShown, below)) execute(asShown, chosen);
}

}  // namespace tsln
