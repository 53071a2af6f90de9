#pragma once

#include <cstdint>
#include <string>

class wxWindow;

namespace tsln::desktop {

/// Shows a topic of a help file over `owner` and returns when the user has closed it by Esc, the button or
/// the close box. The topic is `<file's stem>-<context>.htm` in `folder`, or a page built in.
void showHelpWindow(wxWindow* owner, const std::string& folder, const std::string& file,
                    std::int32_t context);

/// The page shown where the folder has none: how lists and dialogs are used. HTML.
const char* builtInHelp();

}  // namespace tsln::desktop
