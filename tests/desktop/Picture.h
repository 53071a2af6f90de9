#pragma once

#include <string>

class wxWindow;

namespace tsln::desktop::test {

/// Saves a picture of a top-level window from the display as NAME-linux.png or NAME-windows.bmp in the folder
/// given by the environment variable TSLN_PICTURES. Does nothing without that variable.
void savePicture(const wxWindow& window, const std::string& name);

}  // namespace tsln::desktop::test
