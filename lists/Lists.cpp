#include "lists/Lists.h"

#include "lists/AccountingApplication.h"
#include "lists/Criteria.h"
#include "lists/CustomerTypes.h"
#include "lists/DiscountGroups.h"
#include "maintenance/RecordDialog.h"
#include "maintenance/ListScreen.h"
#include "lists/Locations.h"
#include "lists/MoveListReferences.h"
#include "lists/SalesTaxGroupCodes.h"
#include "lists/SalesTaxGroups.h"
#include "lists/Tags.h"

namespace tsln::lists {
namespace {

/// Lists and dialogs that need no class of their own.
const ListDescription* const plainLists[] = {
    &termsList,
    &paymentMethodsList,
    &shippingMethodsList,
    &referralMethodsList,
    &jobTypesList,
    &orderTypesList,
    &productTypesList,
    &manufacturersList,
    &groupsList,
    &deliveryRangesList,
    &phoneLabelsList,
    &emailLabelsList,
    &measurementRoomsList,
    &measurementItemsList,
    &measurementMountsList,
    &fieldMeasureCriteriaList,
    &quoteApprovalList,
    &salesTaxCodesList,
    &accountsList,
};

template <class S = ListScreen>
void plugInList(Library& library, const ListDescription& list) {
    library.plugIn(list.open, [&list](Library& self, Arguments) { return Variant(showList<S>(self, list)); });
}

template <class D = RecordDialog>
void plugInDialog(Library& library, const ListDescription& list) {
    library.plugIn(list.edit, [&list](Library& self, Arguments a) {
        return Variant(runDialog<D>(self, list, a[0].toLong())->result());
    });
}

/// The result depends on whether the manufacturers' dialog was cancelled instead of the rooms' dialog (deliberate, as
/// is leaving the manufacturers' dialog in its slot). A dialog that was never shown does not count as cancelled, so
/// the result is the room's key even after Cancel.
Variant showMeasurementRoomDialog(Library& library, Arguments a) {
    const auto closed = runDialog(library, measurementRoomsList, a[0].toLong());
    const auto asked = library.screens().instance(dialogName(manufacturersList), [&] {
        return std::make_shared<RecordDialog>(library, manufacturersList);
    });
    return asked->Cancelled ? 0 : closed->ID;
}

}  // namespace

void plugIn(Library& library) {
    for (const ListDescription* list : plainLists) {
        plugInList(library, *list);
        plugInDialog(library, *list);
    }
    library.plugIn(measurementRoomsList.edit, showMeasurementRoomDialog);

    plugInList<CustomerTypesScreen>(library, customerTypesList);
    plugInDialog(library, customerTypesList);
    plugInList<DepositCriteriaScreen>(library, depositCriteriaList);
    plugInDialog(library, depositCriteriaList);

    plugInList<LocationsScreen>(library, locationsList);
    // Unlike the other operations, this one returns whether the dialog was cancelled (deliberate).
    library.plugIn(locationsList.edit, [](Library& self, Arguments a) {
        return Variant(runDialog<LocationDialog>(self, locationsList, a[0].toLong())->Cancelled);
    });

    plugInTags(library);
    plugInDiscountGroups(library);

    plugInList<SalesTaxGroupsScreen>(library, salesTaxGroupsList);
    plugInDialog(library, salesTaxGroupsList);
    library.plugIn(Operation::ShowSalesTaxGroupCodes, [](Library& self, Arguments a) {
        return Variant(assignSalesTaxCodes(self, a[0].toLong()));
    });
    library.plugIn(Operation::ShowMoveReferences, [](Library& self, Arguments a) {
        return Variant(moveListReferences(self, a[0].toInteger(), a[1].toLong()));
    });
    library.plugIn(Operation::ShowChooseAccouningApplication,
                   [](Library& self, Arguments) { return Variant(chooseAccountingApplication(self)); });
}

}  // namespace tsln::lists
