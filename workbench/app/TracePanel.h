#pragma once

#include <deque>
#include <vector>

#include <wx/dataview.h>
#include <wx/splitter.h>
#include <wx/srchctrl.h>
#include <wx/timer.h>
#include <wx/wx.h>

#include "workbench/host/Trace.h"

namespace tsln::workbench {

/// Shows the calls between module and host as they happen, with a filter. It keeps the newest 20,000 calls. Fetches
/// of sub-objects are hidden by default.
class TracePanel : public wxPanel {
  public:
    explicit TracePanel(wxWindow* parent);
    ~TracePanel() override;

    void add(const TraceEntry& entry);
    wxDataViewCtrl& list() const { return *list_; }
    wxSplitterWindow& splitter() const { return *splitter_; }

  private:
    class Model;

    /// The call in a row of the list; the row must exist.
    const TraceEntry& entry(std::size_t row) const;
    static wxString detail(const TraceEntry& call);
    void saveTrace();
    bool matches(const TraceEntry& entry) const;
    void filter();
    void refresh();
    void showDetail();

    std::deque<TraceEntry> entries_;
    std::vector<std::uint64_t> shown_;  // the numbers of the matching entries, ascending
    std::uint64_t dropped_ = 0;         // the number of entries removed from the front of entries_
    wxString wanted_;
    bool changed_ = false;
    bool filtered_ = false;         // the rows are others than before, not only more
    std::uint64_t firstShown_ = 0;  // the number in the first row of the list

    wxSearchCtrl* filter_;
    wxCheckBox* fetches_;
    wxStaticText* count_;
    wxObjectDataPtr<Model> model_;
    wxDataViewCtrl* list_;
    wxSplitterWindow* splitter_;
    wxTextCtrl* detail_;
    wxTimer timer_;
};

}  // namespace tsln::workbench
