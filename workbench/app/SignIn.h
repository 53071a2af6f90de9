#pragma once

#include "workbench/host/CompanySession.h"

namespace tsln::workbench {

/// Asks for the password of a user who has one; the environment variable TSLN_PASSWORD answers for scripts. Returns false
/// when it is wrong or the user gives up; the user has been told why.
bool signIn(const CompanySession& session);

}  // namespace tsln::workbench
