#pragma once

#include <wx/colour.h>
#include <wx/string.h>

class wxComboBox;
class wxDialog;
class wxTextCtrl;
class wxTextEntry;
class wxWindow;

namespace tsln::desktop {

/// Sets the name that screen readers announce for a window without a caption.
void setAccessibleName(wxWindow& window, const wxString& name);

/// Whether the window or a part of it has the keyboard focus. wxWindow::FindFocus() does not find the inner
/// parts of some platform controls.
bool hasKeyboard(const wxWindow& window);

/// Makes Tab skip the arrow beside the text of a combo box.
void leaveInnerButtonOutOfTabOrder(wxComboBox& box);

/// Makes Tab skip the window.
void leaveOutOfTabOrder(wxWindow& window);

/// The height of a box of one line in the theme, in pixels. The toolkit's own figure is too small on one platform.
int boxHeight(const wxTextCtrl& box);

/// Pastes several lines into a box of one line as one, with blanks. The system would keep only the first one, or show
/// signs for the line ends. `entry` is the box itself, which must not be a box of several lines.
void pasteAsOneLine(wxWindow& box, wxTextEntry& entry);

/// Sets the margin, in pixels, between the text of a multi-line box and its border.
void setTextMargin(wxTextCtrl& text, int pixels);

/// A red for failures that is readable on the theme's background of texts and lists.
wxColour failureColour();

/// Lets a modal dialog take all input again after it was disabled. GTK lets a window that is disabled lose it, and then
/// the windows below can be used.
void takeAllInput(wxDialog& dialog);

}  // namespace tsln::desktop
