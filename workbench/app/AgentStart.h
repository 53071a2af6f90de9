#pragma once

#include "workbench/host/CompanySession.h"

namespace tsln::workbench {

/// Starts the synchronization agent when the company's options for roaming workstations ask for it on this computer.
void startAgentIfWanted(CompanySession& session);

}  // namespace tsln::workbench
