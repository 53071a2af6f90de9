#ifdef _WIN32
#include <algorithm>

#include <wx/bitmap.h>
#include <wx/msw/private.h>
// clang-format off: must follow the wx headers, which choose the functions for Unicode
#include <objidl.h>
// clang-format on

#include "desktop/PictureFile.h"
namespace Gdiplus {
// The header expects these as macros or in its own namespace.
using std::max;  // NOLINT(misc-unused-using-decls)
using std::min;  // NOLINT(misc-unused-using-decls)
}  // namespace Gdiplus
#include <gdiplus.h>

namespace tsln::desktop {
namespace {

/// Starts the system's picture library for as long as it is needed. wxWidgets loads it and defines its functions, so
/// nothing is linked for it.
class GdiPlus {
  public:
    GdiPlus() { started_ = Gdiplus::GdiplusStartup(&token_, &input_, nullptr) == Gdiplus::Ok; }
    ~GdiPlus() {
        if (started_) Gdiplus::GdiplusShutdown(token_);
    }
    GdiPlus(const GdiPlus&) = delete;
    GdiPlus& operator=(const GdiPlus&) = delete;
    explicit operator bool() const { return started_; }

  private:
    Gdiplus::GdiplusStartupInput input_;
    ULONG_PTR token_ = 0;
    bool started_ = false;
};

}  // namespace

wxImage decodePicture(const wxString& path) {
    const GdiPlus library;
    if (!library) return {};
    Gdiplus::Bitmap file(path.wc_str());
    if (file.GetLastStatus() != Gdiplus::Ok) return {};
    const COLORREF background = GetSysColor(COLOR_BTNFACE);
    HBITMAP handle = nullptr;
    const Gdiplus::Color behind(GetRValue(background), GetGValue(background), GetBValue(background));
    if (file.GetHBITMAP(behind, &handle) != Gdiplus::Ok) return {};
    wxBitmap bitmap;
    bitmap.InitFromHBITMAP(handle, static_cast<int>(file.GetWidth()), static_cast<int>(file.GetHeight()), 24);
    return bitmap.ConvertToImage();
}

}  // namespace tsln::desktop
#endif
