#include "maintenance/ListCommands.h"

#include "maintenance/modSharedReportControl.h"
#include "screens/Screen.h"

namespace tsln {

void buildListCommands(CommandBars& bars, bool importAndExport, bool contextPopups) {
    Command more{command::more, "More List Commands"};
    if (importAndExport) {
        more.commands.push_back({command::import, "Import..."});
        more.commands.push_back({command::exportList, "Export..."});
    }
    more.commands.push_back({.id = command::print, .caption = "Print...", .beginsGroup = importAndExport});
    more.commands.push_back({command::save, "Save..."});
    bars.popups.push_back(std::move(more));
    if (!contextPopups) return;

    const Command newItem{command::newItem, "New..."};
    bars.popups.push_back({.id = command::noItems, .caption = "No Items", .commands = {newItem}});
    const Command oneItem{
        .id = command::oneItem,
        .caption = "One Item",
        .commands = {newItem, {command::editItem, "Edit..."}, {command::deleteItem, "Delete"}}};
    bars.popups.push_back(oneItem);
    bars.popups.push_back(oneItem);  // twice on purpose: the second stands where "several items" would
}

void updateListCommand(Command& command, const ReportControl* items) {
    switch (command.id) {
        case command::import:
        case command::exportList:
        case command::print:
        case command::save:
            command.enabled = true;
            break;
        case command::newItem:
            command.enabled = items != nullptr;
            break;
        case command::editItem:
            command.enabled = items && modSharedReportControl::oneFocused(*items) &&
                              items->selectedRows() == std::vector{*items->focusedRow()};
            break;
        case command::deleteItem:
            command.enabled = items && modSharedReportControl::anySelected(*items);
            break;
        default:
            break;
    }
}

void executeListCommand(int id, ReportControl& items) {
    switch (id) {
        case command::print:
            items.screen().desktop().printPreview(items.screen(), items, items.screen().caption());
            break;
        case command::save:
            modSharedReportControl::saveAsText(items);
            break;
        default:
            break;
    }
}

}  // namespace tsln
