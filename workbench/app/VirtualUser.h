#pragma once

#include <string>

#include <wx/string.h>
#include <wx/utils.h>

namespace tsln::workbench {

/// What a user at the keyboard can do and see, through the real display: for scripts that drive the program.

/// Presses and releases a key (a WXK_ code or a character), with modifiers (wxMOD_...).
void press(int key, int modifiers = wxMOD_NONE);
/// Types the text; letters, digits and common punctuation.
void type(const std::string& text);
/// The title of the window that has the keyboard, empty when none of this program's has.
std::string activeWindowTitle();
/// True while a popup menu is open.
bool popupIsOpen();
/// Saves a picture of the whole display as a PNG; false when that was not possible.
bool saveScreenshot(const std::string& path);

}  // namespace tsln::workbench
