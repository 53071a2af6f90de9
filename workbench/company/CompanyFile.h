#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "workbench/company/Company.h"

namespace SQLite {
class Database;
}

namespace tsln::workbench {

/// How long a statement, and the opening of a file, waits for a file that another program is writing.
inline constexpr std::int32_t busySeconds = 2;

/// Opens a company file for Company, registers the functions of its statements and upgrades the file. Throws
/// CompanyFileError; the file is unchanged then.
std::unique_ptr<SQLite::Database> openCompanyFile(const std::string& path, OpenMode access);

/// Writes a new company of version 4.2, with demonstration data and that many customers. An existing file is never
/// replaced. Throws CompanyFileError.
void makeCompany42(const std::string& path, int customers);

}  // namespace tsln::workbench
