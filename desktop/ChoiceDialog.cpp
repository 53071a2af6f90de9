#include "desktop/ChoiceDialog.h"

#include <algorithm>
#include <vector>

#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/display.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textwrapper.h>

#include "desktop/ForeignWindows.h"
#include "desktop/NativeWindow.h"
#include "desktop/Text.h"

namespace tsln::desktop {
namespace {

constexpr int textWidth = 440;  // pixels at 96 per inch
constexpr int margin = 12;

/// A text in lines of at most a width, broken between words.
class BrokenText : public wxTextWrapper {
  public:
    /// The width is in pixels of the window, in whose font the text is measured.
    BrokenText(wxWindow& window, const wxString& text, int width) { Wrap(&window, text, width); }
    const wxString& text() const { return text_; }

  private:
    void OnOutputLine(const wxString& line) override { text_ += line; }
    void OnNewLine() override { text_ += '\n'; }

    wxString text_;
};

class ChoiceDialog : public wxDialog {
  public:
    ChoiceDialog(wxWindow* owner, const wxString& title, const wxString& question,
                 std::span<const std::string> answers)
        : wxDialog(owner, wxID_ANY, title) {
        auto* column = new wxBoxSizer(wxVERTICAL);
        auto* text = new wxStaticText(this, wxID_ANY, wxControl::EscapeMnemonics(question));
        text->Wrap(FromDIP(textWidth));
        column->Add(text, wxSizerFlags().Border(wxBOTTOM, FromDIP(margin)));
        const int room = wxDisplay(this).GetClientArea().width - 2 * FromDIP(margin);
        for (const std::string& answer : answers) {
            auto* option = new wxRadioButton(this, wxID_ANY, {}, wxDefaultPosition, wxDefaultSize,
                                             options_.empty() ? wxRB_GROUP : 0);
            const BrokenText lines(*option, toWx(answer), room - option->GetBestSize().x - FromDIP(margin));
            option->SetLabel(wxControl::EscapeMnemonics(lines.text()));
            option->Bind(wxEVT_CHAR_HOOK, &ChoiceDialog::onKey, this);
            options_.push_back(option);
            column->Add(option, wxSizerFlags().Border(wxBOTTOM, FromDIP(margin / 3)));
        }
        auto* buttons = new wxBoxSizer(wxHORIZONTAL);
        auto* ok = new wxButton(this, wxID_OK);
        ok->SetDefault();
        buttons->AddStretchSpacer();
        buttons->Add(ok);
        buttons->Add(new wxButton(this, wxID_CANCEL), wxSizerFlags().Border(wxLEFT));
        column->Add(buttons, wxSizerFlags().Expand().Border(wxTOP, FromDIP(margin)));
        auto* outer = new wxBoxSizer(wxVERTICAL);
        outer->Add(column, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(margin)));
        SetSizerAndFit(outer);
        CentreOnParent();
        setAccessibleName(*this, title + ": " + question);
        choose(0);
    }

    std::size_t chosen() const {
        const auto found =
            std::ranges::find_if(options_, [](const wxRadioButton* o) { return o->GetValue(); });
        return static_cast<std::size_t>(found - options_.begin());
    }

  private:
    /// The platforms' own arrow keys stop at the ends or do not choose an answer.
    void onKey(wxKeyEvent& key) {
        const int code = key.GetKeyCode();
        const bool forward = code == WXK_DOWN || code == WXK_RIGHT;
        const bool back = code == WXK_UP || code == WXK_LEFT;
        if (key.HasAnyModifiers() || (!forward && !back)) return key.Skip();
        choose((chosen() + (forward ? 1 : options_.size() - 1)) % options_.size());
    }

    void choose(std::size_t option) {
        options_[option]->SetValue(true);
        options_[option]->SetFocus();
    }

    std::vector<wxRadioButton*> options_;
};

}  // namespace

std::optional<std::size_t> askChoice(wxWindow* owner, const wxString& title, const wxString& question,
                                     std::span<const std::string> answers) {
    if (answers.empty()) return std::nullopt;
    std::optional<ForeignWindows> foreign;  // below an owner they are already disabled
    if (!owner) foreign.emplace();
    ChoiceDialog dialog(owner, title, question, answers);
    if (dialog.ShowModal() != wxID_OK || dialog.chosen() >= answers.size()) return std::nullopt;
    return dialog.chosen();
}

}  // namespace tsln::desktop
