#pragma once

#include <string>

#include "automation/Object.h"
#include "workbench/company/Company.h"
#include "workbench/tour/Script.h"

namespace tsln::workbench {

/// Migrates a company of version 4.2 with many customers, and cancels the migration by Esc once the base data has come
/// over. Saves pictures in `folder`, in which it makes the old company.
Script migrationTour(ObjectPtr library, Company& company, std::string folder);

}  // namespace tsln::workbench
