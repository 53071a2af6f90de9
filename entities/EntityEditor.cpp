#include "entities/EntityEditor.h"

namespace tsln::entities {
namespace {

/// While the editor saves, neither of its buttons can be pressed.
class Saving {
  public:
    Saving(EntityEditor& editor, bool& saving) : editor_(editor), saving_(saving) { set(true); }
    ~Saving() { set(false); }
    Saving(const Saving&) = delete;
    Saving& operator=(const Saving&) = delete;

  private:
    void set(bool saving) {
        saving_ = saving;
        editor_.cmdOK.setEnabled(!saving);
        editor_.cmdCancel.setEnabled(!saving);
    }

    EntityEditor& editor_;
    bool& saving_;
};

}  // namespace

EntityEditor::EntityEditor(Library& library, std::string name) : HostScreen(library, std::move(name)) {
    cmdOK.onClick = [this] { cmdOK_Click(); };
    cmdCancel.onClick = [this] {
        Cancelled = true;
        hide();
    };
}

Layout EntityEditor::layout() {
    using namespace tsln::layout;
    std::vector<Layout> bottom = besideButtons();
    bottom.insert(bottom.end(), {spring(), item(cmdOK), item(cmdCancel)});
    return column({stretch(content()), row(std::move(bottom))});
}

bool EntityEditor::open(std::int32_t record) {
    return handle([&] {
        ID = record;
        setCaption((ID < 1 ? "New " : "Edit ") + capitalized(entity().noun));
        loadLists();
        if (ID < 1) {
            showDefaults();
        } else {
            readRow();
        }
        filled();
    });
}

void EntityEditor::readRow() {
    const Recordset row = host().companyConnection().read("SELECT * FROM " + std::string(entity().table) +
                                                          " WHERE ID = " + std::to_string(ID));
    if (!row.isOpen()) throw HostError(code::fail, name(), "The record could not be read.");
    if (!row.atEnd()) showRow(row);
}

void EntityEditor::keepsEnter(TextBox& box, std::function<void()> onLeave) {
    box.multiLine = true;
    box.onEnter = [this] { cmdOK.setRole(Button::Role::Plain); };
    box.onLeave = [this, onLeave = std::move(onLeave)] {
        cmdOK.setRole(Button::Role::Default);
        if (onLeave) onLeave();
    };
}

void EntityEditor::sendTo(TextBox& box) {
    cmdOK.setRole(Button::Role::Default);  // a box of several lines may have had the focus
    box.setFocus();
}

void EntityEditor::cmdOK_Click() {
    bool saved = false;
    {
        const Saving saving(*this, saving_);
        saved = validate() && save();
    }
    if (!saved) return;
    Cancelled = false;
    hide();
}

}  // namespace tsln::entities
