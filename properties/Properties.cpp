#include "properties/Properties.h"

#include "bridge/Library.h"
#include "properties/DatabaseProperties.h"

namespace tsln::properties {

void plugIn(Library& library) {
    library.plugIn(Operation::ShowDatabaseProperties, [](Library& self, Arguments) {
        showDatabaseProperties(self);
        return Variant();
    });
}

}  // namespace tsln::properties
