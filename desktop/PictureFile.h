#pragma once

#include <string>

#include <wx/image.h>

namespace tsln::desktop {

struct LoadedPicture {
    wxImage picture;   ///< not IsOk() when the file cannot be shown
    wxString problem;  ///< why it cannot be shown
};

/// Reads a picture file (jpg, png, gif) for a small view of it. Returns nothing for an empty path.
LoadedPicture loadPicture(const std::string& path);

/// Decodes a picture file by the means of the platform; not IsOk() when that fails.
wxImage decodePicture(const wxString& path);

}  // namespace tsln::desktop
