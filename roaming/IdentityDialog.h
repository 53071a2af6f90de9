#pragma once

#include "maintenance/RecordDialog.h"

namespace tsln::roaming {

/// Takes the identity code that the main system gave this workstation, and stores it in the company's row.
class IdentityDialog : public RecordDialog {
  public:
    explicit IdentityDialog(Library& library);

    TextBox txtUniqueID{*this, "txtUniqueID"};

  protected:
    Layout content() override;
    void opened() override { setFocus(txtUniqueID); }
    bool validate() override;
    bool save() override;

  private:
    bool hasCompany() const;
};

/// Lets the user enter the identity code. Returns 1 when it was stored, 0 when cancelled.
std::int32_t enterIdentity(Library& library);

}  // namespace tsln::roaming
