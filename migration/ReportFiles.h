#pragma once

#include <functional>
#include <string>

namespace tsln::migration {

/// Copies pictures and texts of the old company's reports to a folder. Existing files are replaced. Files that cannot be
/// copied are passed over, and so is everything when one of the two folders does not exist.
///
/// The old reports folder follows from the path of the old company, if that ends with the folder "\companies": see the
/// rule in ReportFiles.cpp. Stops when `goOn`, asked before each file, returns false.
void copyReportFiles(const std::string& oldCompany, const std::string& folder,
                     const std::function<bool()>& goOn);

}  // namespace tsln::migration
