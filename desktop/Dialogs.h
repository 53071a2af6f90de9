#pragma once

#include <optional>
#include <span>
#include <string>

#include <wx/string.h>

#include "screens/CommandBars.h"
#include "screens/Desktop.h"

class wxPoint;
class wxWindow;

namespace tsln::desktop {

/// The system's dialogs as a screen asks for them. `owner` may be null; an empty title is the program's.
MessageAnswer askMessage(wxWindow* owner, const wxString& title, const wxString& text, MessageButtons buttons,
                         MessageIcon icon);

enum class FileDialogKind { Open, Save };
std::optional<std::string> askFile(wxWindow* owner, FileDialogKind kind, const wxString& title,
                                   std::span<const FileFilter> filters);

/// The name with the filter's extension, unless it has one of its own or the filter takes any.
std::string withExtension(const std::string& name, const FileFilter& filter);

/// Shows the popup at a point of the screen and returns the chosen command, 0 for none.
int askPopup(wxWindow& window, const Command& popup, const wxPoint& position);

}  // namespace tsln::desktop
