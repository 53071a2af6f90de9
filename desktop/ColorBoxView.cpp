#include <wx/bmpbuttn.h>
#include <wx/colordlg.h>
#include <wx/dcmemory.h>
#include <wx/settings.h>

#include "desktop/ControlView.h"
#include "desktop/ScreenDialog.h"
#include "screens/ColorBox.h"

namespace tsln::desktop {
namespace {

constexpr int swatchWidth = 48;  // pixels at 96 per inch
constexpr int swatchHeight = 16;

wxColour toColour(std::int32_t color) {
    return wxColour(static_cast<unsigned long>(color) & 0xFFFFFF);
}

wxBitmap swatch(const wxWindow& window, const wxColour& color) {
    wxBitmap bitmap(window.FromDIP(wxSize(swatchWidth, swatchHeight)));
    wxMemoryDC dc(bitmap);
    dc.SetPen(wxSystemSettings::GetColour(wxSYS_COLOUR_3DSHADOW));
    dc.SetBrush(color);
    dc.DrawRectangle({0, 0}, bitmap.GetSize());
    return bitmap;
}

class ColorBoxView : public ControlView {
  public:
    ColorBoxView(ScreenDialog& dialog, wxWindow* parent, ColorBox& box)
        : ControlView(dialog, box),
          box_(box),
          shown_(toColour(box.color())),
          button_(new wxBitmapButton(parent, wxID_ANY, swatch(*parent, shown_))) {
        setWindow(button_);
        button_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { openDialog(); });
    }

    /// Enter presses this button, not the default button.
    bool takesKey(const wxKeyEvent& key) override {
        if (key.GetKeyCode() != WXK_RETURN && key.GetKeyCode() != WXK_NUMPAD_ENTER) return false;
        openDialog();
        return true;
    }

  private:
    void openDialog() {
        takeFocus();
        act([this] {
            wxColourData data;
            data.SetChooseFull(true);
            data.SetColour(toColour(box_.color()));
            wxColourDialog chooser(&dialog(), &data);
            if (chooser.ShowModal() != wxID_OK) return;
            box_.userChoose(static_cast<std::int32_t>(chooser.GetColourData().GetColour().GetRGB()));
        });
        takeFocus();
    }

    void updateContent() override {
        const wxColour color = toColour(box_.color());
        if (color == shown_) return;
        shown_ = color;
        button_->SetBitmap(swatch(*button_, color));
    }

    ColorBox& box_;
    wxColour shown_;
    wxBitmapButton* button_;
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, ColorBox& box) {
    return std::make_unique<ColorBoxView>(dialog, parent, box);
}

}  // namespace tsln::desktop
