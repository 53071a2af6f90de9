#include "migration/Migration.h"

#include "bridge/Library.h"
#include "migration/MigrateScreen.h"

namespace tsln::migration {

void plugIn(Library& library) {
    library.plugIn(Operation::Perform42Migration, [](Library& self, Arguments a) {
        return Variant(migrate(self, a[0].toText(), static_cast<Kind>(a[1].toLong())));
    });
}

}  // namespace tsln::migration
