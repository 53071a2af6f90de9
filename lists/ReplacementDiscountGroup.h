#pragma once

#include "bridge/HostScreen.h"
#include "screens/Controls.h"

namespace tsln::lists {

/// Lets the user choose the discount group that takes the place of one that is to go.
class ReplacementDiscountGroup : public HostScreen {
  public:
    explicit ReplacementDiscountGroup(Library& library);

    ComboBox cboDiscountGroup{*this, "cboDiscountGroup"};
    Button cmdOK{*this, "cmdOK", "OK", Button::Role::Default};
    Button cmdCancel{*this, "cmdCancel", "Cancel", Button::Role::Cancel};

    std::int32_t ID = 0;    ///< the group that was chosen
    bool Cancelled = true;  ///< closing it by the title bar chooses nothing

    /// Offers every group but this one; false when there is none or they cannot be read, which has been told.
    bool initialize(std::int32_t goes);
    Layout layout() override;

  protected:
    void Form_Load() override { restoreWindowPosition(*this); }
    void Form_Unload() override { saveWindowPosition(*this); }

  private:
    void cmdOK_Click();
};

/// Shows the choice; the chosen group, 0 when cancelled or when there is no other group.
std::int32_t chooseReplacementDiscountGroup(Library& library, std::int32_t ID);

}  // namespace tsln::lists
