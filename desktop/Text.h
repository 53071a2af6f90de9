#pragma once

#include <string>
#include <string_view>

#include <wx/string.h>

namespace tsln::desktop {

/// The title of windows without their own.
inline constexpr char programTitle[] = "Tessaline";

/// Converts UTF-8 to the toolkit's text. Text that is not valid UTF-8 is read as Latin-1.
inline wxString toWx(std::string_view text) {
    wxString result = wxString::FromUTF8(text.data(), text.size());
    if (result.empty() && !text.empty()) result = wxString::From8BitData(text.data(), text.size());
    return result;
}

inline std::string fromWx(const wxString& text) {
    const wxScopedCharBuffer utf8 = text.utf8_str();
    return {utf8.data(), utf8.length()};
}

}  // namespace tsln::desktop
