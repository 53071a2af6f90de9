#include "workbench/app/RecordPicker.h"

#include "desktop/NativeWindow.h"
#include "desktop/Text.h"

namespace tsln::workbench {
namespace {

using desktop::hasKeyboard;
using desktop::setAccessibleName;
using desktop::toWx;

}  // namespace

RecordPicker::RecordPicker(wxWindow* owner, const std::string& title, std::vector<RecordsToPick> kinds,
                           bool several)
    : wxDialog(owner, wxID_ANY, toWx(title), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      kinds_(std::move(kinds)) {
    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(choices(), wxSizerFlags().Expand());
    list_ = new RecordTable(this, FromDIP(wxSize(680, 320)), several);
    list_->Bind(wxEVT_DATAVIEW_SELECTION_CHANGED, [this](wxDataViewEvent&) { enableOk(); });
    list_->Bind(wxEVT_DATAVIEW_ITEM_ACTIVATED, [this](wxDataViewEvent&) { accept(); });
    Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& key) { leadKey(key); });
    column->Add(list_, wxSizerFlags(1).Expand().Border(wxTOP, FromDIP(8)));
    if (several) {
        column->Add(new wxStaticText(this, wxID_ANY, "Select several with Shift, Ctrl or Ctrl+A."),
                    wxSizerFlags().Border(wxTOP, FromDIP(6)));
    }
    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(column, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(12)));
    all->Add(CreateSeparatedButtonSizer(wxOK | wxCANCEL),
             wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, FromDIP(12)));
    ok_ = dynamic_cast<wxButton*>(FindWindow(wxID_OK));
    SetSizerAndFit(all);
    CentreOnParent();
    showKind(0);
    search_->SetFocus();
}

/// The kind of record, where there is a choice, and the search field.
wxSizer* RecordPicker::choices() {
    auto* line = new wxBoxSizer(wxHORIZONTAL);
    if (kinds_.size() > 1) {
        auto* choice = new wxChoice(this, wxID_ANY);
        setAccessibleName(*choice, "Kind of record");
        for (const RecordsToPick& kind : kinds_)
            choice->Append(toWx(kind.caption));
        choice->SetSelection(0);
        choice->Bind(wxEVT_CHOICE, [this](wxCommandEvent& event) {
            showKind(static_cast<std::size_t>(event.GetSelection()));
        });
        line->Add(choice, wxSizerFlags().CenterVertical().Border(wxRIGHT, FromDIP(8)));
    }
    search_ = new wxSearchCtrl(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxTE_PROCESS_ENTER);
    search_->SetDescriptiveText("Find");
    setAccessibleName(*search_, "Find");
    search_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { find(); });
    for (const auto& entered : {wxEVT_TEXT_ENTER, wxEVT_SEARCH})
        search_->Bind(entered, [this](wxCommandEvent&) { accept(); });
    line->Add(search_, wxSizerFlags(1).CenterVertical());
    return line;
}

void RecordPicker::showKind(std::size_t kind) {
    kind_ = kind;
    list_->show(kinds_[kind].caption, kinds_[kind].columns, kinds_[kind].records);
    find();
}

void RecordPicker::find() {
    list_->find(search_->GetValue());
    enableOk();
}

void RecordPicker::enableOk() {
    if (ok_) ok_->Enable(list_->HasSelection());
}

void RecordPicker::accept() {
    if (list_->HasSelection()) EndModal(wxID_OK);
}

/// The Down key leads from the search field into the list. In the list, Ctrl+A selects all, and Enter takes the selection:
/// the toolkit would select the focused row alone.
void RecordPicker::leadKey(wxKeyEvent& key) {
    const bool inList = hasKeyboard(*list_);
    if (key.GetKeyCode() == WXK_DOWN && hasKeyboard(*search_)) {
        list_->SetFocus();
    } else if (inList && key.GetKeyCode() == 'A' && key.GetModifiers() == wxMOD_CONTROL &&
               list_->HasFlag(wxDV_MULTIPLE)) {
        list_->SelectAll();
        enableOk();
    } else if (inList && (key.GetKeyCode() == WXK_RETURN || key.GetKeyCode() == WXK_NUMPAD_ENTER)) {
        accept();
    } else {
        key.Skip();
    }
}

}  // namespace tsln::workbench
