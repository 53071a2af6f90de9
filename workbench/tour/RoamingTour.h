#pragma once

#include <string>

#include "automation/Object.h"
#include "workbench/company/Company.h"
#include "workbench/tour/Script.h"

namespace tsln::workbench {

/// Tours the roaming workstations like a user at the keyboard: a workstation is registered, its identity code pasted from
/// the clipboard where the workstation's identity is asked for, the initial synchronization requested and completed by
/// the agent, a program of its own, upon which its screen closes by itself; at last the sync state is reset. The
/// demonstration company is the main system and the workstation's copy in one. No screen must be open.
Script roamingTour(const ObjectPtr& library, Company& company, const std::string& folder);

}  // namespace tsln::workbench
