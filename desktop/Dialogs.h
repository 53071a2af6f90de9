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

/// The system's dialogs for Desktop. `owner` may be null; an empty title stands for the program's name.
MessageAnswer askMessage(wxWindow* owner, const wxString& title, const wxString& text, MessageButtons buttons,
                         MessageIcon icon);

enum class FileDialogKind { Open, Save };
/// Begins in the folder of the file chosen last, or in that of the proposed one.
std::optional<std::string> askFile(wxWindow* owner, FileDialogKind kind, const wxString& title,
                                   std::span<const FileFilter> filters, const wxString& proposal = {});

/// Appends the filter's extension unless the name has an extension or the filter allows any.
std::string withExtension(const std::string& name, const FileFilter& filter);

/// Shows the popup and returns the chosen command's identifier, 0 for none.
int askPopup(wxWindow& window, const Command& popup, const wxPoint& position);

}  // namespace tsln::desktop
