#pragma once

#include <optional>
#include <span>
#include <string>

class wxString;
class wxWindow;

namespace tsln::desktop {

/// Asks a question with answers in words, the first of which is chosen already. Returns the answer's index;
/// nothing when the user cancelled or there are no answers. `owner` may be null.
std::optional<std::size_t> askChoice(wxWindow* owner, const wxString& title, const wxString& question,
                                     std::span<const std::string> answers);

}  // namespace tsln::desktop
