#include "lists/ReplacementDiscountGroup.h"

namespace tsln::lists {

ReplacementDiscountGroup::ReplacementDiscountGroup(Library& library)
    : RecordDialog(library, "frmGetReplacementDiscountGroup") {
    setCaption("Replacement Discount Group");
}

Layout ReplacementDiscountGroup::content() {
    return layout::form({layout::field("&New discount group:", cboDiscountGroup)});
}

bool ReplacementDiscountGroup::initialize(std::int32_t goes) {
    const bool read = handle([&] {
        const Connection connection = host().companyConnection();
        const Recordset groups =
            connection.read("SELECT * FROM DiscountGroups WHERE ID <> " + std::to_string(goes));
        for (; !groups.atEnd(); groups.next())
            cboDiscountGroup.addItem(groups.text("DiscountGroup"), groups.number("ID"));
    });
    if (!read) return false;
    if (!cboDiscountGroup.entries().empty()) return true;
    tell("You cannot delete this discount group because it is the last one left.", MessageIcon::Exclamation);
    return false;
}

bool ReplacementDiscountGroup::save() {
    const auto chosen = cboDiscountGroup.chosen();
    if (!chosen) {
        refuse("You must select a new discount group.", &cboDiscountGroup);
        return false;
    }
    ID = *chosen;
    return true;
}

std::int32_t chooseReplacementDiscountGroup(Library& library, std::int32_t ID) {
    const auto closed = library.screens().show(
        "frmGetReplacementDiscountGroup", [&] { return std::make_shared<ReplacementDiscountGroup>(library); },
        [&](ReplacementDiscountGroup& screen) { return screen.initialize(ID); });
    return closed->result();
}

}  // namespace tsln::lists
