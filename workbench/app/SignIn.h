#pragma once

#include "workbench/host/CompanySession.h"

namespace tsln::workbench {

/// Signs in a user who has no password, or whose password is in the environment variable TSLN_PASSWORD. Returns false when
/// the user must be asked. Throws SignInError for a wrong password. The variable is removed from the environment.
bool signInUnasked(const CompanySession& session);
/// Asks for the password in a window until it is right. Returns false when the user gives up.
bool askForPassword(const CompanySession& session);

}  // namespace tsln::workbench
