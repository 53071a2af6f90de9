#include "module/Module.h"

#include "bridge/Library.h"
#include "entities/Entities.h"
#include "lists/Lists.h"

namespace tsln {

void plugInModule(Library& library) {
    lists::plugIn(library);
    entities::plugIn(library);
}

}  // namespace tsln
