#pragma once

#include <cstdint>
#include <string>

class wxWindow;

namespace tsln::desktop {

/// Shows a topic of a help file above `owner` and returns when the user has closed it by Esc, the button or
/// the close box. The topic is `<file's stem>-<context>.htm` in `folder`, or else the built-in page.
void showHelpWindow(wxWindow* owner, const std::string& folder, const std::string& file,
                    std::int32_t context);

/// The page for topics that the folder does not have: the use of lists and dialogs. HTML.
const char* builtInHelp();

}  // namespace tsln::desktop
