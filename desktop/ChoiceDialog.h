#pragma once

#include <optional>
#include <span>
#include <string>

class wxString;
class wxWindow;

namespace tsln::desktop {

/// Asks the user to choose one of several answers; the first is preselected. Returns the index of the chosen
/// answer; no value when the user cancelled or there are no answers. `owner` may be null.
std::optional<std::size_t> askChoice(wxWindow* owner, const wxString& title, const wxString& question,
                                     std::span<const std::string> answers);

}  // namespace tsln::desktop
