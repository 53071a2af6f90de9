#pragma once

#include <string>

namespace tsln::workbench {

/// Names another process that has locked the file: "another program (NAME, process NUMBER)", or just "another program" where
/// the system does not tell. For messages; the lock may be free again by then.
std::string lockHolder(const std::string& path);

}  // namespace tsln::workbench
