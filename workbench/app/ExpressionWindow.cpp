#include "workbench/app/ExpressionWindow.h"

#include <algorithm>

#include <wx/wx.h>

#include "desktop/NativeWindow.h"
#include "desktop/Text.h"
#include "workbench/app/OverScreens.h"
#include "workbench/host/ExpressionText.h"

namespace tsln::workbench {
namespace {

using desktop::fromWx;
using desktop::toWx;

constexpr const char* signs[] = {"=", "<>", "<", ">", "(", ")", "and", "or", "not"};

class ExpressionDialog : public wxDialog {
  public:
    ExpressionDialog(wxWindow* owner, const ExpressionEdit& edit)
        : wxDialog(owner, wxID_ANY, edit.title.empty() ? wxString("Edit Expression") : toWx(edit.title),
                   wxDefaultPosition, wxDefaultSize, wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER) {
        const int gap = FromDIP(8);
        auto* column = new wxBoxSizer(wxVERTICAL);
        column->Add(new wxStaticText(this, wxID_ANY, "E&xpression:"),
                    wxSizerFlags().Border(wxBOTTOM, gap / 2));
        text_ = new wxTextCtrl(this, wxID_ANY, toWx(edit.expression), wxDefaultPosition,
                               FromDIP(wxSize(420, 110)), wxTE_MULTILINE);
        desktop::setAccessibleName(*text_, "Expression");
        desktop::setTextMargin(*text_, FromDIP(6));
        text_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) {
            changed_ = true;
            tellFault();
        });
        column->Add(text_, wxSizerFlags(1).Expand());
        fault_ = new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                                  wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
        column->Add(fault_, wxSizerFlags().Expand().Border(wxTOP | wxBOTTOM, gap / 2));
        column->Add(signButtons(), wxSizerFlags().Expand().Border(wxBOTTOM, gap));
        column->Add(nameChoice(edit.names), wxSizerFlags().Expand());

        auto* all = new wxBoxSizer(wxVERTICAL);
        all->Add(column, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(12)));
        all->Add(CreateSeparatedButtonSizer(wxOK | wxCANCEL),
                 wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, FromDIP(12)));
        SetSizerAndFit(all);
        CentreOnParent();
        text_->SetInsertionPointEnd();
        text_->SetFocus();
        tellFault();
    }

    std::string expression() const { return fromWx(text_->GetValue()); }
    /// True after an edit. The texts cannot be compared: the toolkit changes line ends.
    bool changed() const { return changed_; }

  private:
    wxSizer* signButtons() {
        auto* line = new wxBoxSizer(wxHORIZONTAL);
        for (const char* sign : signs) {
            auto* button =
                new wxButton(this, wxID_ANY, sign, wxDefaultPosition, wxDefaultSize, wxBU_EXACTFIT);
            button->SetMinSize(wxSize(std::max(FromDIP(38), button->GetBestSize().x), -1));
            button->Bind(wxEVT_BUTTON, [this, sign](wxCommandEvent&) { insert(sign); });
            line->Add(button, wxSizerFlags().Border(wxRIGHT, FromDIP(4)));
        }
        return line;
    }

    wxSizer* nameChoice(const std::vector<std::string>& names) {
        auto* line = new wxBoxSizer(wxHORIZONTAL);
        line->Add(new wxStaticText(this, wxID_ANY, "&Name:"),
                  wxSizerFlags().CentreVertical().Border(wxRIGHT, FromDIP(6)));
        auto* choice = new wxChoice(this, wxID_ANY);
        for (const std::string& name : names)
            choice->Append(toWx(name));
        if (!names.empty()) choice->SetSelection(0);
        line->Add(choice, wxSizerFlags(1).CentreVertical());
        auto* button = new wxButton(this, wxID_ANY, "&Insert");
        button->Enable(!names.empty());
        button->Bind(wxEVT_BUTTON, [this, choice](wxCommandEvent&) { insert(choice->GetStringSelection()); });
        line->Add(button, wxSizerFlags().CentreVertical().Border(wxLEFT, FromDIP(6)));
        return line;
    }

    /// Inserts the word at the cursor or in place of the selection, separated by blanks.
    void insert(const wxString& word) {
        long from = 0, to = 0;
        text_->GetSelection(&from, &to);
        const wxString whole = text_->GetValue();
        const auto needsBlank = [&](long at) {
            return at >= 0 && at < static_cast<long>(whole.length()) && !wxIsspace(whole[at]);
        };
        text_->WriteText((needsBlank(from - 1) ? " " : "") + word + (needsBlank(to) ? " " : ""));
        text_->SetFocus();
    }

    /// Only a hint: the text may be saved all the same, since it need not be an expression.
    void tellFault() { fault_->SetLabelText(toWx(expressionFault(expression()))); }

    wxTextCtrl* text_ = nullptr;
    wxStaticText* fault_ = nullptr;
    bool changed_ = false;
};

}  // namespace

std::optional<std::string> editExpressionInWindow(const ExpressionEdit& edit) {
    OverScreens place;
    ExpressionDialog dialog(place.owner(), edit);
    place.own(dialog);
    if (dialog.ShowModal() != wxID_OK) return std::nullopt;
    return dialog.changed() ? dialog.expression() : edit.expression;
}

}  // namespace tsln::workbench
