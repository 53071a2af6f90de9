#include "workbench/app/RecordPicker.h"

#include <algorithm>

#include "desktop/NativeWindow.h"
#include "desktop/Text.h"

namespace tsln::workbench {
namespace {

using desktop::hasKeyboard;
using desktop::setAccessibleName;
using desktop::toWx;

bool matches(const ListedRecord& record, const wxString& wanted) {
    return wanted.empty() || std::ranges::any_of(record.cells, [&](const std::string& cell) {
               return toWx(cell).Lower().Contains(wanted);
           });
}

}  // namespace

/// Hands the records to the toolkit's list, which asks only for the visible rows.
class RecordPicker::Model : public wxDataViewVirtualListModel {
  public:
    explicit Model(const RecordPicker& picker) : picker_(&picker) {}
    /// The picker is being destroyed.
    void detach() { picker_ = nullptr; }

  private:
    void GetValueByRow(wxVariant& value, unsigned row, unsigned column) const override {
        value = wxString();
        if (!picker_ || row >= picker_->shown_.size()) return;
        const ListedRecord& record = *picker_->shown_[row];
        value = column == 0 ? wxString::Format("%d", record.ID) : toWx(record.cells.at(column - 1));
    }
    bool SetValueByRow(const wxVariant&, unsigned, unsigned) override { return false; }

    const RecordPicker* picker_;
};

RecordPicker::~RecordPicker() {
    model_->detach();
}

RecordPicker::RecordPicker(wxWindow* owner, const std::string& title, std::vector<RecordsToPick> kinds,
                           bool several)
    : wxDialog(owner, wxID_ANY, toWx(title), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      kinds_(std::move(kinds)),
      model_(new Model(*this)) {
    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(choices(), wxSizerFlags().Expand());
    list_ = new wxDataViewCtrl(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(680, 320)),
                               several ? wxDV_MULTIPLE : wxDV_SINGLE);
    list_->AssociateModel(model_.get());
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
    search_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { fill(); });
    for (const auto& entered : {wxEVT_TEXT_ENTER, wxEVT_SEARCH})
        search_->Bind(entered, [this](wxCommandEvent&) { accept(); });
    line->Add(search_, wxSizerFlags(1).CenterVertical());
    return line;
}

void RecordPicker::showKind(std::size_t kind) {
    kind_ = kind;
    shown_.clear();
    model_->Reset(0);
    list_->ClearColumns();
    setAccessibleName(*list_, toWx(kinds_[kind].caption));
    const auto append = [this](const wxString& caption, int width, wxAlignment align) {
        list_->AppendTextColumn(caption, list_->GetColumnCount(), wxDATAVIEW_CELL_INERT, FromDIP(width),
                                align, wxDATAVIEW_COL_RESIZABLE);
    };
    append("ID", 60, wxALIGN_RIGHT);
    for (const std::string& caption : kinds_[kind].columns)
        append(toWx(caption), 180, wxALIGN_LEFT);
    fill();
}

void RecordPicker::fill() {
    const wxString wanted = search_->GetValue().Lower();
    shown_.clear();
    for (const ListedRecord& record : kinds_[kind_].records) {
        if (matches(record, wanted)) shown_.push_back(&record);
    }
    list_->UnselectAll();
    model_->Reset(static_cast<unsigned>(shown_.size()));
    if (!shown_.empty()) {
        const wxDataViewItem first = model_->GetItem(0);
        list_->SetCurrentItem(first);
        list_->Select(first);
        list_->EnsureVisible(first);
    }
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

std::vector<std::int32_t> RecordPicker::chosen() const {
    wxDataViewItemArray items;
    list_->GetSelections(items);
    std::vector<unsigned> rows;
    for (const wxDataViewItem& item : items)
        rows.push_back(model_->GetRow(item));
    std::ranges::sort(rows);
    std::vector<std::int32_t> identifiers;
    for (const unsigned row : rows)
        identifiers.push_back(shown_.at(row)->ID);
    return identifiers;
}

}  // namespace tsln::workbench
