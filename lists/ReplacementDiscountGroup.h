#pragma once

#include "maintenance/RecordDialog.h"

namespace tsln::lists {

/// Lets the user choose the discount group that replaces a group to be deleted. `ID` is the chosen group.
class ReplacementDiscountGroup : public RecordDialog {
  public:
    explicit ReplacementDiscountGroup(Library& library);

    ComboBox cboDiscountGroup{*this, "cboDiscountGroup"};

    /// Offers every group except this one. Returns false, after telling the user, when there is no other group or the
    /// groups cannot be read.
    bool initialize(std::int32_t goes);

  protected:
    Layout content() override;
    bool save() override;
};

/// Shows the dialog. Returns the chosen group, 0 when cancelled or when there is no other group.
std::int32_t chooseReplacementDiscountGroup(Library& library, std::int32_t ID);

}  // namespace tsln::lists
