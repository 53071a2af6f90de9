#include "desktop/LineBreaks.h"

#include <wx/tokenzr.h>

namespace tsln::desktop {
namespace {

/// The number of characters from the start of the text that fit in a line, at least 1.
std::size_t fitting(const wxString& text, int width, const TextWidth& widthOf) {
    std::size_t fits = 1, tooMany = text.length() + 1;
    while (fits + 1 < tooMany) {
        const std::size_t middle = (fits + tooMany) / 2;
        (widthOf(text.Left(middle)) <= width ? fits : tooMany) = middle;
    }
    return fits;
}

/// The length of the first line of the text: up to the last blank that fits, or else all characters that fit.
std::size_t lineEnd(const wxString& text, int width, const TextWidth& widthOf) {
    const std::size_t fits = fitting(text, width, widthOf);
    if (fits >= text.length() || text[fits] == ' ') return fits;
    const std::size_t blank = text.rfind(' ', fits - 1);
    return blank == wxString::npos || blank == 0 ? fits : blank;
}

}  // namespace

std::vector<wxString> wrapLines(const wxString& text, int width, const TextWidth& widthOf) {
    std::vector<wxString> lines;
    for (wxString rest : wxStringTokenize(text, "\n", wxTOKEN_RET_EMPTY_ALL)) {
        if (rest.EndsWith("\r")) rest.RemoveLast();
        for (;;) {
            const std::size_t end = rest.empty() ? 0 : lineEnd(rest, width, widthOf);
            lines.push_back(rest.Left(end));
            lines.back().Trim();
            if (end >= rest.length()) break;
            rest = rest.Mid(end);
            rest.Trim(false);
            if (rest.empty()) break;
        }
    }
    return lines;
}

}  // namespace tsln::desktop
