#include "entities/Entities.h"

#include "entities/CompanyEditor.h"
#include "entities/CustomerEditor.h"
#include "entities/EmployeeEditor.h"
#include "entities/UpdateOrderInformation.h"
#include "entities/VendorEditor.h"

namespace tsln::entities {

void plugIn(Library& library) {
    library.plugIn(Operation::ShowEditVendor,
                   [](Library& self, Arguments a) { return Variant(editVendor(self, a[0].toLong())); });
    library.plugIn(Operation::ShowEditCustomer,
                   [](Library& self, Arguments a) { return Variant(editCustomer(self, a[0].toLong())); });
    library.plugIn(Operation::ShowUpdateOrderInformation, [](Library& self, Arguments a) {
        updateOrderInformation(self, a[0].toLong());
        return Variant();
    });
    library.plugIn(Operation::ShowEditEmployee,
                   [](Library& self, Arguments a) { return Variant(editEmployee(self, a[0].toLong())); });
    library.plugIn(Operation::ShowEditCompany,
                   [](Library& self, Arguments) { return Variant(editCompany(self)); });
}

}  // namespace tsln::entities
