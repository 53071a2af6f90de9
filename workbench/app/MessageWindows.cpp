#include "workbench/app/MessageWindows.h"

#include <wx/artprov.h>
#include <wx/html/htmlwin.h>
#include <wx/statbmp.h>
#include <wx/wx.h>

#include "desktop/NativeWindow.h"
#include "shared/Markup.h"
#include "workbench/app/EmailWindow.h"
#include "workbench/app/ExpressionWindow.h"
#include "workbench/app/OverScreens.h"
#include "workbench/app/RecordPicker.h"

namespace tsln::workbench {
namespace {

wxString text(const std::string& utf8) {
    return wxString::FromUTF8(utf8);
}

wxString escaped(const std::string& utf8) {
    wxString plain = text(utf8);
    plain.Replace("&", "&amp;");
    plain.Replace("<", "&lt;");
    plain.Replace(">", "&gt;");
    return plain;
}

wxString html(const std::string& markup) {
    wxString page;
    for (const MarkupRun& run : parseMarkup(markup)) {
        if (run.lineBreak) {
            page += "<br>";
        } else {
            page += run.bold ? "<b>" + escaped(run.text) + "</b>" : escaped(run.text);
        }
    }
    return page;
}

wxArtID icon(const Message& message) {
    if (message.style == MessageStyle::Error || message.style == MessageStyle::LoggedError)
        return wxART_ERROR;
    return message.buttons == MessageButtons::Ok ? wxART_INFORMATION : wxART_QUESTION;
}

/// The text of a message, wrapped to the window's width. It is as high as needed; beyond a limit it scrolls.
class MessageText : public wxHtmlWindow {
  public:
    MessageText(wxWindow* parent, const Message& message)
        : wxHtmlWindow(parent, wxID_ANY, wxDefaultPosition, parent->FromDIP(wxSize(420, 60)),
                       wxHW_SCROLLBAR_AUTO | wxBORDER_NONE) {
        SetStandardFonts(parent->GetFont().GetPointSize(), parent->GetFont().GetFaceName());
        SetBorders(0);
        const wxString background = parent->GetBackgroundColour().GetAsString(wxC2S_HTML_SYNTAX);
        const wxString foreground = parent->GetForegroundColour().GetAsString(wxC2S_HTML_SYNTAX);
        wxString page = "<html><body bgcolor=\"" + background + "\" text=\"" + foreground + "\">";
        const bool heading = message.advice.empty() && message.explanation.empty();
        page += heading ? html(message.text) : "<font size=\"+1\">" + html(message.text) + "</font>";
        for (const std::string* part : {&message.advice, &message.explanation}) {
            if (!part->empty()) page += "<br><br>" + html(*part);
        }
        if (!message.detail.empty()) page += "<br><br><tt>" + escaped(message.detail) + "</tt>";
        SetPage(page + "</body></html>");
        desktop::setAccessibleName(*this, text(plainText(message.text)));

        const int width = FromDIP(420);
        const int mostHeight = FromDIP(360);
        GetInternalRepresentation()->Layout(width);
        const int height = GetInternalRepresentation()->GetHeight() + FromDIP(4);
        SetMinSize(wxSize(width, std::min(height, mostHeight)));  // the window has no border
    }

    // The buttons get the focus instead, so that Enter and Esc answer at once.
    bool AcceptsFocusFromKeyboard() const override { return false; }
};

class MessageDialog : public wxDialog {
  public:
    MessageDialog(wxWindow* owner, const Message& message)
        : wxDialog(owner, wxID_ANY, message.title.empty() ? wxString("Tessaline") : text(message.title)) {
        auto* line = new wxBoxSizer(wxHORIZONTAL);
        const wxBitmapBundle picture = wxArtProvider::GetBitmapBundle(icon(message), wxART_MESSAGE_BOX);
        line->Add(new wxStaticBitmap(this, wxID_ANY, picture),
                  wxSizerFlags().Top().Border(wxRIGHT, FromDIP(14)));
        line->Add(new MessageText(this, message), wxSizerFlags(1).Expand());

        auto* column = new wxBoxSizer(wxVERTICAL);
        column->Add(line, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(16)));
        if (message.style == MessageStyle::Style1WithMemory) {
            doNotShowAgain_ = new wxCheckBox(this, wxID_ANY, "&Do not show this message again");
            column->Add(doNotShowAgain_, wxSizerFlags().Border(wxLEFT | wxRIGHT | wxBOTTOM, FromDIP(16)));
        }
        column->Add(buttons(message.buttons),
                    wxSizerFlags().Right().Border(wxLEFT | wxRIGHT | wxBOTTOM, FromDIP(12)));
        SetSizerAndFit(column);
        CentreOnParent();
    }

    bool doNotShowAgain() const { return doNotShowAgain_ && doNotShowAgain_->GetValue(); }

  private:
    wxSizer* buttons(MessageButtons which) {
        const std::pair<wxWindowID, wxWindowID> ids =
            which == MessageButtons::YesNo      ? std::pair{wxID_YES, wxID_NO}
            : which == MessageButtons::OkCancel ? std::pair{wxID_OK, wxID_CANCEL}
                                                : std::pair{wxID_OK, wxID_NONE};
        auto* line = new wxBoxSizer(wxHORIZONTAL);
        for (const wxWindowID id : {ids.first, ids.second}) {
            if (id == wxID_NONE) continue;
            auto* button = new wxButton(this, id);
            button->Bind(wxEVT_BUTTON, [this, id](wxCommandEvent&) { EndModal(id); });
            line->Add(button, wxSizerFlags().Border(wxLEFT, FromDIP(8)));
            if (id != ids.first) continue;
            button->SetDefault();
            button->SetFocus();
        }
        SetAffirmativeId(ids.first);
        SetEscapeId(ids.second == wxID_NONE ? ids.first : ids.second);
        return line;
    }

    wxCheckBox* doNotShowAgain_ = nullptr;
};

}  // namespace

Reply MessageWindows::showMessage(const Message& message) {
    OverScreens place;
    MessageDialog dialog(place.owner(), message);
    place.own(dialog);
    const int answer = dialog.ShowModal();
    return {.answer = answer == wxID_YES  ? MessageAnswer::Yes
                      : answer == wxID_NO ? MessageAnswer::No
                      : answer == wxID_OK ? MessageAnswer::Ok
                                          : MessageAnswer::Cancel,
            .doNotShowAgain = dialog.doNotShowAgain()};
}

std::optional<std::string> MessageWindows::editExpression(const ExpressionEdit& edit) {
    return editExpressionInWindow(edit);
}

std::optional<std::int32_t> MessageWindows::searchRecord(const RecordSearch& search) {
    OverScreens place;
    RecordPicker picker(place.owner(), search.title, {{search.table, search.columns, search.records}}, false);
    place.own(picker);
    if (picker.ShowModal() != wxID_OK) return std::nullopt;
    const std::vector<std::int32_t> chosen = picker.chosen();
    return chosen.empty() ? std::nullopt : std::optional(chosen.front());
}

std::optional<Email> MessageWindows::editEmail(const Email& email) {
    return editEmailInWindow(email);
}

std::optional<std::string> MessageWindows::chooseFolder(const std::string& title) {
    OverScreens place;
    wxDirDialog dialog(place.owner(), text(title));
    place.own(dialog);
    if (dialog.ShowModal() != wxID_OK) return std::nullopt;
    return dialog.GetPath().utf8_string();
}

}  // namespace tsln::workbench
