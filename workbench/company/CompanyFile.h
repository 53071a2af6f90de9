#pragma once

#include <memory>
#include <string>

#include "workbench/company/Company.h"

namespace SQLite {
class Database;
}

namespace tsln::workbench {

/// Opens a company file for Company, with all that its statements need on the connection, and brings it up to
/// date. Throws CompanyFileError; the file is untouched then.
std::unique_ptr<SQLite::Database> openCompanyFile(const std::string& path, OpenMode access);

}  // namespace tsln::workbench
