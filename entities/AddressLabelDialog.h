#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "maintenance/RecordDialog.h"

namespace tsln::entities {

/// Asks for the label of an address.
class AddressLabelDialog : public RecordDialog {
  public:
    AddressLabelDialog(Library& library, std::string caption, const std::string& label,
                       std::span<const std::string_view> suggestions);

    ComboBox cboLabel{*this, "cboLabel"};

  protected:
    Layout content() override { return layout::form({layout::field("&Label:", cboLabel)}); }
    bool validate() override;
    bool save() override { return true; }
};

/// Returns the label that the user typed or chose; nothing when cancelled.
std::optional<std::string> askAddressLabel(Library& library, std::string caption, const std::string& label,
                                           std::span<const std::string_view> suggestions);

}  // namespace tsln::entities
