#include "lists/DiscountGroups.h"

#include <vector>

#include "lists/DiscountGroupDeletion.h"
#include "lists/DiscountGroupTypes.h"
#include "lists/Lists.h"
#include "lists/ReplacementDiscountGroup.h"

namespace tsln::lists {
namespace {

using Show = ListColumn::Show;

constexpr Choice types[] = {{discountGroupTypes[0].number, discountGroupTypes[0].caption},
                            {discountGroupTypes[1].number, discountGroupTypes[1].caption},
                            {discountGroupTypes[2].number, discountGroupTypes[2].caption}};

}  // namespace

const ListDescription discountGroupsList{
    .open = Operation::ShowDiscountGroups,
    .edit = Operation::ShowEditDiscountGroups,
    .screenName = "frmDiscountGroups",
    .caption = "Discount Groups",
    .table = "DiscountGroups",
    .orderBy = "DiscountGroup",
    .columns = {{"Discount Group", 220, "DiscountGroup"},
                {"Type", 100, "DiscountGroupType", Show::Choice, types}},
    .securityArea = 201,
    .listKind = 15,
    .moveReferencesCode = 11,
    .dialog = {
        .newCaption = "New Discount Group",
        .editCaption = "Edit Discount Group",
        .fields = {fields::name("txtDiscount", "&Discount group:", "DiscountGroup", "<sm>", "You must enter a valid discount group.", "The discount group already exists."),
                   fields::choice("cboType", "&Type:", "DiscountGroupType", "<t>", types)},
        .saveFailure = "There was a problem saving this discount group.",
        .expression = true,
    }};

void DiscountGroupsScreen::deleteSelected() {
    for (const std::size_t row : rptItems.selectedRows()) {
        if (rptItems.row(row).isGroup()) continue;
        const std::size_t record = rptItems.row(row).record;
        if (library().ShowDeleteDiscountGroup(rptItems.id(record))) rptItems.removeRecord(record);
    }
    loadList();
}

void DiscountGroupsScreen::exportRows() {
    host().ShowMessageStyle1WithMemory(
        "Exporting Discount Groups",
        "Exporting discount groups will only export the names and types of the groups. It does not export the actual discounts. Exporting of discounts must be done from the Discounts screen.");
    ListScreen::exportRows();
}

void DiscountGroupDialog::filled() {
    const std::string name = comparableGroupName(textBox("txtDiscount").text());
    if (std::ranges::find(discountGroupTypes, name, &DiscountGroupType::requiredGroup) ==
        std::end(discountGroupTypes)) {
        return;
    }
    tell("This discount group cannot be changed.", MessageIcon::Information);
    cancel();
}

void plugInDiscountGroups(Library& library) {
    library.plugIn(Operation::ShowDiscountGroups, [](Library& self, Arguments) {
        return Variant(showList<DiscountGroupsScreen>(self, discountGroupsList));
    });
    library.plugIn(Operation::ShowEditDiscountGroups, [](Library& self, Arguments a) {
        return Variant(runDialog<DiscountGroupDialog>(self, discountGroupsList, a[0].toLong())->result());
    });
    library.plugIn(Operation::CanDeleteDiscountGroup, [](Library& self, Arguments a) {
        return Variant(canDeleteDiscountGroup(self, a[0].toLong()));
    });
    library.plugIn(Operation::ShowDeleteDiscountGroup, [](Library& self, Arguments a) {
        return Variant(deleteDiscountGroup(self, a[0].toLong()));
    });
    library.plugIn(Operation::ShowGetReplacementDiscountGroup, [](Library& self, Arguments a) {
        return Variant(chooseReplacementDiscountGroup(self, a[0].toLong()));
    });
}

}  // namespace tsln::lists
