#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "bridge/HostScreen.h"
#include "entities/StoredAddresses.h"
#include "maintenance/FieldDescription.h"
#include "screens/Controls.h"
#include "screens/MarkupLabel.h"

namespace tsln::entities {

/// Where the addresses of a kind of record are stored, and the label of an address for which the user chose none.
struct AddressBlock {
    const AddressTable& table;
    DefaultOption defaultLabel;
};

/// The part of a dialog with any number of labelled addresses: a list of their labels, a box with the chosen address,
/// and links that add, delete and label addresses. Nothing is written before save().
class LabelledAddresses {
  public:
    /// `validate` tells whether the record's addresses are to be validated; the host may change it whenever it parses
    /// one. The block, the screen and `validate` must outlive this object.
    LabelledAddresses(HostScreen& screen, const AddressBlock& block, bool& validate);

    ComboBox cboAddressLabel;
    TextBox txtShipToAddress;
    MarkupLabel lblAddressLinks;
    Label lblDefaultAddress;

    // The operations of the links.
    void Hyperlink_NewAddress();
    void Hyperlink_DeleteAddress();
    void Hyperlink_EditLabel();
    void Hyperlink_MakeDefault();

    /// Reads the record's addresses and shows the default one. May raise HostError.
    void read(std::int32_t owner);
    /// Replaces the text of the chosen address. Without one, adds an address with the default label. May raise HostError.
    void setText(const std::string& text);
    /// Called when the user leaves the box: lets the host parse what was typed. May raise HostError.
    void left();
    /// Takes over what was typed into the box, as left() does, before the record is written. May raise HostError.
    void finish() { keepTyped(); }
    /// Writes the addresses after the record's own row. Reports its failures.
    void save(std::int32_t owner);

    const StoredAddresses& stored() const noexcept { return stored_; }

  private:
    void follow(const std::string& operation);
    void keepTyped();
    std::string defaultLabel() const;
    std::optional<std::string> askLabel(const std::string& caption, const std::string& label) const;
    void labelChosen();
    void listLabels();
    /// Makes this address the chosen one, and leaves the box as it is.
    void select(std::optional<std::size_t> index);
    /// Chooses this address and shows it in the box.
    void show(std::optional<std::size_t> index);

    HostScreen& screen_;
    const AddressBlock& block_;
    bool& validate_;
    StoredAddresses stored_;
    std::optional<std::size_t> chosen_;  // an index of stored_
    std::string shown_;                  // the text that the box got last from here
};

}  // namespace tsln::entities
