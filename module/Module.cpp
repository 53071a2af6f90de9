#include "module/Module.h"

#include "bridge/Library.h"
#include "entities/Entities.h"
#include "lists/Lists.h"
#include "measurements/Measurements.h"
#include "messages/Messages.h"
#include "migration/Migration.h"
#include "options/Options.h"
#include "pricing/Pricing.h"
#include "properties/Properties.h"
#include "roaming/Roaming.h"
#include "security/Roles.h"

namespace tsln {

void plugInModule(Library& library) {
    lists::plugIn(library);
    entities::plugIn(library);
    pricing::plugIn(library);
    options::plugIn(library);
    measurements::plugIn(library);
    messages::plugIn(library);
    security::plugIn(library);
    roaming::plugIn(library);
    properties::plugIn(library);
    migration::plugIn(library);
}

}  // namespace tsln
