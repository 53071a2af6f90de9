#pragma once

#include <string>
#include <vector>

namespace tsln::workbench {

/// Returns the words of the command line in UTF-8, beginning with the program's name.
std::vector<std::string> commandLineWords(int argc, char** argv);

}  // namespace tsln::workbench
