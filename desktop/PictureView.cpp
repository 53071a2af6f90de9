#include <algorithm>
#include <memory>

#include <wx/bitmap.h>
#include <wx/dcclient.h>
#include <wx/graphics.h>
#include <wx/settings.h>
#include <wx/window.h>

#include "desktop/ControlView.h"
#include "desktop/NativeWindow.h"
#include "desktop/PictureFile.h"
#include "screens/Picture.h"

namespace tsln::desktop {
namespace {

// pixels at 96 per inch
constexpr int side = 20;
constexpr int fileWidth = 180;
constexpr int fileHeight = 56;

class PictureView : public ControlView {
  public:
    PictureView(ScreenDialog& dialog, wxWindow* parent, Picture& picture, int width, int height)
        : ControlView(dialog, picture), window_(new wxWindow(parent, wxID_ANY)) {
        setWindow(window_);
        window_->SetMinSize(window_->FromDIP(wxSize(width, height)));
        leaveOutOfTabOrder(*window_);
        window_->Bind(wxEVT_PAINT, [this](wxPaintEvent&) {
            wxPaintDC dc(window_);
            paint(dc);
        });
    }

    bool takesFocus() const override { return false; }

  protected:
    virtual void paint(wxPaintDC& dc) = 0;
    void updateContent() override {}

    wxWindow* window_;
};

/// Draws the picture instead of loading it, so that it is sharp at every display density.
class LockView : public PictureView {
  public:
    LockView(ScreenDialog& dialog, wxWindow* parent, Picture& picture)
        : PictureView(dialog, parent, picture, side, side) {}

  private:
    void paint(wxPaintDC& dc) override {
        const std::unique_ptr<wxGraphicsContext> context(wxGraphicsContext::Create(dc));
        if (!context) return;
        const wxColour colour = wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT);
        const wxSize size = window_->GetClientSize();
        context->Translate((size.x - window_->FromDIP(side)) / 2.0, (size.y - window_->FromDIP(side)) / 2.0);
        context->Scale(window_->FromDIP(side) / double(side), window_->FromDIP(side) / double(side));
        context->SetPen(wxPen(colour, 2));
        wxGraphicsPath shackle = context->CreatePath();
        shackle.MoveToPoint(6.5, 9);
        shackle.AddLineToPoint(6.5, 6.5);
        shackle.AddArc(10, 6.5, 3.5, 3.14159265, 0, true);
        shackle.AddLineToPoint(13.5, 9);
        context->StrokePath(shackle);
        context->SetPen(*wxTRANSPARENT_PEN);
        context->SetBrush(wxBrush(colour));
        context->DrawRoundedRectangle(4, 9, 12, 9, 1.5);
    }
};

/// Shows a picture file in the middle of its place, or says why it cannot be shown.
class FileView : public PictureView {
  public:
    FileView(ScreenDialog& dialog, wxWindow* parent, Picture& picture)
        : PictureView(dialog, parent, picture, fileWidth, fileHeight), picture_(picture) {}

  private:
    void updateContent() override {
        if (shown_ == picture_.version()) return;
        shown_ = picture_.version();
        image_ = loadPicture(picture_.file());
        fit_ = wxBitmap();
        window_->Refresh();
    }

    void paint(wxPaintDC& dc) override {
        if (picture_.file().empty()) return;
        const wxSize place = window_->GetClientSize();
        if (!image_.picture.IsOk()) {
            dc.SetFont(window_->GetFont());
            dc.SetTextForeground(wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT));
            dc.DrawLabel(image_.problem, wxRect(place), wxALIGN_CENTRE);
            return;
        }
        if (!fit_.IsOk()) fit_ = wxBitmap(fitted(image_.picture, place));
        dc.DrawBitmap(fit_, (place.x - fit_.GetWidth()) / 2, (place.y - fit_.GetHeight()) / 2, true);
    }

    static wxImage fitted(const wxImage& image, const wxSize& place) {
        const double scale =
            std::min({1.0, double(place.x) / image.GetWidth(), double(place.y) / image.GetHeight()});
        return image.Scale(std::max(1, int(image.GetWidth() * scale)),
                           std::max(1, int(image.GetHeight() * scale)), wxIMAGE_QUALITY_HIGH);
    }

    Picture& picture_;
    int shown_ = -1;
    LoadedPicture image_;
    wxBitmap fit_;  // the picture in the size of the window
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, Picture& picture) {
    if (picture.kind() == Picture::Kind::File) return std::make_unique<FileView>(dialog, parent, picture);
    return std::make_unique<LockView>(dialog, parent, picture);
}

}  // namespace tsln::desktop
