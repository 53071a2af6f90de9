#pragma once

#include <cstdint>
#include <string>

#include "workbench/company/Company.h"

namespace tsln::workbench {

/// Returns the path of a product's file: a complete path that the product names itself, or the file of its name in the
/// folder of the company's products, "FILE.company.products" beside the company file. Empty when the product names no
/// file or the file does not exist.
///
/// A folder that does not exist is made with the files of the demonstration products; where that is not possible, a
/// folder for temporary files takes its place.
std::string productFile(Company& company, std::int32_t productID);

}  // namespace tsln::workbench
