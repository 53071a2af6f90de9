#pragma once

#include <string>
#include <vector>

#include <wx/string.h>
#include <wx/utils.h>

class wxTopLevelWindow;

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
/// What tells this program's windows from each other while they are open: the popup menu that is open or the
/// window that has the keyboard, null when there is neither; and all that are shown.
const void* frontWindow();
std::vector<const void*> openWindows();
/// Saves a picture of the whole display as a PNG; false when that was not possible.
bool saveScreenshot(const std::string& path);
/// The same of this program's windows alone, as they lie over each other, with nothing between them.
/// `except`: a window that is not to be seen, or null.
bool saveWindows(const std::string& path, const wxTopLevelWindow* except);

}  // namespace tsln::workbench
