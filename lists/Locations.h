#pragma once

#include "lists/EditDialog.h"
#include "lists/ListScreen.h"

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
class LocationDialog : public EditDialog {
  public:
    LocationDialog(Library& library, const ListDescription& description);

    Frame grpPhones{*this, "grpPhones", "Phone Numbers"};
    Button cmdCopyAddress{*this, "cmdCopyAddress", "&Copy Company Address"};

  protected:
    Layout fieldLayout() override;
    void showField(FieldControl& field, const Record& row) override;
    void addTags(FieldControl& field, std::vector<modSharedSQL::Tag>& tags) override;

  private:
    TextBox& address() { return field("txtShipToAddress").text(); }
    Layout phone(int number);
    Address parseAddress();
    void address_Leave();
    void cmdCopyAddress_Click();

    /// The address is to be validated: stored with a new location, and the host's to change.
    bool validateAddresses_ = true;
};

}  // namespace tsln::lists
