#include "pricing/Pricing.h"

#include "bridge/Library.h"
#include "pricing/AdditionalCharge.h"
#include "pricing/AdditionalCharges.h"
#include "pricing/BulkChange.h"
#include "pricing/MoveProducts.h"
#include "pricing/VendorCostMethods.h"

namespace tsln::pricing {

void plugIn(Library& library) {
    library.plugIn(Operation::ShowAdditionalCharges, [](Library& self, Arguments a) {
        showAdditionalCharges(self, a[0].toInteger());
        return Variant();
    });
    library.plugIn(Operation::ShowEditAdditionalCharge, [](Library& self, Arguments a) {
        return Variant(editAdditionalCharge(self, a[0].toLong(), a[1].toInteger()));
    });
    library.plugIn(Operation::ShowBulkChange, [](Library& self, Arguments a) {
        return Variant(changeInBulk(self, a[0].toInteger(), a[1]));
    });
    library.plugIn(Operation::ShowMoveProductsToVendor, [](Library& self, Arguments a) {
        return Variant(chooseVendorForProducts(self, a[0].toLong()));
    });
    library.plugIn(Operation::MoveProductsToVendor, [](Library& self, Arguments a) {
        return Variant(moveProducts(self, a[0].toLong(), a[1].toLong()));
    });
    library.plugIn(Operation::ShowVendorCostMethods,
                   [](Library& self, Arguments) { return Variant(editVendorCostMethods(self)); });
}

}  // namespace tsln::pricing
