#include "workbench/app/EmailWindow.h"

#include <wx/wx.h>

#include "desktop/NativeWindow.h"
#include "desktop/Text.h"
#include "workbench/app/OverScreens.h"

namespace tsln::workbench {
namespace {

using desktop::fromWx;
using desktop::toWx;

struct Line {
    const char* caption;
    std::string Email::*text;
};
constexpr Line lines[] = {{"&From:", &Email::from},
                          {"&To:", &Email::to},
                          {"Cc:", &Email::cc},
                          {"&Bcc:", &Email::bcc},
                          {"Sub&ject:", &Email::subject}};

class EmailDialog : public wxDialog {
  public:
    EmailDialog(wxWindow* owner, const Email& email)
        : wxDialog(owner, wxID_ANY, "Send E-mail", wxDefaultPosition, wxDefaultSize,
                   wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
          email_(email) {
        const int gap = FromDIP(8);
        auto* form = new wxFlexGridSizer(2, FromDIP(wxSize(8, 6)));
        form->AddGrowableCol(1);
        for (std::size_t i = 0; i < std::size(lines); ++i) {
            form->Add(new wxStaticText(this, wxID_ANY, lines[i].caption), wxSizerFlags().CentreVertical());
            boxes_[i] = new wxTextCtrl(this, wxID_ANY, toWx(email.*lines[i].text));
            desktop::setAccessibleName(*boxes_[i],
                                       wxControl::RemoveMnemonics(lines[i].caption).BeforeFirst(':'));
            form->Add(boxes_[i], wxSizerFlags(1).Expand());
        }
        body_ =
            new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, FromDIP(wxSize(480, 200)), wxTE_MULTILINE);
        desktop::setAccessibleName(*body_, "Message");
        desktop::setTextMargin(*body_, FromDIP(6));
        wxString text = toWx(email.body);
        text.Replace("\r\n", "\n");
        body_->ChangeValue(text);

        auto* buttons = new wxBoxSizer(wxHORIZONTAL);
        buttons->AddStretchSpacer();
        auto* send = new wxButton(this, wxID_OK, "&Send");
        send->SetDefault();
        buttons->Add(send);
        buttons->Add(new wxButton(this, wxID_CANCEL), wxSizerFlags().Border(wxLEFT, gap));
        auto* all = new wxBoxSizer(wxVERTICAL);
        all->Add(form, wxSizerFlags().Expand().Border(wxALL, FromDIP(12)));
        all->Add(body_, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT, FromDIP(12)));
        all->Add(buttons, wxSizerFlags().Expand().Border(wxALL, FromDIP(12)));
        SetSizerAndFit(all);
        CentreOnParent();
        send->SetFocus();
    }

    Email sent() const {
        Email sent = email_;
        for (std::size_t i = 0; i < std::size(lines); ++i)
            sent.*lines[i].text = fromWx(boxes_[i]->GetValue());
        wxString text = body_->GetValue();
        text.Replace("\r\n", "\n");
        text.Replace("\n", "\r\n");
        sent.body = fromWx(text);
        return sent;
    }

  private:
    const Email email_;
    wxTextCtrl* boxes_[std::size(lines)] = {};
    wxTextCtrl* body_ = nullptr;
};

}  // namespace

std::optional<Email> editEmailInWindow(const Email& email) {
    OverScreens place;
    EmailDialog dialog(place.owner(), email);
    place.own(dialog);
    if (dialog.ShowModal() != wxID_OK) return std::nullopt;
    return dialog.sent();
}

}  // namespace tsln::workbench
