#pragma once

#include "maintenance/RecordDialog.h"
#include "screens/DateBox.h"

namespace tsln::roaming {

/// Sets back the date up to which a roaming workstation has been sent all changes. The agent sends the changes since then
/// once more, for example after the workstation lost some of them with a restored backup.
class ResetDateDialog : public RecordDialog {
  public:
    explicit ResetDateDialog(Library& library);

    DateBox dtResetDate{*this, "dtResetDate"};

  protected:
    Layout content() override;
    void opened() override { setFocus(dtResetDate); }
    bool validate() override;
    bool save() override;
};

/// Lets the user choose the date for a roaming workstation. Returns true when it was stored.
bool resetSendDate(Library& library, std::int32_t ID);

}  // namespace tsln::roaming
