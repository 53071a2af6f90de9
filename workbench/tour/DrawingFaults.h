#pragma once

#include <string>
#include <vector>

class wxWindow;

namespace tsln::workbench {

/// Finds visible drawing faults in all shown windows except `except`: texts that are cut off, controls that extend
/// beyond their window or overlap, and two controls of one window with the same access key. Returns one sentence per
/// fault.
std::vector<std::string> drawingFaults(const wxWindow* except = nullptr);

}  // namespace tsln::workbench
