#include "screens/CommandBars.h"

#include <algorithm>
#include <cctype>

#include "screens/Screen.h"

namespace tsln {

void giveAccessLetters(std::vector<Command>& commands) {
    std::string taken;
    const auto free = [&](char c) {
        const char lower = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        if (!std::isalnum(static_cast<unsigned char>(c)) || taken.find(lower) != taken.npos) return false;
        taken += lower;
        return true;
    };
    for (const Command& command : commands) {
        const auto mark = command.caption.find('&');
        if (mark != std::string::npos && mark + 1 < command.caption.size()) free(command.caption[mark + 1]);
    }
    for (Command& command : commands) {
        if (command.caption.find('&') != command.caption.npos) continue;
        const auto letter = std::ranges::find_if(command.caption, free);
        if (letter != command.caption.end()) command.caption.insert(letter, '&');
    }
}

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
