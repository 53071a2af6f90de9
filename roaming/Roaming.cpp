#include "roaming/Roaming.h"

#include "roaming/IdentityDialog.h"
#include "roaming/InitialSync.h"
#include "roaming/Manager.h"
#include "roaming/WorkstationDialog.h"
#include "roaming/WorkstationsList.h"

namespace tsln::roaming {

void plugIn(Library& library) {
    library.plugIn(Operation::ShowRoamingWorkstations, [](Library& self, Arguments) {
        showList<WorkstationsList>(self, workstationsList);
        return Variant();
    });
    library.plugIn(Operation::ShowEditRoamingWorkstation, [](Library& self, Arguments a) {
        return Variant(runDialog<WorkstationDialog>(self, workstationsList, a[0].toLong())->result());
    });
    library.plugIn(Operation::ShowRoamingWorkstationIdentity,
                   [](Library& self, Arguments) { return Variant(enterIdentity(self)); });
    library.plugIn(Operation::ShowRoamingWorkstationInitial,
                   [](Library& self, Arguments) { return Variant(requestInitialSync(self)); });
    library.plugIn(Operation::ShowRoamingWorkstationManager, [](Library& self, Arguments) {
        manageWorkstation(self);
        return Variant();
    });
}

}  // namespace tsln::roaming
