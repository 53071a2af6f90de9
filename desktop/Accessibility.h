#pragma once

#include <wx/string.h>

class wxWindow;

namespace tsln::desktop {

/// Tells screen readers what to call a window that shows no caption of its own.
void setAccessibleName(wxWindow& window, const wxString& name);

}  // namespace tsln::desktop
