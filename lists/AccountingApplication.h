#pragma once

#include "maintenance/RecordDialog.h"

namespace tsln::lists {

/// Asks which accounting application the company uses, and stores the answer as a company option.
class AccountingApplication : public RecordDialog {
  public:
    explicit AccountingApplication(Library& library);

    ComboBox cboApp{*this, "cboApp"};

  protected:
    void Form_Load() override;
    Layout content() override;
    bool save() override;
};

/// Shows the dialog. Returns true when it was cancelled.
bool chooseAccountingApplication(Library& library);

}  // namespace tsln::lists
