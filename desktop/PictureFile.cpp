#include "desktop/PictureFile.h"

#include <wx/filename.h>
#include <wx/imaggif.h>
#include <wx/imagjpeg.h>
#include <wx/imagpng.h>
#include <wx/log.h>

#include "desktop/Text.h"

namespace tsln::desktop {
namespace {

/// Larger files are no logos. To decode one would stop the screen for seconds.
constexpr unsigned mostBytes = 16 * 1024 * 1024;

}  // namespace

LoadedPicture loadPicture(const std::string& path) {
    if (path.empty()) return {};
    const wxString file = toWx(path);
    if (!wxFileName::FileExists(file)) return {{}, "There is no such file."};
    if (const wxULongLong size = wxFileName::GetSize(file); size != wxInvalidSize && size > mostBytes)
        return {{}, "Too large to be shown."};
    const wxLogNull silence;  // the problem is shown in the picture's place
    const wxImage picture = decodePicture(file);
    if (!picture.IsOk() || picture.GetWidth() < 1 || picture.GetHeight() < 1) return {{}, "Not a picture."};
    return {picture, {}};
}

#ifndef __WXMSW__
wxImage decodePicture(const wxString& path) {
    if (!wxImage::FindHandler(wxBITMAP_TYPE_PNG)) wxImage::AddHandler(new wxPNGHandler);
    if (!wxImage::FindHandler(wxBITMAP_TYPE_JPEG)) wxImage::AddHandler(new wxJPEGHandler);
    if (!wxImage::FindHandler(wxBITMAP_TYPE_GIF)) wxImage::AddHandler(new wxGIFHandler);
    return wxImage(path);
}
#endif

}  // namespace tsln::desktop
