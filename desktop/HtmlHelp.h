#pragma once

class wxString;
class wxWindow;

namespace tsln::desktop {

/// Opens a compiled help file on a topic by the system's help viewer. False where the file or the viewer is
/// missing, and everywhere but on Windows.
bool showHtmlHelp(wxWindow* owner, const wxString& file, unsigned context);

/// Closes the viewer's windows; to be called before the program or module that opened them goes.
void closeHtmlHelp();

}  // namespace tsln::desktop
