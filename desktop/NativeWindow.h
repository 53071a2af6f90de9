#pragma once

#include <wx/string.h>

class wxTextCtrl;
class wxWindow;

namespace tsln::desktop {

/// Tells screen readers what to call a window that shows no caption of its own.
void setAccessibleName(wxWindow& window, const wxString& name);

/// True when the window or a part of it has the keyboard. wxWindow::FindFocus() does not see the inner parts
/// that some of the platform's controls are made of.
bool hasKeyboard(const wxWindow& window);

/// Tab passes the window over.
void leaveOutOfTabOrder(wxWindow& window);

/// Keeps the text of a box of several lines off its border.
void setTextMargin(wxTextCtrl& text, int pixels);

}  // namespace tsln::desktop
