#include "desktop/HelpWindow.h"

#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/filename.h>
#include <wx/html/htmlwin.h>
#include <wx/settings.h>
#include <wx/sizer.h>

#include "desktop/HtmlHelp.h"
#include "desktop/NativeWindow.h"
#include "desktop/Text.h"

namespace tsln::desktop {
namespace {

wxString pageFile(const std::string& folder, const std::string& file, std::int32_t context) {
    const wxString stem = wxFileName(toWx(file)).GetName();
    return wxFileName(toWx(folder), wxString::Format("%s-%d.htm", stem, context)).GetFullPath();
}

class HelpDialog : public wxDialog {
  public:
    HelpDialog(wxWindow* owner, const wxString& title, const wxString& page)
        : wxDialog(owner, wxID_ANY, title, wxDefaultPosition, wxDefaultSize,
                   wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER | wxMAXIMIZE_BOX) {
        auto* html = new wxHtmlWindow(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(620, 480)),
                                      wxHW_SCROLLBAR_AUTO | wxBORDER_THEME);
        html->SetStandardFonts(wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT).GetPointSize());
        if (!wxFileExists(page) || !html->LoadPage(page)) html->SetPage(toWx(builtInHelp()));
        setAccessibleName(*html, title);
        auto* close = new wxButton(this, wxID_CLOSE, "&Close");
        SetEscapeId(wxID_CLOSE);
        SetAffirmativeId(wxID_CLOSE);
        close->SetDefault();

        auto* sizer = new wxBoxSizer(wxVERTICAL);
        const int margin = FromDIP(12);
        sizer->Add(html, wxSizerFlags(1).Expand().Border(wxALL, margin));
        sizer->Add(close, wxSizerFlags().Right().Border(wxLEFT | wxRIGHT | wxBOTTOM, margin));
        SetSizerAndFit(sizer);
        SetMinSize(FromDIP(wxSize(320, 240)));
        CentreOnParent();
        html->SetFocus();
    }
};

}  // namespace

void showHelpWindow(wxWindow* owner, const std::string& folder, const std::string& file,
                    std::int32_t context) {
    const wxString compiled = wxFileName(toWx(folder), toWx(file)).GetFullPath();
    if (showHtmlHelp(owner, compiled, static_cast<unsigned>(context))) return;
    const wxString title = wxFileName(toWx(file)).GetName();
    HelpDialog(owner, title, pageFile(folder, file, context)).ShowModal();
}

}  // namespace tsln::desktop
