#include "entities/AddressLabelDialog.h"

#include "shared/modSharedStrings.h"

namespace tsln::entities {
namespace {

constexpr std::string_view screenName = "frmAddressLabel";

}  // namespace

AddressLabelDialog::AddressLabelDialog(Library& library, std::string caption, const std::string& label,
                                       std::span<const std::string_view> suggestions)
    : RecordDialog(library, std::string(screenName)) {
    setCaption(std::move(caption));
    cboLabel.editable = true;
    for (const std::string_view suggestion : suggestions)
        cboLabel.addItem(std::string(suggestion));
    cboLabel.setText(label);
}

bool AddressLabelDialog::validate() {
    cboLabel.setText(modSharedStrings::trim(cboLabel.text()));
    if (!cboLabel.text().empty()) return true;
    refuse("You must enter a label.", &cboLabel);
    return false;
}

std::optional<std::string> askAddressLabel(Library& library, std::string caption, const std::string& label,
                                           std::span<const std::string_view> suggestions) {
    const auto closed = openRecord(
        library, screenName,
        [&] { return std::make_shared<AddressLabelDialog>(library, std::move(caption), label, suggestions); },
        0);
    if (closed->Cancelled) return std::nullopt;
    return closed->cboLabel.text();
}

}  // namespace tsln::entities
