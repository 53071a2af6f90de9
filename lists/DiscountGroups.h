#pragma once

#include "maintenance/RecordDialog.h"
#include "maintenance/ListScreen.h"

namespace tsln::lists {

/// The discount groups. Deleting one is an operation of the library of its own.
class DiscountGroupsScreen : public ListScreen {
  public:
    using ListScreen::ListScreen;

  protected:
    void deleteSelected() override;
    void exportRows() override;
};

/// The dialog of a discount group. The groups every company needs cannot be changed.
class DiscountGroupDialog : public RecordDialog {
  public:
    using RecordDialog::RecordDialog;

  protected:
    void filled() override;
};

/// Gives the library the list, its dialog and the operations to delete a group.
void plugInDiscountGroups(Library& library);

}  // namespace tsln::lists
