#include <algorithm>

#include <wx/event.h>
#include <wx/textctrl.h>

#include "desktop/ControlView.h"
#include "desktop/NativeWindow.h"
#include "desktop/ScreenDialog.h"
#include "desktop/Text.h"
#include "screens/Controls.h"

namespace tsln::desktop {
namespace {

constexpr int shortField = 20;  // characters; shorter boxes keep their width instead of filling the row
constexpr int textMargin = 6;   // pixels at 96 per inch between the text of several lines and its border
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
          window_(new wxTextCtrl(parent, wxID_ANY, {}, wxDefaultPosition, wxDefaultSize, styleOf(box))) {
        setWindow(window_);
        wxSize least = window_->GetSizeFromTextSize(widthOfCharacters(*window_, box.widthInCharacters));
        if (box.multiLine) {
            least.y = linesOfText * window_->GetCharHeight() + window_->FromDIP(10);
            setTextMargin(*window_, window_->FromDIP(textMargin));
        }
        window_->SetMinSize(least);
        window_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { act([] {}); });
    }

    void settle() override {
        const wxString text = window_->GetValue();
        if (text == known_) return;
        known_ = text;
        box_.userType(typedText(box_, text));
    }

    bool wantsKey(int keyCode) const override { return box_.multiLine && keyCode != WXK_ESCAPE; }
    bool growsWide() const override { return box_.multiLine || box_.widthInCharacters >= shortField; }
    bool growsHigh() const override { return box_.multiLine; }

  private:
    static long styleOf(const TextBox& box) {
        return (box.multiLine ? long(wxTE_MULTILINE) : 0L) | (box.rightAligned ? long(wxTE_RIGHT) : 0L);
    }

    void updateContent() override {
        const wxString text = shownText(box_);
        // A text that is too long already must not be cut by being shown.
        if (box_.maxLength && !box_.multiLine) window_->SetMaxLength(std::max(box_.maxLength, text.size()));
        const wxString now = window_->GetValue();
        const bool asShown = text == shown_ && now == shownAs_;
        if (text != now && !asShown) {
            window_->ChangeValue(text);
            // As on entering the box by the keyboard: typing replaces what has just been put in.
            if (window_->HasFocus() && !box_.multiLine && !box_.locked()) window_->SelectAll();
        }
        shown_ = text;
        shownAs_ = known_ = window_->GetValue();
        if (window_->IsEditable() == box_.locked()) window_->SetEditable(!box_.locked());
    }

    TextBox& box_;
    wxTextCtrl* window_;
    // A window need not show a text as it was given it (line ends, control characters), and only what the
    // user changes may go back to the control.
    wxString shown_;    // what the window was given last
    wxString shownAs_;  // what it made of that
    wxString known_;    // what it held when last looked at
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, TextBox& box) {
    return std::make_unique<TextBoxView>(dialog, parent, box);
}

}  // namespace tsln::desktop
