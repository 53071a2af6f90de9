#pragma once

#include <string>

class wxWindow;

namespace tsln::desktop::test {

/// Saves what the display shows of a top-level window as NAME-linux.png or NAME-windows.bmp into the folder
/// that the environment names as TSLN_PICTURES; without it nothing happens.
void savePicture(const wxWindow& window, const std::string& name);

}  // namespace tsln::desktop::test
