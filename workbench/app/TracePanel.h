#pragma once

#include <deque>
#include <vector>

#include <wx/listctrl.h>
#include <wx/srchctrl.h>
#include <wx/timer.h>
#include <wx/wx.h>

#include "workbench/host/Trace.h"

namespace tsln::workbench {

/// The live pane: what passes between module and host, as it happens, with a filter. It keeps the newest
/// 20,000 calls; the fetching of sub-objects is left out unless asked for.
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
    std::vector<std::uint64_t> shown_;  // numbers of the entries that match, ascending
    std::uint64_t dropped_ = 0;         // how many entries have left entries_ at its front
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
