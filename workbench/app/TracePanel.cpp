#include "workbench/app/TracePanel.h"

#include <algorithm>

#include <wx/splitter.h>

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

/// The calls as rows of a virtual list: only visible rows are drawn, so their number does not matter.
class TracePanel::List : public wxListCtrl {
  public:
    explicit List(TracePanel* panel, wxWindow* parent)
        : wxListCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                     wxLC_REPORT | wxLC_VIRTUAL | wxLC_SINGLE_SEL | wxBORDER_NONE),
          panel_(panel) {
        SetName("Calls between module and host");
        const struct {
            const char* caption;
            int width;
            wxListColumnFormat format;
        } columns[] = {{"#", 56, wxLIST_FORMAT_RIGHT},
                       {"Member", 220, wxLIST_FORMAT_LEFT},
                       {"Statement or arguments", 300, wxLIST_FORMAT_LEFT},
                       {"Result", 120, wxLIST_FORMAT_LEFT},
                       {"Time", 80, wxLIST_FORMAT_RIGHT}};
        for (const auto& column : columns)
            AppendColumn(column.caption, column.format, FromDIP(column.width));
        failed_.SetTextColour(wxColour(0xB0, 0x20, 0x20));
        Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
            event.Skip();
            CallAfter([this] { widenStatements(); });
        });
    }

    const TraceEntry& entry(long row) const {
        const std::uint64_t number = panel_->shown_.at(static_cast<std::size_t>(row));
        return panel_->entries_[static_cast<std::size_t>(number - panel_->dropped_)];
    }

  private:
    wxString OnGetItemText(long row, long column) const override {
        const TraceEntry& call = entry(row);
        switch (column) {
            case 0:
                return wxString::Format("%llu", static_cast<unsigned long long>(call.number));
            case 1:
                return wxString(' ', static_cast<std::size_t>(call.depth) * 2) + text(call.member);
            case 2:
                return arguments(call);
            case 3:
                return text(call.result);
            default:
                return duration(call);
        }
    }
    /// The column of statements takes the width that the other columns leave.
    void widenStatements() {
        int others = FromDIP(20);  // the scroll bar
        for (const int column : {0, 1, 3, 4})
            others += GetColumnWidth(column);
        SetColumnWidth(2, std::max(FromDIP(200), GetClientSize().x - others));
    }
    wxListItemAttr* OnGetItemAttr(long row) const override { return entry(row).failed ? &failed_ : nullptr; }

    TracePanel* panel_;
    mutable wxListItemAttr failed_;
};

TracePanel::TracePanel(wxWindow* parent) : wxPanel(parent), timer_(this) {
    auto* heading = new wxStaticText(this, wxID_ANY, "Between module and host");
    heading->SetFont(heading->GetFont().Bold());
    count_ = new wxStaticText(this, wxID_ANY, "");
    count_->SetForegroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT));
    fetches_ = new wxCheckBox(this, wxID_ANY, "&Fetched objects");
    filter_ = new wxSearchCtrl(this, wxID_ANY, "", wxDefaultPosition, FromDIP(wxSize(240, -1)));
    filter_->SetDescriptiveText("Filter calls");
    filter_->SetName("Filter calls");
    filter_->ShowCancelButton(true);
    auto* clear = new wxButton(this, wxID_ANY, "C&lear");

    auto* splitter = new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                          wxSP_LIVE_UPDATE | wxSP_NOBORDER);
    list_ = new List(this, splitter);
    detail_ = new wxTextCtrl(splitter, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                             wxTE_READONLY | wxTE_MULTILINE | wxBORDER_NONE);
    detail_->SetFont(wxFont(wxFontInfo(detail_->GetFont().GetPointSize()).Family(wxFONTFAMILY_TELETYPE)));
    detail_->SetName("The selected call");
    splitter->SetMinimumPaneSize(FromDIP(50));
    splitter->SetSashGravity(0.75);
    splitter->SplitHorizontally(list_, detail_, -FromDIP(90));

    const int gap = FromDIP(8);
    auto* line = new wxBoxSizer(wxHORIZONTAL);
    line->Add(heading, wxSizerFlags().CenterVertical());
    line->Add(count_, wxSizerFlags(1).CenterVertical().Border(wxLEFT, gap));
    line->Add(fetches_, wxSizerFlags().CenterVertical().Border(wxRIGHT, gap));
    line->Add(filter_, wxSizerFlags().CenterVertical().Border(wxRIGHT, gap));
    line->Add(clear, wxSizerFlags().CenterVertical());
    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(line, wxSizerFlags().Expand().Border(wxALL, gap));
    column->Add(splitter, wxSizerFlags(1).Expand());
    SetSizer(column);

    filter_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { filter(); });
    filter_->Bind(wxEVT_SEARCH_CANCEL, [this](wxCommandEvent&) { filter_->Clear(); });
    fetches_->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent&) { filter(); });
    clear->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
        dropped_ += entries_.size();
        entries_.clear();
        filter();
    });
    list_->Bind(wxEVT_LIST_ITEM_SELECTED, [this](wxListEvent&) { showDetail(); });
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

void TracePanel::filter() {
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
    const long rows = static_cast<long>(shown_.size());
    list_->SetItemCount(rows);
    if (rows > 0) list_->EnsureVisible(rows - 1);
    list_->Refresh();
    count_->SetLabelText(wxString::Format("%ld of %zu calls", rows, entries_.size()));
    showDetail();
}

void TracePanel::showDetail() {
    const long row = list_->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
    if (row < 0 || row >= static_cast<long>(shown_.size())) return detail_->ChangeValue("");
    const TraceEntry& call = list_->entry(row);
    detail_->ChangeValue(text(call.member) + "(" + text(call.arguments) + ")\n" +
                         (call.statement.empty() ? wxString() : text(call.statement) + "\n") +
                         (call.failed ? "raised: " : "returned: ") + text(call.result) + "\n" +
                         duration(call));
}

}  // namespace tsln::workbench
