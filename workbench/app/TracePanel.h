#pragma once

#include <deque>
#include <vector>

#include <wx/listctrl.h>
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

    void add(const TraceEntry& entry);

  private:
    class List;

    bool matches(const TraceEntry& entry) const;
    void filter();
    void refresh();
    void showDetail();

    std::deque<TraceEntry> entries_;
    std::vector<std::uint64_t> shown_;  // the numbers of the matching entries, ascending
    std::uint64_t dropped_ = 0;         // the number of entries removed from the front of entries_
    wxString wanted_;
    bool changed_ = false;

    wxSearchCtrl* filter_;
    wxCheckBox* fetches_;
    wxStaticText* count_;
    List* list_;
    wxTextCtrl* detail_;
    wxTimer timer_;
};

}  // namespace tsln::workbench
