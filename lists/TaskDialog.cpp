#include "lists/TaskDialog.h"

namespace tsln::lists {

TaskDialog::TaskDialog(Library& library, std::string name) : HostScreen(library, std::move(name)) {
    cmdOK.onClick = [this] { cmdOK_Click(); };
    cmdCancel.onClick = [this] { cancel(); };
}

Layout TaskDialog::layout() {
    using namespace tsln::layout;
    std::vector<Layout> buttons = furtherButtons();
    buttons.insert(buttons.end(), {spring(), item(cmdOK), item(cmdCancel)});
    return column({stretch(content()), row(std::move(buttons))});
}

void TaskDialog::Form_Activate() {
    if (activated_) return;
    activated_ = true;
    desktop().yield();
    opened();
}

void TaskDialog::accept() {
    Cancelled = false;
    hide();
}

void TaskDialog::cancel() {
    Cancelled = true;
    hide();
}

}  // namespace tsln::lists
