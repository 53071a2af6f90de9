#pragma once

#include <string>

#include "workbench/company/Company.h"

namespace tsln::workbench {

/// Writes the file that tells the package processor which company to fill, beside the company or, where that folder
/// is not writable, in the folder for temporary files. Returns its path. Raises HostError(code::fail).
std::string writePackageSourceFor(const Company& company);

}  // namespace tsln::workbench
