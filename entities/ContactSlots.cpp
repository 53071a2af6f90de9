#include "entities/ContactSlots.h"

#include <span>

#include "shared/modSharedStrings.h"

namespace tsln::entities {

/// How a slot's columns, controls and tags are called, who fills its labels, and the label of new records.
struct ContactSlotNames {
    void (Common::*loadLabels)(ComboBox& combo) const;
    std::string_view labelColumn, column;
    std::string_view combo, box;
    std::string_view labelTag, tag;
    std::string_view labelOption, labelOtherwise;
    std::string_view caption, boxName;
};

namespace {

constexpr ContactSlotNames phoneSlots[] = {
    {&Common::LoadPhoneLabels, "Phone1Label", "Phone1", "cboPhone1Label", "txtPhone1", "<p1l>", "<p1>",
     "DefaultPhone1Label", "Home", "Phone &1:", "Phone number 1"},
    {&Common::LoadPhoneLabels, "Phone2Label", "Phone2", "cboPhone2Label", "txtPhone2", "<p2l>", "<p2>",
     "DefaultPhone2Label", "Work", "Phone &2:", "Phone number 2"},
    {&Common::LoadPhoneLabels, "Phone3Label", "Phone3", "cboPhone3Label", "txtPhone3", "<p3l>", "<p3>",
     "DefaultPhone3Label", "Mobile", "Phone &3:", "Phone number 3"},
    {&Common::LoadPhoneLabels, "Phone4Label", "Phone4", "cboPhone4Label", "txtPhone4", "<p4l>", "<p4>", "",
     "", "Phone &4:", "Phone number 4"},
};
constexpr ContactSlotNames emailSlots[] = {
    {&Common::LoadEmailLabels, "Email1Label", "Email1", "cboEmail1Label", "txtEmail1", "<e1l>", "<e1>",
     "DefaultEmail1Label", "Home", "&E-mail 1:", "E-mail address 1"},
    {&Common::LoadEmailLabels, "Email2Label", "Email2", "cboEmail2Label", "txtEmail2", "<e2l>", "<e2>",
     "DefaultEmail2Label", "Work", "E-&mail 2:", "E-mail address 2"},
};

/// The default labels are those of customers, whatever the record.
constexpr std::string_view optionSection = "Customers";
constexpr int labelWidth = 14;  // characters

}  // namespace

ContactSlots::Slot::Slot(HostScreen& screen, const ContactSlotNames& slotNames)
    : names(slotNames), label(screen, std::string(names.combo)), box(screen, std::string(names.box)) {
    label.editable = true;
    label.widthInCharacters = labelWidth;
    box.accessibleName = names.boxName;
}

ContactSlots::ContactSlots(HostScreen& screen, int phones, int emails) : screen_(screen) {
    for (const ContactSlotNames& names : std::span(phoneSlots).first(static_cast<std::size_t>(phones)))
        slots_.emplace_back(screen, names);
    for (const ContactSlotNames& names : std::span(emailSlots).first(static_cast<std::size_t>(emails)))
        slots_.emplace_back(screen, names);
}

void ContactSlots::loadLabels() {
    const Common common = screen_.host().common();
    for (Slot& slot : slots_)
        (common.*slot.names.loadLabels)(slot.label);
}

void ContactSlots::showDefaultLabels() {
    for (Slot& slot : slots_) {
        if (slot.names.labelOption.empty()) continue;
        const Variant label = screen_.host().options().GetCompanyOption(slot.names.labelOption, optionSection,
                                                                        slot.names.labelOtherwise);
        slot.label.setText(modSharedStrings::trim(label.toText()));
    }
}

void ContactSlots::show(const Recordset& row) {
    for (Slot& slot : slots_) {
        slot.label.setText(row.text(slot.names.labelColumn));
        slot.box.setText(row.text(slot.names.column));
    }
}

void ContactSlots::trim() {
    for (Slot& slot : slots_)
        slot.box.setText(modSharedStrings::trim(slot.box.text()));
}

void ContactSlots::addTags(StatementTags& tags) const {
    for (const Slot& slot : slots_) {
        tags.text(slot.names.labelTag, slot.label.text());
        tags.text(slot.names.tag, slot.box.text());
    }
}

void ContactSlots::setEnabled(bool enabled) {
    for (Slot& slot : slots_) {
        slot.label.setEnabled(enabled);
        slot.box.setEnabled(enabled);
    }
}

std::vector<Layout> ContactSlots::fields() {
    std::vector<Layout> fields;
    for (Slot& slot : slots_) {
        fields.push_back(layout::row(
            {layout::field(std::string(slot.names.caption), slot.label), layout::fill(slot.box)}));
    }
    return fields;
}

}  // namespace tsln::entities
