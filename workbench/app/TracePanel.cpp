#include "workbench/app/TracePanel.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include <climits>
#include <wx/filedlg.h>
#include <wx/wrapsizer.h>

#include "desktop/NativeGrid.h"
#include "desktop/NativeWindow.h"

namespace tsln::workbench {
namespace {

constexpr std::size_t mostEntries = 20'000;

wxString text(const std::string& utf8) {
    return wxString::FromUTF8(utf8);
}

/// The statement or arguments of a call on one line, for the list's third column.
wxString arguments(const TraceEntry& entry) {
    wxString line = text(entry.statement.empty() ? entry.arguments : entry.statement);
    line.Replace("\r\n", " ");
    line.Replace("\n", " ");
    return line;
}

wxString duration(const TraceEntry& entry) {
    const double milliseconds = static_cast<double>(entry.duration.count()) / 1000;
    return milliseconds < 1000 ? wxString::Format("%.2f ms", milliseconds)
                               : wxString::Format("%.2f s", milliseconds / 1000);
}

}  // namespace

/// Hands the calls to the toolkit's list, which asks only for the visible rows.
class TracePanel::Model : public wxDataViewVirtualListModel {
  public:
    explicit Model(const TracePanel& panel) : panel_(&panel) {}
    /// The panel is being destroyed.
    void detach() { panel_ = nullptr; }

  private:
    void GetValueByRow(wxVariant& value, unsigned row, unsigned column) const override {
        value = wxString();
        if (!panel_ || row >= panel_->shown_.size()) return;
        const TraceEntry& call = panel_->entry(row);
        switch (column) {
            case 0:
                value = wxString::Format("%llu", static_cast<unsigned long long>(call.number));
                break;
            case 1:
                value = wxString(' ', static_cast<std::size_t>(call.depth) * 2) + text(call.member);
                break;
            case 2:
                value = arguments(call);
                break;
            case 3:
                value = text(call.result);
                break;
            default:
                value = duration(call);
        }
    }
    bool GetAttrByRow(unsigned row, unsigned, wxDataViewItemAttr& attr) const override {
        if (!panel_ || row >= panel_->shown_.size() || !panel_->entry(row).failed) return false;
        attr.SetColour(desktop::failureColour());
        return true;
    }
    bool SetValueByRow(const wxVariant&, unsigned, unsigned) override { return false; }

    const TracePanel* panel_;
};

TracePanel::~TracePanel() {
    model_->detach();
}

TracePanel::TracePanel(wxWindow* parent) : wxPanel(parent), model_(new Model(*this)), timer_(this) {
    auto* heading = new wxStaticText(this, wxID_ANY, "Between module and host");
    heading->SetFont(heading->GetFont().Bold());
    count_ = new wxStaticText(this, wxID_ANY, "");
    count_->SetForegroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT));
    fetches_ = new wxCheckBox(this, wxID_ANY, "&Fetched objects");
    filter_ = new wxSearchCtrl(this, wxID_ANY, "", wxDefaultPosition, FromDIP(wxSize(240, -1)));
    filter_->SetDescriptiveText("Filter calls");
    desktop::setAccessibleName(*filter_, "Filter calls");
    filter_->ShowCancelButton(true);
    auto* save = new wxButton(this, wxID_ANY, "&Save trace...");
    auto* clear = new wxButton(this, wxID_ANY, "C&lear");

    splitter_ = new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                     wxSP_LIVE_UPDATE | wxSP_NOBORDER, "TraceSplitter");
    auto* splitter = splitter_;
    list_ =
        new wxDataViewCtrl(splitter, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxDV_SINGLE | wxBORDER_NONE);
    desktop::setAccessibleName(*list_, "Calls between module and host");
    list_->AssociateModel(model_.get());
    const struct {
        const char* caption;
        int width;
        wxAlignment align;
    } columns[] = {{"#", 56, wxALIGN_RIGHT},
                   {"Member", 220, wxALIGN_LEFT},
                   {"Statement or arguments", 300, wxALIGN_LEFT},
                   {"Result", 120, wxALIGN_LEFT},
                   {"Time", 80, wxALIGN_RIGHT}};
    for (const auto& column : columns) {
        wxDataViewColumn* const made = list_->AppendTextColumn(
            column.caption, list_->GetColumnCount(), wxDATAVIEW_CELL_INERT,
            std::max(FromDIP(column.width), GetTextExtent(column.caption).x + FromDIP(20)), column.align,
            wxDATAVIEW_COL_RESIZABLE);
        made->GetRenderer()->EnableEllipsize(wxELLIPSIZE_END);
    }
    desktop::takeRemainingWidth(*list_->GetColumn(2));
    detail_ = new wxTextCtrl(splitter, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                             wxTE_READONLY | wxTE_MULTILINE | wxBORDER_NONE);
    detail_->SetFont(wxFont(wxFontInfo(detail_->GetFont().GetPointSize()).Family(wxFONTFAMILY_TELETYPE)));
    desktop::setAccessibleName(*detail_, "The selected call");
    splitter->SetMinimumPaneSize(FromDIP(50));
    splitter->SetSashGravity(0.75);
    splitter->SplitHorizontally(list_, detail_, -FromDIP(90));

    const int gap = FromDIP(8);
    auto* line = new wxWrapSizer(wxHORIZONTAL);  // a narrow window or large type gets a second line
    line->Add(heading, wxSizerFlags().CenterVertical());
    line->Add(count_, wxSizerFlags(1).CenterVertical().Border(wxLEFT | wxRIGHT, gap));
    line->Add(fetches_, wxSizerFlags().CenterVertical().Border(wxRIGHT, gap));
    line->Add(filter_, wxSizerFlags().CenterVertical().Border(wxRIGHT, gap));
    line->Add(save, wxSizerFlags().CenterVertical().Border(wxRIGHT, gap));
    line->Add(clear, wxSizerFlags().CenterVertical());
    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(line, wxSizerFlags().Expand().Border(wxALL, gap));
    column->Add(splitter, wxSizerFlags(1).Expand());
    SetSizer(column);
    // Lists and boxes that are lower than a line or two cannot be drawn.
    Bind(wxEVT_SIZE, [this, line](wxSizeEvent& event) {
        splitter_->Show(event.GetSize().y - line->GetMinSize().y > 6 * GetCharHeight());
        event.Skip();
    });

    filter_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { filter(); });
    filter_->Bind(wxEVT_SEARCH_CANCEL, [this](wxCommandEvent&) { filter_->Clear(); });
    fetches_->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent&) { filter(); });
    save->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { saveTrace(); });
    clear->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
        dropped_ += entries_.size();
        entries_.clear();
        filter();
    });
    list_->Bind(wxEVT_DATAVIEW_SELECTION_CHANGED, [this](wxDataViewEvent&) { showDetail(); });
    // There can be thousands of calls, so the pane is redrawn a few times per second, not at every call.
    Bind(wxEVT_TIMER, [this](wxTimerEvent&) { refresh(); });
    timer_.Start(150);
}

bool TracePanel::matches(const TraceEntry& entry) const {
    if (entry.fetch && !fetches_->GetValue()) return false;
    if (wanted_.empty()) return true;
    for (const std::string* field : {&entry.member, &entry.arguments, &entry.statement, &entry.result}) {
        if (text(*field).Lower().Contains(wanted_)) return true;
    }
    return false;
}

void TracePanel::add(const TraceEntry& entry) {
    entries_.push_back(entry);
    if (matches(entry)) shown_.push_back(dropped_ + entries_.size() - 1);
    if (entries_.size() > mostEntries) {
        entries_.pop_front();
        ++dropped_;
        if (!shown_.empty() && shown_.front() < dropped_) shown_.erase(shown_.begin());
    }
    changed_ = true;
}

const TraceEntry& TracePanel::entry(std::size_t row) const {
    return entries_[static_cast<std::size_t>(shown_.at(row) - dropped_)];
}

void TracePanel::filter() {
    filtered_ = true;
    wanted_ = filter_->GetValue().Lower();
    shown_.clear();
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        if (matches(entries_[i])) shown_.push_back(dropped_ + i);
    }
    changed_ = true;
    refresh();
}

void TracePanel::refresh() {
    if (!changed_) return;
    changed_ = false;
    const auto rows = static_cast<unsigned>(shown_.size());
    const bool onlyAdded =
        !shown_.empty() && firstShown_ == shown_.front() && model_->GetCount() <= rows && !filtered_;
    filtered_ = false;
    firstShown_ = shown_.empty() ? 0 : shown_.front();
    if (onlyAdded) {
        while (model_->GetCount() < rows)
            model_->RowAppended();
    } else {
        model_->Reset(rows);
    }
    if (rows > 0) list_->EnsureVisible(model_->GetItem(rows - 1));
    count_->SetLabelText(wxString::Format("%u of %zu calls", rows, entries_.size()));
    showDetail();
}

wxString TracePanel::detail(const TraceEntry& call) {
    return text(call.member) + "(" + text(call.arguments) + ")\n" +
           (call.statement.empty() ? wxString() : text(call.statement) + "\n") +
           (call.failed ? "raised: " : "returned: ") + text(call.result) + "\n" + duration(call);
}

void TracePanel::showDetail() {
    const wxDataViewItem item = list_->GetSelection();
    const unsigned row = item.IsOk() ? model_->GetRow(item) : UINT_MAX;
    const wxString shown = row < shown_.size() ? detail(entry(row)) : wxString();
    if (shown != detail_->GetValue()) detail_->ChangeValue(shown);
}

/// Writes the calls that the pane shows, one after another, each as in the pane below the list.
void TracePanel::saveTrace() {
    wxFileDialog dialog(this, "Save Trace", "", "Trace.txt", "Text Files (*.txt)|*.txt|All Files (*.*)|*.*",
                        wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
    if (dialog.ShowModal() != wxID_OK) return;
    std::ofstream file(std::filesystem::path(dialog.GetPath().utf8_string()), std::ios::binary);
    for (std::size_t row = 0; row < shown_.size(); ++row) {
        const TraceEntry& call = entry(row);
        file << call.number << "  " << std::string(static_cast<std::size_t>(call.depth) * 2, ' ')
             << detail(call).utf8_string() << "\n\n";
    }
    if (!file.flush())
        wxMessageBox("The file could not be written.", "Save Trace", wxOK | wxICON_ERROR, this);
}

}  // namespace tsln::workbench
