#pragma once

class wxString;
class wxWindow;

namespace tsln::desktop {

/// Opens a compiled help file at a topic in the system's help viewer. Returns false when the file or the
/// viewer is missing, and on other systems than Windows.
bool showHtmlHelp(wxWindow* owner, const wxString& file, unsigned context);

/// Closes the viewer's windows. Must be called before the program or module that opened them is unloaded.
void closeHtmlHelp();

}  // namespace tsln::desktop
