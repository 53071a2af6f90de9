#pragma once

#include "maintenance/RecordDialog.h"

namespace tsln::lists {

/// Lets the user choose the discount group that takes the place of one that is to go; `ID` is the chosen one.
class ReplacementDiscountGroup : public RecordDialog {
  public:
    explicit ReplacementDiscountGroup(Library& library);

    ComboBox cboDiscountGroup{*this, "cboDiscountGroup"};

    /// Offers every group but this one; false when there is none or they cannot be read, which has been told.
    bool initialize(std::int32_t goes);

  protected:
    Layout content() override;
    bool save() override;
};

/// Shows the choice; the chosen group, 0 when cancelled or when there is no other group.
std::int32_t chooseReplacementDiscountGroup(Library& library, std::int32_t ID);

}  // namespace tsln::lists
