#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "workbench/company/Company.h"

namespace tsln::workbench {

/// Returns the paths of the companies in a folder, in the order of their names. Files that are no companies, or cannot be
/// opened, are left out.
std::vector<std::string> companiesIn(const std::string& folder);

/// Carries out the request that the company at `path` holds for its synchronization agent, if it holds one, in steps of
/// this length. A request that an ended agent left unfinished is taken up again.
///
/// An initial synchronization fills the company's empty tables from its main company: the one among `companies` with a
/// roaming workstation of this identity code, in which the workstation is noted as set up. Without a main company the
/// request is taken back and an error is written to the event log. The option "StopSync" ends the work between two steps.
///
/// Returns false when the request was taken back. Throws CompanyFileError, SqlError and SQLite::Exception.
bool carryOutRequest(const std::string& path, const std::vector<std::string>& companies,
                     std::chrono::milliseconds step);

}  // namespace tsln::workbench
