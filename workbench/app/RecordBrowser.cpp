#include "workbench/app/RecordBrowser.h"

#include <wx/splitter.h>

#include "desktop/Text.h"

namespace tsln::workbench {
namespace {

using desktop::toWx;

bool matches(const ListedRecord& record, const wxString& wanted) {
    for (const std::string& cell : record.cells) {
        if (toWx(cell).Lower().Contains(wanted)) return true;
    }
    return false;
}

}  // namespace

RecordBrowser::RecordBrowser(wxWindow* owner, CompanySession& session, ObjectPtr library,
                             const RecordKind& kind)
    : wxDialog(owner, wxID_ANY, toWx(std::string(kind.caption)), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      session_(session),
      library_(std::move(library)),
      kind_(kind) {
    search_ = new wxSearchCtrl(this, wxID_ANY);
    search_->SetDescriptiveText("Find");
    search_->SetName("Find");
    search_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { fill(selected()); });

    auto* splitter = new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(640, 420)),
                                          wxSP_LIVE_UPDATE | wxSP_NOBORDER);
    list_ =
        new wxListCtrl(splitter, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxLC_REPORT | wxLC_SINGLE_SEL);
    list_->SetName(GetTitle());
    list_->AppendColumn("ID", wxLIST_FORMAT_RIGHT, FromDIP(50));
    for (const std::string_view caption : kind.columns)
        list_->AppendColumn(toWx(std::string(caption)));
    list_->Bind(wxEVT_LIST_ITEM_SELECTED, [this](wxListEvent&) { showHistory(); });
    list_->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) { edit(selected()); });
    history_ = new wxTextCtrl(splitter, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                              wxTE_READONLY | wxTE_MULTILINE);
    history_->SetName("Activity history");
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
    for (int column = 0; column < list_->GetColumnCount(); ++column)
        list_->SetColumnWidth(column, wxLIST_AUTOSIZE_USEHEADER);
    list_->SetFocus();
}

void RecordBrowser::fill(std::int32_t wanted) {
    const wxString text = search_->GetValue().Lower();
    try {
        shown_ = listRecords(session_.company(), kind_);
    } catch (const std::exception& error) {
        return complain(error);
    }
    std::erase_if(shown_, [&](const ListedRecord& record) { return !matches(record, text); });
    list_->DeleteAllItems();
    long chosen = 0;
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        const long item = list_->InsertItem(static_cast<long>(i), wxString::Format("%d", shown_[i].ID));
        for (std::size_t c = 0; c < shown_[i].cells.size(); ++c)
            list_->SetItem(item, static_cast<int>(c) + 1, toWx(shown_[i].cells[c]));
        if (shown_[i].ID == wanted) chosen = item;
    }
    constexpr long both = wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED;
    if (!shown_.empty()) {
        list_->SetItemState(chosen, both, both);
        list_->EnsureVisible(chosen);
    }
    showHistory();
}

std::int32_t RecordBrowser::selected() const {
    const long item = list_->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
    return item >= 0 && item < static_cast<long>(shown_.size()) ? shown_[static_cast<std::size_t>(item)].ID
                                                                : 0;
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
