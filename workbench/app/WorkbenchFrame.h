#pragma once

#include <wx/wx.h>

#include "automation/Object.h"
#include "workbench/host/CompanySession.h"

class wxSplitterWindow;

namespace tsln::workbench {

class OperationPanel;
class OperationTree;
class TracePanel;

/// The workbench's window: the operations of the module's library on the left, the chosen operation with its
/// arguments on the right, and below it the calls between module and host.
class WorkbenchFrame : public wxFrame {
  public:
    /// `library` must be initialized. The session must outlive the frame.
    WorkbenchFrame(CompanySession& session, const ObjectPtr& library);
    ~WorkbenchFrame() override;

    /// Restores the place, size, splitters, column widths and the operation that the window had when it was last
    /// closed, and stores them at its end, in the current wxConfigBase.
    void remember();

  private:
    bool remembers_ = false;
    wxSplitterWindow* across_;
    wxSplitterWindow* down_;
    OperationTree* tree_;
    OperationPanel* operation_;
    TracePanel* trace_;
};

}  // namespace tsln::workbench
