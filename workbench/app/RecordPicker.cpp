#include "workbench/app/RecordPicker.h"

#include <algorithm>

#include <wx/listctrl.h>

#include "desktop/NativeWindow.h"
#include "desktop/Text.h"

namespace tsln::workbench {
namespace {

using desktop::setAccessibleName;
using desktop::toWx;

constexpr long both = wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED;

bool matches(const ListedRecord& record, const wxString& wanted) {
    return wanted.empty() || std::ranges::any_of(record.cells, [&](const std::string& cell) {
               return toWx(cell).Lower().Contains(wanted);
           });
}

}  // namespace

/// Asks for the texts of visible rows only, so that a large company opens at once.
class RecordPicker::List : public wxListCtrl {
  public:
    List(wxWindow* parent, const std::vector<const ListedRecord*>& records, bool several)
        : wxListCtrl(parent, wxID_ANY, wxDefaultPosition, parent->FromDIP(wxSize(620, 320)),
                     wxLC_REPORT | wxLC_VIRTUAL | (several ? 0 : wxLC_SINGLE_SEL)),
          records_(records) {}

    std::vector<long> selected() const {
        std::vector<long> items;
        for (long item = -1; (item = GetNextItem(item, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED)) >= 0;)
            items.push_back(item);
        return items;
    }

  private:
    wxString OnGetItemText(long item, long column) const override {
        if (item < 0 || item >= static_cast<long>(records_.size())) return {};
        const ListedRecord& record = *records_[static_cast<std::size_t>(item)];
        if (column == 0) return wxString::Format("%d", record.ID);
        return toWx(record.cells.at(static_cast<std::size_t>(column) - 1));
    }

    const std::vector<const ListedRecord*>& records_;
};

RecordPicker::RecordPicker(wxWindow* owner, const std::string& title, std::vector<RecordsToPick> kinds,
                           bool several)
    : wxDialog(owner, wxID_ANY, toWx(title), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      kinds_(std::move(kinds)) {
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
    search_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { fill(); });
    for (const auto& entered : {wxEVT_TEXT_ENTER, wxEVT_SEARCH}) {
        search_->Bind(entered, [this](wxCommandEvent&) {
            if (ok_->IsEnabled()) EndModal(wxID_OK);
        });
    }
    line->Add(search_, wxSizerFlags(1).CenterVertical());

    list_ = new List(this, shown_, several);
    for (const auto& selected : {wxEVT_LIST_ITEM_SELECTED, wxEVT_LIST_ITEM_DESELECTED})
        list_->Bind(selected, [this](wxListEvent&) { enableOk(); });
    list_->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) {
        if (ok_->IsEnabled()) EndModal(wxID_OK);
    });
    Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& key) { searchKey(key); });

    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(line, wxSizerFlags().Expand());
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

void RecordPicker::showKind(std::size_t kind) {
    kind_ = kind;
    shown_.clear();
    list_->SetItemCount(0);
    list_->DeleteAllColumns();
    setAccessibleName(*list_, toWx(kinds_[kind].caption));
    list_->AppendColumn("ID", wxLIST_FORMAT_RIGHT, FromDIP(50));
    for (const std::string& caption : kinds_[kind].columns)
        list_->AppendColumn(toWx(caption), wxLIST_FORMAT_LEFT, FromDIP(150));
    fill();
}

void RecordPicker::fill() {
    const wxString wanted = search_->GetValue().Lower();
    for (const long item : list_->selected())
        list_->SetItemState(item, 0, both);
    shown_.clear();
    for (const ListedRecord& record : kinds_[kind_].records) {
        if (matches(record, wanted)) shown_.push_back(&record);
    }
    list_->SetItemCount(static_cast<long>(shown_.size()));
    if (!shown_.empty()) {
        list_->SetItemState(0, both, both);
        list_->EnsureVisible(0);
    }
    list_->Refresh();
    enableOk();
}

void RecordPicker::enableOk() {
    if (ok_) ok_->Enable(list_->GetSelectedItemCount() > 0);
}

/// The arrow keys lead from the search field into the list; Ctrl+A in the list selects all.
void RecordPicker::searchKey(wxKeyEvent& key) {
    const bool inList = FindFocus() && (FindFocus() == list_ || FindFocus()->GetParent() == list_);
    if (!inList && key.GetKeyCode() == WXK_DOWN && FindFocus() && FindFocus()->GetParent() == search_) {
        list_->SetFocus();
    } else if (inList && key.GetKeyCode() == 'A' && key.GetModifiers() == wxMOD_CONTROL &&
               !(list_->GetWindowStyle() & wxLC_SINGLE_SEL)) {
        for (long item = 0; item < list_->GetItemCount(); ++item)
            list_->SetItemState(item, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    } else {
        key.Skip();
    }
}

std::vector<std::int32_t> RecordPicker::chosen() const {
    std::vector<std::int32_t> identifiers;
    for (const long item : list_->selected())
        identifiers.push_back(shown_[static_cast<std::size_t>(item)]->ID);
    return identifiers;
}

}  // namespace tsln::workbench
