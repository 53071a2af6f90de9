// The commands of a list screen: those of its menus and those that its buttons share with them.

#include <algorithm>
#include <initializer_list>
#include <iterator>

#include "maintenance/ListKinds.h"
#include "maintenance/ListScreen.h"
#include "maintenance/modSharedReportControl.h"

namespace tsln {
namespace {

using modSharedReportControl::anySelected;
using modSharedReportControl::oneFocused;

constexpr Rights addAndEdit = rights({Right::Add, Right::Edit});

}  // namespace

void ListScreen::makeCommands() {
    const bool importAndExport = description_.listKind.has_value();
    if (importAndExport) {
        commands_.push_back({.id = command::import,
                             .caption = "Import...",
                             .rights = addAndEdit,
                             .popups = inMore,
                             .run = [](ListScreen& list) { list.importRows(); }});
        commands_.push_back({.id = command::exportList,
                             .caption = "Export...",
                             .popups = inMore,
                             .run = [](ListScreen& list) { list.exportRows(); }});
    }
    commands_.push_back(
        {.id = command::print,
         .caption = "Print...",
         .popups = inMore,
         .run = [](ListScreen& list) { list.desktop().printPreview(list, list.rptItems, list.caption()); },
         .beginsGroup = importAndExport});
    commands_.push_back(
        {.id = command::save, .caption = "Save...", .popups = inMore, .run = [](ListScreen& list) {
             modSharedReportControl::saveAsText(list.rptItems, list.textFile_);
         }});
    if (description_.moveReferencesCode) {
        commands_.push_back({.id = command::moveReferences,
                             .caption = "Move References",
                             .needs = Needs::FocusedRow,
                             .rights = addAndEdit,
                             .popups = inMore,
                             .run = [](ListScreen& list) { list.moveReferences(); },
                             .beginsGroup = true});
    }
    if (description_.defaults) {
        commands_.push_back({.id = command::installDefaults,
                             .caption = "Install Defaults",
                             .rights = addAndEdit,
                             .popups = inMore,
                             .run = [](ListScreen& list) { list.installDefaults(); },
                             .beginsGroup = !description_.moveReferencesCode});
    }
    commands_.push_back({.id = command::newItem,
                         .caption = "New...",
                         .rights = rights({Right::Add}),
                         .popups = inNoItems | inOneItem,
                         .run = [](ListScreen& list) { list.cmdNew.userPress(); }});
    commands_.push_back({.id = command::editItem,
                         .caption = "Edit...",
                         .needs = Needs::OneRow,
                         .rights = rights({Right::Edit}),
                         .popups = inOneItem,
                         .run = [](ListScreen& list) { list.cmdEdit.userPress(); }});
    commands_.push_back({.id = command::deleteItem,
                         .caption = "Delete",
                         .needs = Needs::SelectedRows,
                         .rights = rights({Right::Delete}),
                         .popups = inOneItem,
                         .run = [](ListScreen& list) { list.cmdDelete.userPress(); }});
    std::ranges::copy(description_.commands, std::back_inserter(commands_));
}

void ListScreen::makePopups() {
    const auto popup = [this](int id, const char* caption, Popups which) {
        Command made{.id = id, .caption = caption};
        for (const ListCommand& command : commands_) {
            if ((command.popups & which) == 0) continue;
            made.commands.push_back({.id = command.id,
                                     .caption = std::string(command.caption),
                                     .beginsGroup = command.beginsGroup});
        }
        giveAccessLetters(made.commands);
        return made;
    };
    cbContext.popups.push_back(popup(command::more, "More List Commands", inMore));
    if (!description_.contextMenu) return;
    cbContext.popups.push_back(popup(command::noItems, "No Items", inNoItems));
    // Added twice (deliberate): the second one is for several rows.
    cbContext.popups.push_back(popup(command::oneItem, "One Item", inOneItem));
    cbContext.popups.push_back(popup(command::oneItem, "One Item", inOneItem));
}

void ListScreen::openContextMenu() {
    const std::size_t selected = selectedRecords().size();
    Command popup = selected == 0   ? cbContext.popups[1]
                    : selected == 1 ? cbContext.popups[2]
                                    : cbContext.popups[3];
    if (description_.hidesForbidden) {
        std::erase_if(popup.commands,
                      [this](const Command& command) { return !mayRun(*findCommand(command.id)); });
    }
    if (!popup.commands.empty()) cbContext.showPopup(popup, rptItems);
}

bool ListScreen::applies(const ListCommand& command) {
    const bool rowsFit = [&] {
        switch (command.needs) {
            case Needs::Nothing:
                return true;
            case Needs::FocusedRow:
                return oneFocused(rptItems);
            case Needs::OneRow:
                return oneFocused(rptItems) && rptItems.selectedRows() == std::vector{*rptItems.focusedRow()};
            case Needs::SelectedRows:
                return anySelected(rptItems);
        }
        return false;
    }();
    return rowsFit && mayRun(command);
}

bool ListScreen::mayRun(const ListCommand& command) {
    return std::ranges::all_of(
        std::initializer_list<Right>{Right::Add, Right::Edit, Right::Delete},
        [&](Right right) { return (command.rights & static_cast<Rights>(right)) == 0 || can(right); });
}

const ListCommand* ListScreen::findCommand(int id) const {
    const auto found = std::ranges::find(commands_, id, &ListCommand::id);
    return found == commands_.end() ? nullptr : &*found;
}

void ListScreen::runCommand(int id) {
    if (const ListCommand* command = findCommand(id); command && command->run) command->run(*this);
}

void ListScreen::importRows() {
    importList(*this, *description_.listKind);
    loadList();
}

void ListScreen::exportRows() {
    exportList(*this, *description_.listKind, exportFile_);
}

void ListScreen::moveReferences() {
    library().ShowMoveReferences(*description_.moveReferencesCode, selectedID());
    referencesMoved();
}

void ListScreen::installDefaults() {
    library().RunPackageProcessor(description_.defaults->packageKey, true);
    loadList();
}

}  // namespace tsln
