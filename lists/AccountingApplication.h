#pragma once

#include "bridge/HostScreen.h"
#include "screens/Controls.h"

namespace tsln::lists {

/// Records which accounting application the company uses.
class AccountingApplication : public HostScreen {
  public:
    explicit AccountingApplication(Library& library);

    ComboBox cboApp{*this, "cboApp"};
    Button cmdOK{*this, "cmdOK", "OK", Button::Role::Default};
    Button cmdCancel{*this, "cmdCancel", "Cancel", Button::Role::Cancel};

    bool Cancelled = true;

    Layout layout() override;

  protected:
    void Form_Load() override;
    void Form_Unload() override { saveWindowPosition(*this); }

  private:
    void cmdOK_Click();
};

/// Shows the choice; true when it was cancelled.
bool chooseAccountingApplication(Library& library);

}  // namespace tsln::lists
