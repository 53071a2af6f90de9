#pragma once

#include <string>

namespace tsln::workbench {

/// Prints an error message to standard error. Without a console (on Windows, after a double click) shows it in a
/// message box.
void complain(const std::string& text);

}  // namespace tsln::workbench
