#include <wx/bmpbuttn.h>
#include <wx/image.h>
#include <wx/panel.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

#include "desktop/CalendarDialog.h"
#include "desktop/ControlView.h"
#include "desktop/NativeWindow.h"
#include "desktop/ScreenDialog.h"
#include "desktop/Text.h"
#include "screens/DateBox.h"

namespace tsln::desktop {
namespace {

constexpr int widthInCharacters = 12;
constexpr int arrowHeight = 4;  // pixels at 96 per inch

/// A small triangle that points down.
wxBitmap arrow(const wxWindow& window) {
    const int height = window.FromDIP(arrowHeight);
    const int width = 2 * height - 1;
    wxImage image(width, height);
    image.InitAlpha();
    const wxColour color = wxSystemSettings::GetColour(wxSYS_COLOUR_BTNTEXT);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            image.SetRGB(x, y, color.Red(), color.Green(), color.Blue());
            image.SetAlpha(x, y, x >= y && x < width - y ? wxIMAGE_ALPHA_OPAQUE : wxIMAGE_ALPHA_TRANSPARENT);
        }
    }
    return image;
}

class DateBoxView : public ControlView {
  public:
    DateBoxView(ScreenDialog& dialog, wxWindow* parent, DateBox& box)
        : ControlView(dialog, box),
          box_(box),
          panel_(new wxPanel(parent)),
          text_(new wxTextCtrl(panel_, wxID_ANY)),
          drop_(new wxBitmapButton(panel_, wxID_ANY, arrow(*panel_))) {
        setWindow(panel_);
        text_->SetMinSize(wxSize(text_->GetSizeFromTextSize(text_->GetCharWidth() * widthInCharacters).x,
                                 boxHeight(*text_)));
        // The keys of drop-down lists open the calendar, so the button needs no tab stop.
        leaveOutOfTabOrder(*drop_);
        drop_->SetMinSize({boxHeight(*text_), boxHeight(*text_)});
        setAccessibleName(*drop_, "Calendar");
        auto* row = new wxBoxSizer(wxHORIZONTAL);
        row->Add(text_, wxSizerFlags(1).CentreVertical());
        row->Add(drop_, wxSizerFlags().Expand());
        panel_->SetSizer(row);
        text_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { act([] {}); });
        drop_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { openCalendar(); });
    }

    wxWindow& inputWindow() const override { return *text_; }

    void settle() override {
        const wxString text = text_->GetValue();
        if (text == known_) return;
        known_ = text;
        box_.userType(fromWx(text));
    }

    bool takesKey(const wxKeyEvent& key) override {
        const bool opens = (key.GetModifiers() == wxMOD_ALT && key.GetKeyCode() == WXK_DOWN) ||
                           (!key.HasAnyModifiers() && key.GetKeyCode() == WXK_F4);
        if (opens) openCalendar();
        return opens;
    }

  private:
    void openCalendar() {
        takeFocus();
        // The calendar is shown within the action, so that the screen handles no other action meanwhile.
        act([this] {
            const auto choice = askDate(dialog(), panel_->GetScreenRect(), box_.date());
            if (choice) box_.userPick(choice->date);
        });
        takeFocus();
        text_->SelectAll();
    }

    void updateContent() override {
        if (const wxString text = toWx(box_.text()); text != text_->GetValue()) {
            text_->ChangeValue(text);
            if (text_->HasFocus()) text_->SelectAll();
        }
        known_ = text_->GetValue();
    }

    DateBox& box_;
    wxPanel* panel_;
    wxTextCtrl* text_;
    wxBitmapButton* drop_;
    wxString known_;  // the window's text when last reported or set
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, DateBox& box) {
    return std::make_unique<DateBoxView>(dialog, parent, box);
}

}  // namespace tsln::desktop
