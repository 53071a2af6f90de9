#include <memory>

#include <wx/dcclient.h>
#include <wx/graphics.h>
#include <wx/settings.h>
#include <wx/window.h>

#include "desktop/ControlView.h"
#include "desktop/NativeWindow.h"
#include "screens/Picture.h"

namespace tsln::desktop {
namespace {

constexpr int side = 20;  // pixels at 96 per inch

/// Draws the picture instead of loading it, so that it is sharp at every display density.
class PictureView : public ControlView {
  public:
    PictureView(ScreenDialog& dialog, wxWindow* parent, Picture& picture)
        : ControlView(dialog, picture), window_(new wxWindow(parent, wxID_ANY)) {
        setWindow(window_);
        window_->SetMinSize(window_->FromDIP(wxSize(side, side)));
        leaveOutOfTabOrder(*window_);
        window_->Bind(wxEVT_PAINT, [this](wxPaintEvent&) { paintLock(); });
    }

    bool takesFocus() const override { return false; }

  private:
    void updateContent() override {}

    void paintLock() {
        wxPaintDC dc(window_);
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

    wxWindow* window_;
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, Picture& picture) {
    return std::make_unique<PictureView>(dialog, parent, picture);
}

}  // namespace tsln::desktop
