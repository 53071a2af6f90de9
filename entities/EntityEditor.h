#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bridge/HostScreen.h"
#include "entities/SaveWithHistory.h"
#include "screens/Controls.h"
#include "shared/Connection.h"

namespace tsln::entities {

/// The editor of a master record: one row of a table, read as a recordset when the editor is opened and
/// written with OK. What derives from it says which controls show the row and how it is saved.
class EntityEditor : public HostScreen {
  public:
    EntityEditor(Library& library, std::string name);

    Button cmdOK{*this, "cmdOK", "OK", Button::Role::Default};
    Button cmdCancel{*this, "cmdCancel", "Cancel", Button::Role::Cancel};

    /// True until a save has succeeded.
    bool Cancelled = true;
    /// The record that is edited, below 1 while it is new; once a new one is saved, its key.
    std::int32_t ID = 0;

    /// Fills the editor before it is shown. False when that failed, which has been told then: an editor that
    /// shows less than the record must not be saved over it.
    bool open(std::int32_t record);

    Layout layout() override;

  protected:
    void Form_Load() override { restoreWindowPosition(*this, WindowValues::PlaceAndState); }
    void Form_Unload() override { saveWindowPosition(*this, WindowValues::PlaceAndState); }
    bool Form_QueryUnload(bool byCloseBox) override { return !(byCloseBox && saving_); }

    virtual Layout content() = 0;
    /// What stands to the left of the buttons.
    virtual std::vector<Layout> besideButtons() { return {}; }
    virtual const Entity& entity() const = 0;
    virtual void loadLists() = 0;
    virtual void showDefaults() = 0;
    virtual void showRow(const Recordset& row) = 0;
    /// The defaults, the row, or nothing where there is no such row, are shown.
    virtual void filled() {}
    /// Whether the record can be saved; tells the user why not.
    virtual bool validate() = 0;
    /// Writes the record and sets `ID`; false when it could not be, which has been told then.
    virtual bool save() = 0;

    /// Enter starts a new line in this box and presses OK everywhere else. `onLeave` runs when it is left.
    void keepsEnter(TextBox& box, std::function<void()> onLeave = {});

    /// Puts the user into a box of one line that is to be put right.
    void sendTo(TextBox& box);

  private:
    void readRow();
    void cmdOK_Click();

    bool saving_ = false;
};

/// Shows an editor, of the class E, on a record, or on a new one for a number below 1; the record's key, 0
/// when nothing was saved.
template <class E>
std::int32_t edit(Library& library, std::string_view screenName, std::int32_t record) {
    const auto closed = library.screens().show(
        screenName, [&] { return std::make_shared<E>(library); },
        [&](E& editor) { return editor.open(record); });
    return closed->Cancelled ? 0 : closed->ID;
}

}  // namespace tsln::entities
