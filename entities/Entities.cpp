#include "entities/Entities.h"

#include "entities/VendorEditor.h"

namespace tsln::entities {

void plugIn(Library& library) {
    library.plugIn(Operation::ShowEditVendor,
                   [](Library& self, Arguments a) { return Variant(editVendor(self, a[0].toLong())); });
}

}  // namespace tsln::entities
