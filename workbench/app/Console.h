#pragma once

#include <string>

namespace tsln::workbench {

/// Tells whoever started the program what is wrong: on the console, and where there is none (Windows, by a
/// double click) in a box.
void complain(const std::string& text);

}  // namespace tsln::workbench
