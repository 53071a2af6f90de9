#pragma once

#include "workbench/app/Options.h"

namespace tsln::workbench {

/// Makes the company of version 4.2 that the options name. Returns the exit code.
int makeOldCompany(const Options& options);

/// Migrates the company of version 4.2 that the options name, with its employees and customers, without windows, and prints
/// what came over. Returns the exit code. Throws CompanyFileError and SignInError.
int migrateOldCompany(const Options& options);

}  // namespace tsln::workbench
