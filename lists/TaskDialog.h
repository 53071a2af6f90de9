#pragma once

#include <string>
#include <vector>

#include "bridge/HostScreen.h"
#include "screens/Controls.h"

namespace tsln::lists {

/// A dialog with OK and Cancel that keeps its place on the screen. What derives from it says what stands
/// above the buttons and what OK does.
class TaskDialog : public HostScreen {
  public:
    TaskDialog(Library& library, std::string name);

    Button cmdOK{*this, "cmdOK", "OK", Button::Role::Default};
    Button cmdCancel{*this, "cmdCancel", "Cancel", Button::Role::Cancel};

    /// The dialog was left without its work done. It counts as cancelled from the start, so that closing it
    /// by the title bar does, unless the dialog says otherwise.
    bool Cancelled = true;

    Layout layout() override;

  protected:
    void Form_Load() override { restoreWindowPosition(*this); }
    void Form_Activate() override;
    void Form_Unload() override { saveWindowPosition(*this); }

    virtual Layout content() = 0;
    /// What stands to the left of the buttons.
    virtual std::vector<Layout> furtherButtons() { return {}; }
    /// The dialog is shown for the first time.
    virtual void opened() {}
    virtual void cmdOK_Click() = 0;

    /// The work is done: closes the dialog.
    void accept();
    void cancel();

  private:
    bool activated_ = false;
};

}  // namespace tsln::lists
