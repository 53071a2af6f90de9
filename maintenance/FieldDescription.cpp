#include "maintenance/FieldDescription.h"

namespace tsln::fields {
namespace {

/// Every record type reads its default labels from the customers' options.
constexpr std::string_view labelSection = "Customers";
// characters
constexpr int labelWidth = 14;
constexpr int boxWidth = 26;

struct Slot {
    std::string_view combo, box, labelColumn, column, labelTag, tag;
    std::string_view caption, comboName, boxName;
    DefaultOption defaultLabel;
};

constexpr Slot phoneSlots[] = {
    {"cboPhone1Label", "txtPhone1", "Phone1Label", "Phone1", "<p1l>", "<p1>", "Phone &1:", "Phone 1 label",
     "Phone 1", {"DefaultPhone1Label", labelSection, "Home"}},
    {"cboPhone2Label", "txtPhone2", "Phone2Label", "Phone2", "<p2l>", "<p2>", "Phone &2:", "Phone 2 label",
     "Phone 2", {"DefaultPhone2Label", labelSection, "Work"}},
    {"cboPhone3Label", "txtPhone3", "Phone3Label", "Phone3", "<p3l>", "<p3>", "Phone &3:", "Phone 3 label",
     "Phone 3", {"DefaultPhone3Label", labelSection, "Mobile"}},
    {"cboPhone4Label", "txtPhone4", "Phone4Label", "Phone4", "<p4l>", "<p4>", "Phone &4:", "Phone 4 label",
     "Phone 4", {}},
};
constexpr Slot emailSlots[] = {
    {"cboEmail1Label", "txtEmail1", "Email1Label", "Email1", "<e1l>", "<e1>", "&E-mail 1:", "E-mail 1 label",
     "E-mail 1", {"DefaultEmail1Label", labelSection, "Home"}},
    {"cboEmail2Label", "txtEmail2", "Email2Label", "Email2", "<e2l>", "<e2>", "E-&mail 2:", "E-mail 2 label",
     "E-mail 2", {"DefaultEmail2Label", labelSection, "Work"}},
};

std::vector<FieldDescription> slotFields(std::span<const Slot> slots, Loader loader, Rule rule, bool defaults) {
    std::vector<FieldDescription> fields;
    for (const Slot& slot : slots) {
        const FieldDescription labelField =
            label(slot.combo, slot.caption, slot.labelColumn, slot.labelTag, loader)
                .wide(labelWidth)
                .named(slot.comboName);
        fields.push_back(defaults ? labelField.byDefault(slot.defaultLabel) : labelField);
        fields.push_back(of(rule, slot.box, slot.boxName, slot.column, slot.tag).wide(boxWidth).named(slot.boxName));
    }
    return fields;
}

}  // namespace

std::vector<FieldDescription> phones(int count, Rule rule, bool defaults) {
    return slotFields(std::span(phoneSlots).first(static_cast<std::size_t>(count)), &Common::LoadPhoneLabels,
                      rule, defaults);
}

std::vector<FieldDescription> emails(int count) {
    return slotFields(std::span(emailSlots).first(static_cast<std::size_t>(count)), &Common::LoadEmailLabels,
                      Rule::Trimmed, true);
}

std::vector<FieldDescription> lockable(std::vector<FieldDescription> fields) {
    for (FieldDescription& field : fields)
        field.locks = true;
    return fields;
}

}  // namespace tsln::fields
