#pragma once

#include "maintenance/RecordDialog.h"
#include "maintenance/ListScreen.h"

namespace tsln::lists {

/// The discount groups. Rows are deleted by the library's operation DeleteDiscountGroup.
class DiscountGroupsScreen : public ListScreen {
  public:
    using ListScreen::ListScreen;

  protected:
    void deleteSelected() override;
    void exportRows() override;
};

/// The dialog of a discount group. A required group cannot be changed.
class DiscountGroupDialog : public RecordDialog {
  public:
    using RecordDialog::RecordDialog;

  protected:
    void filled() override;
};

/// Registers the list, its dialog and the operations that delete a group with the library.
void plugInDiscountGroups(Library& library);

}  // namespace tsln::lists
