#pragma once

#include "bridge/HostScreen.h"
#include "screens/MarkupLabel.h"

namespace tsln::roaming {

/// Manages this workstation's synchronization: resets its state, stops the agent, changes the identity code. The host is
/// told when the screen closes.
class Manager : public HostScreen {
  public:
    explicit Manager(Library& library);

    MarkupLabel lblExplanation{*this, "lblExplanation", ""};
    Label lblStatus{*this, "lblStatus", ""};
    Button cmdReset{*this, "cmdReset", "&Reset Sync State..."};
    Button cmdStopSync{*this, "cmdStopSync", "&Stop Agent"};
    Button cmdIdentity{*this, "cmdIdentity", "Change &Identity..."};
    Button cmdClose{*this, "cmdClose", "&Close", Button::Role::Cancel};

    Layout layout() override;

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

  private:
    void showStatus();
    void cmdReset_Click();
    void cmdStopSync_Click();
    void cmdIdentity_Click();

    bool reset_ = false;  // the company is to be closed
};

/// Shows the screen until it is closed.
void manageWorkstation(Library& library);

}  // namespace tsln::roaming
