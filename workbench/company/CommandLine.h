#pragma once

#include <string>
#include <vector>

namespace tsln::workbench {

/// The words of the command line as UTF-8, the program's own name first.
std::vector<std::string> commandLineWords(int argc, char** argv);

}  // namespace tsln::workbench
