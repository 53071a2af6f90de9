#pragma once

#include <string>
#include <vector>

#include <wx/string.h>
#include <wx/utils.h>

class wxTopLevelWindow;

namespace tsln::workbench {

/// A simulated user at the keyboard of the real display, for scripts that drive the program.

/// Presses and releases a key (a WXK_ code or a character) with modifiers (wxMOD_...).
void press(int key, int modifiers = wxMOD_NONE);
/// Types letters, digits and common punctuation.
void type(const std::string& text);
/// The title of the window with the keyboard focus; empty when no window of this program has it.
std::string activeWindowTitle();
/// True while a popup menu is open.
bool popupIsOpen();
/// Identities of this program's open windows, for comparison only. frontWindow() is the open popup menu or else the
/// window with the keyboard focus, null without either; openWindows() are all shown windows.
const void* frontWindow();
std::vector<const void*> openWindows();
/// Saves a picture of the whole display as a PNG. Returns false on failure.
bool saveScreenshot(const std::string& path);
/// Saves a picture of this program's windows alone, as they overlap, with nothing between them. `except` is a window
/// to leave out, or null.
bool saveWindows(const std::string& path, const wxTopLevelWindow* except);

}  // namespace tsln::workbench
