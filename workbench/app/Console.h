#pragma once

#include <string>
#include <vector>

namespace tsln::workbench {

/// Tells whoever started the program what is wrong: on the console, and where there is none (Windows, by a
/// double click) in a box.
void complain(const std::string& text);

/// The words of the command line as UTF-8, the program's own name first.
std::vector<std::string> commandLineWords(int argc, char** argv);

}  // namespace tsln::workbench
