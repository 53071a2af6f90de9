#pragma once

#include "bridge/HostScreen.h"
#include "screens/CheckList.h"
#include "screens/Controls.h"

namespace tsln::lists {

/// Assigns sales tax codes to a sales tax group.
class SalesTaxGroupCodes : public HostScreen {
  public:
    explicit SalesTaxGroupCodes(Library& library);

    Label lblCodes{*this, "lblCodes", "&Tick the sales tax codes that make up this group:"};
    CheckList lstCodes{*this, "lstCodes"};
    Button cmdOK{*this, "cmdOK", "OK", Button::Role::Default};
    Button cmdClose{*this, "cmdClose", "Close", Button::Role::Cancel};

    std::int32_t groupID = 0;
    /// It was closed by its Close button, without saving.
    bool closedByClose = false;

    Layout layout() override;

  protected:
    void Form_Load() override { restoreWindowPosition(*this); }
    void Form_Activate() override;
    void Form_Unload() override { saveWindowPosition(*this); }

  private:
    void cmdOK_Click();
    bool activated_ = false;
};

/// Shows the screen for a group; true when it was closed by its Close button.
bool assignSalesTaxCodes(Library& library, std::int32_t groupID);

}  // namespace tsln::lists
