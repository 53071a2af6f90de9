#pragma once

#include <functional>
#include <vector>

#include <wx/string.h>

namespace tsln::desktop {

/// Returns the drawn width of a text.
using TextWidth = std::function<int(const wxString& text)>;

/// Breaks the text into lines no wider than `width`: at line feeds and blanks, and within a word only when
/// the word alone is too wide. A character that is wider than `width` gets a line of its own.
std::vector<wxString> wrapLines(const wxString& text, int width, const TextWidth& widthOf);

}  // namespace tsln::desktop
