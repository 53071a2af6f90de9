#include <wx/event.h>
#include <wx/textctrl.h>

#include "desktop/ControlView.h"
#include "desktop/ScreenDialog.h"
#include "desktop/Text.h"
#include "screens/Controls.h"

namespace tsln::desktop {
namespace {

constexpr int shortField = 20;  // characters; shorter boxes keep their width instead of filling the row
constexpr int linesOfText = 5;  // the least height of a box of several lines

/// Toolkit and platform disagree on line ends: controls hold CR LF, windows show LF.
wxString shownText(const TextBox& box) {
    wxString text = toWx(box.text());
    if (box.multiLine) text.Replace("\r\n", "\n");
    return text;
}

std::string typedText(const TextBox& box, wxString text) {
    if (box.multiLine) {
        text.Replace("\r\n", "\n");
        text.Replace("\n", "\r\n");
    }
    return fromWx(text);
}

class TextBoxView : public ControlView {
  public:
    TextBoxView(ScreenDialog& dialog, wxWindow* parent, TextBox& box)
        : ControlView(dialog, box),
          box_(box),
          window_(new wxTextCtrl(parent, wxID_ANY, shownText(box), wxDefaultPosition, wxDefaultSize,
                                 styleOf(box))) {
        setWindow(window_);
        if (box.maxLength) window_->SetMaxLength(static_cast<unsigned long>(box.maxLength));
        wxSize least = window_->GetSizeFromTextSize(widthOfCharacters(*window_, box.widthInCharacters));
        if (box.multiLine) least.y = linesOfText * window_->GetCharHeight() + window_->FromDIP(10);
        window_->SetMinSize(least);
        window_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { settle(); });
    }

    void settle() override {
        if (window_->GetValue() == shownText(box_)) return;
        act([this] { box_.userType(typedText(box_, window_->GetValue())); });
    }

    bool wantsKey(int keyCode) const override { return box_.multiLine && keyCode != WXK_ESCAPE; }
    bool growsWide() const override { return box_.multiLine || box_.widthInCharacters >= shortField; }
    bool growsHigh() const override { return box_.multiLine; }

  private:
    static long styleOf(const TextBox& box) {
        return (box.multiLine ? long(wxTE_MULTILINE) : 0L) | (box.rightAligned ? long(wxTE_RIGHT) : 0L);
    }

    void updateContent() override {
        if (const wxString text = shownText(box_); text != window_->GetValue()) window_->ChangeValue(text);
        if (window_->IsEditable() == box_.locked()) window_->SetEditable(!box_.locked());
    }

    TextBox& box_;
    wxTextCtrl* window_;
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, TextBox& box) {
    return std::make_unique<TextBoxView>(dialog, parent, box);
}

}  // namespace tsln::desktop
