#include "workbench/app/RecordBrowser.h"

#include <wx/splitter.h>

#include "desktop/NativeWindow.h"
#include "desktop/Text.h"

namespace tsln::workbench {

using desktop::toWx;

RecordBrowser::RecordBrowser(wxWindow* owner, CompanySession& session, ObjectPtr library,
                             const RecordKind& kind)
    : wxDialog(owner, wxID_ANY, toWx(std::string(kind.caption)), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      session_(session),
      library_(std::move(library)),
      kind_(kind) {
    search_ = new wxSearchCtrl(this, wxID_ANY);
    search_->SetDescriptiveText("Find");
    desktop::setAccessibleName(*search_, "Find");
    search_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { find(selected()); });

    auto* splitter = new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(640, 420)),
                                          wxSP_LIVE_UPDATE | wxSP_NOBORDER);
    list_ = new RecordTable(splitter, wxDefaultSize, false);
    list_->show(std::string(kind.caption), {kind.columns.begin(), kind.columns.end()}, {});
    list_->Bind(wxEVT_DATAVIEW_SELECTION_CHANGED, [this](wxDataViewEvent&) { showHistory(); });
    list_->Bind(wxEVT_DATAVIEW_ITEM_ACTIVATED, [this](wxDataViewEvent&) { edit(selected()); });
    history_ = new wxTextCtrl(splitter, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                              wxTE_READONLY | wxTE_MULTILINE);
    desktop::setAccessibleName(*history_, "Activity history");
    splitter->SetMinimumPaneSize(FromDIP(80));
    splitter->SetSashGravity(0.6);
    splitter->SplitHorizontally(list_, history_, FromDIP(250));

    auto* buttons = new wxBoxSizer(wxVERTICAL);
    const auto button = [&](int id, const wxString& caption, auto press) {
        auto* made = new wxButton(this, id, caption);
        made->Bind(wxEVT_BUTTON, [press](wxCommandEvent&) { press(); });
        buttons->Add(made, wxSizerFlags().Expand().Border(wxBOTTOM, FromDIP(6)));
        return made;
    };
    button(wxID_ANY, "&New...", [this] { edit(0); });
    edit_ = button(wxID_ANY, "&Edit...", [this] { edit(selected()); });
    edit_->SetDefault();
    buttons->AddStretchSpacer();
    button(wxID_CANCEL, "Close", [this] { EndModal(wxID_CANCEL); });

    auto* across = new wxBoxSizer(wxHORIZONTAL);
    across->Add(splitter, wxSizerFlags(1).Expand());
    across->Add(buttons, wxSizerFlags().Expand().Border(wxLEFT, FromDIP(10)));
    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(search_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, FromDIP(12)));
    all->Add(across, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(12)));
    SetSizerAndFit(all);
    CentreOnParent();
    fill(0);
    list_->SetFocus();
}

void RecordBrowser::fill(std::int32_t wanted) {
    try {
        list_->setRecords(listRecords(session_.company(), kind_));
    } catch (const std::exception& error) {
        return complain(error);
    }
    find(wanted);
}

void RecordBrowser::find(std::int32_t wanted) {
    list_->find(search_->GetValue(), wanted);
    showHistory();
}

std::int32_t RecordBrowser::selected() const {
    const std::vector<std::int32_t> chosen = list_->chosen();
    return chosen.empty() ? 0 : chosen.front();
}

void RecordBrowser::showHistory() {
    const std::int32_t ID = selected();
    edit_->Enable(ID != 0);
    wxString text;
    try {
        for (const HistoryEntry& entry : historyOf(session_.company(), kind_, ID)) {
            wxString lines = toWx(entry.text);
            lines.Replace("\r\n", "\n");
            text += toWx(entry.date) + "  " + lines + "\n";
        }
    } catch (const std::exception& error) {
        text = toWx(error.what());
    }
    history_->ChangeValue(text.empty() ? wxString("The history of this record is empty.") : text);
}

void RecordBrowser::edit(std::int32_t ID) {
    try {
        const std::int32_t saved = library_->call(info(kind_.edit).name, ID).toLong();
        fill(saved != 0 ? saved : ID);
    } catch (const std::exception& error) {
        complain(error);
    }
    list_->SetFocus();
}

void RecordBrowser::complain(const std::exception& error) {
    wxMessageBox(toWx(error.what()), GetTitle(), wxOK | wxICON_ERROR, this);
}

}  // namespace tsln::workbench
