#pragma once

#include <string>
#include <vector>

class wxWindow;

namespace tsln::workbench {

/// What a user would find wrong at first sight with the windows that are shown, but for `except`: texts that
/// are cut off, controls that stick out of their window or lie over each other, two controls of one window
/// with the same access key. A sentence for each.
std::vector<std::string> drawingFaults(const wxWindow* except = nullptr);

}  // namespace tsln::workbench
