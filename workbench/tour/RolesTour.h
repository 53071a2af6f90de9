#pragma once

#include <string>

#include "workbench/company/Company.h"
#include "workbench/tour/Script.h"

namespace tsln::workbench {

/// Copies a role, takes the right to delete terms from the copy, gives it to an employee, and starts a second workbench in
/// which this employee signs in and cannot delete terms. Begins and ends in the workbench's own window.
Script rolesTour(Company& company, std::string folder);

}  // namespace tsln::workbench
