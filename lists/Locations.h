#pragma once

#include "maintenance/RecordDialog.h"
#include "maintenance/ListScreen.h"

namespace tsln::lists {

/// The locations. Their dialog tells only whether it was cancelled, so the list looks itself what was saved.
class LocationsScreen : public ListScreen {
  public:
    using ListScreen::ListScreen;

  protected:
    void cmdNew_Click() override;
    void cmdEdit_Click() override;
};

/// The dialog of a location, with its ship-to address in one box.
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
