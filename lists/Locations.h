#pragma once

#include "maintenance/RecordDialog.h"
#include "maintenance/ListScreen.h"

namespace tsln::lists {

/// The locations. The dialog's operation returns only whether it was cancelled, not the row's key, so the list reads
/// all rows again after New.
class LocationsScreen : public ListScreen {
  public:
    using ListScreen::ListScreen;

  protected:
    void cmdNew_Click() override;
    void cmdEdit_Click() override;
};

/// The dialog of a location. Its ship-to address is edited in one box.
class LocationDialog : public RecordDialog {
  public:
    LocationDialog(Library& library, const ListDescription& description);

    Frame grpPhones{*this, "grpPhones", "Phone Numbers"};
    Button cmdCopyAddress{*this, "cmdCopyAddress", "&Copy Company Address"};

  protected:
    Layout content() override;

  private:
    void cmdCopyAddress_Click();
};

}  // namespace tsln::lists
