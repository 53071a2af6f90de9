#pragma once

#include <functional>
#include <vector>

#include <wx/string.h>

namespace tsln::desktop {

/// How wide a text is drawn.
using TextWidth = std::function<int(const wxString& text)>;

/// The text in lines no wider than `width`, broken at blanks, and within a word only where the word alone is
/// too wide. Line feeds break lines, too. Every line has at least a character where the text has any.
std::vector<wxString> wrapLines(const wxString& text, int width, const TextWidth& widthOf);

}  // namespace tsln::desktop
