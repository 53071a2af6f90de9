#pragma once

#include <string>
#include <vector>

class wxTopLevelWindow;

namespace tsln::workbench {

/// Reads the shown windows of the program as a screen reader does, and returns the faults as sentences: a control
/// that takes the keyboard without a role or a name, two of one role with the same name in a window, a list with rows
/// on the screen that exposes none. Where the platform's interface cannot be read from within, there are none.
/// `except` is left out; null leaves out none.
std::vector<std::string> accessibilityFaults(const wxTopLevelWindow* except);

}  // namespace tsln::workbench
