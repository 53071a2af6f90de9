#include "entities/LabelledAddresses.h"

#include <algorithm>

#include "entities/AddressLabelDialog.h"

namespace tsln::entities {
namespace {

constexpr int labelWidth = 16;    // characters
constexpr int addressWidth = 34;  // characters

constexpr std::string_view suggestedLabels[] = {"Home", "Work", "Other"};

// The operations that the links offer: without an address, with one, and where one of them is the default.
constexpr std::string_view linksEmpty =
    "<TextBlock TextAlignment='Right' FontSize='12'><Hyperlink Click='Hyperlink_NewAddress'>New</Hyperlink></TextBlock>";
constexpr std::string_view links =
    "<TextBlock TextAlignment='Right' FontSize='12'><Hyperlink Click='Hyperlink_NewAddress'>New</Hyperlink> / <Hyperlink Click='Hyperlink_DeleteAddress'>Delete</Hyperlink> / <Hyperlink Click='Hyperlink_EditLabel'>Edit Label</Hyperlink></TextBlock>";
constexpr std::string_view linksWithDefault =
    "<TextBlock TextAlignment='Right' FontSize='12'><Hyperlink Click='Hyperlink_NewAddress'>New</Hyperlink> / <Hyperlink Click='Hyperlink_DeleteAddress'>Delete</Hyperlink> / <Hyperlink Click='Hyperlink_EditLabel'>Edit Label</Hyperlink> / <Hyperlink Click='Hyperlink_MakeDefault'>Make Default</Hyperlink></TextBlock>";

}  // namespace

LabelledAddresses::LabelledAddresses(HostScreen& screen, const AddressBlock& block, bool& validate)
    : cboAddressLabel(screen, "cboAddressLabel"),
      txtShipToAddress(screen, "txtShipToAddress"),
      lblAddressLinks(screen, "lblAddressLinks", std::string(linksEmpty)),
      lblDefaultAddress(screen, "lblDefaultAddress", "This is the default address."),
      screen_(screen),
      block_(block),
      validate_(validate),
      stored_(block.table) {
    cboAddressLabel.widthInCharacters = labelWidth;
    cboAddressLabel.accessibleName = "Address label";
    cboAddressLabel.onClick = [this] { labelChosen(); };
    txtShipToAddress.multiLine = true;
    txtShipToAddress.widthInCharacters = addressWidth;
    txtShipToAddress.accessibleName = "Address";
    lblAddressLinks.onLink = [this](const std::string& operation) { follow(operation); };
    lblDefaultAddress.setVisible(false);
}

void LabelledAddresses::follow(const std::string& operation) {
    static constexpr std::pair<std::string_view, void (LabelledAddresses::*)()> operations[] = {
        {"Hyperlink_NewAddress", &LabelledAddresses::Hyperlink_NewAddress},
        {"Hyperlink_DeleteAddress", &LabelledAddresses::Hyperlink_DeleteAddress},
        {"Hyperlink_EditLabel", &LabelledAddresses::Hyperlink_EditLabel},
        {"Hyperlink_MakeDefault", &LabelledAddresses::Hyperlink_MakeDefault}};
    for (const auto& [name, run] : operations) {
        if (name == operation) (this->*run)();
    }
}

void LabelledAddresses::labelChosen() {
    // The stored number of an entry is the index of its address.
    const auto index = static_cast<std::size_t>(cboAddressLabel.chosen().value_or(0));
    try {
        keepTyped();
    } catch (const std::exception&) {
        select(chosen_);  // the typed text still belongs to the address before
        throw;
    }
    show(index);
}

// Operations ------------------------------------------------------------------------------------------

void LabelledAddresses::Hyperlink_NewAddress() {
    keepTyped();
    const bool first = cboAddressLabel.entries().empty();
    const auto label = askLabel("New Address", first ? defaultLabel() : std::string());
    if (!label) return;
    const std::size_t added = stored_.add(*label);
    listLabels();
    show(added);
    txtShipToAddress.setFocus();
}

void LabelledAddresses::Hyperlink_DeleteAddress() {
    if (!chosen_) return;
    stored_.at(*chosen_).deleted = true;
    const int place = cboAddressLabel.listIndex();
    listLabels();
    const auto& entries = cboAddressLabel.entries();
    if (entries.empty()) return show(std::nullopt);
    const std::size_t next = std::min(static_cast<std::size_t>(std::max(place, 0)), entries.size() - 1);
    show(static_cast<std::size_t>(entries[next].itemData));
}

void LabelledAddresses::Hyperlink_EditLabel() {
    if (!chosen_) return;
    const auto label = askLabel("Edit Label", stored_.at(*chosen_).label);
    if (!label) return;
    stored_.at(*chosen_).label = *label;
    listLabels();
    select(chosen_);
}

void LabelledAddresses::Hyperlink_MakeDefault() {
    if (!chosen_) return;
    stored_.makeDefault(*chosen_);
    select(chosen_);
}

std::string LabelledAddresses::defaultLabel() const {
    const DefaultOption& option = block_.defaultLabel;
    if (option.name.empty()) return std::string(option.otherwise);
    return screen_.host().options().GetCompanyOption(option.name, option.section, option.otherwise).toText();
}

std::optional<std::string> LabelledAddresses::askLabel(const std::string& caption,
                                                       const std::string& label) const {
    return askAddressLabel(screen_.library(), caption, label, suggestedLabels);
}

// Reading, typing, saving -----------------------------------------------------------------------------

void LabelledAddresses::read(std::int32_t owner) {
    stored_.read(screen_.host(), owner);
    listLabels();
    const auto& all = stored_.all();
    if (all.empty()) return show(std::nullopt);
    const auto usual = std::ranges::find(all, true, &LabelledAddress::isDefault);
    show(usual == all.end() ? 0U : static_cast<std::size_t>(usual - all.begin()));
}

void LabelledAddresses::setText(const std::string& text) {
    txtShipToAddress.setText(text);
    keepTyped();
}

void LabelledAddresses::left() {
    // After an address was cleared, the next one is validated.
    if (txtShipToAddress.text().empty()) validate_ = true;
    keepTyped();
}

/// An address that was only looked at stays as it is stored: not every address can be parsed from its text.
void LabelledAddresses::keepTyped() {
    if (txtShipToAddress.text() == shown_) return;
    std::string text = txtShipToAddress.text();
    const Address parts = screen_.host().ParseAddress(text, validate_);
    if (!chosen_) {
        const std::size_t added = stored_.add(defaultLabel());
        listLabels();
        select(added);
    }
    stored_.at(*chosen_).parts = parts;
    shown_ = text;
    txtShipToAddress.setText(std::move(text));
}

void LabelledAddresses::select(std::optional<std::size_t> index) {
    chosen_ = index;
    if (!index || !cboAddressLabel.choose(static_cast<std::int32_t>(*index)))
        cboAddressLabel.setListIndex(-1);
    lblDefaultAddress.setVisible(index && stored_.at(*index).isDefault);
}

void LabelledAddresses::show(std::optional<std::size_t> index) {
    select(index);
    // Without the host's text the box must not show another address.
    shown_.clear();
    txtShipToAddress.setText({});
    if (!index) return;
    shown_ = screen_.host().CombineAddress(stored_.at(*index).parts);
    txtShipToAddress.setText(shown_);
}

void LabelledAddresses::listLabels() {
    cboAddressLabel.clear();
    const auto& all = stored_.all();
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (!all[i].deleted) cboAddressLabel.addItem(all[i].label, static_cast<std::int32_t>(i));
    }
    lblAddressLinks.setCaption(std::string(cboAddressLabel.entries().empty() ? linksEmpty
                                           : block_.table.hasDefault         ? linksWithDefault
                                                                             : links));
}

void LabelledAddresses::save(std::int32_t owner) {
    stored_.save(screen_, owner);
}

}  // namespace tsln::entities
