#include "workbench/app/WorkbenchFrame.h"

#include <algorithm>

#include <wx/splitter.h>

#include "workbench/app/OperationPanel.h"
#include "workbench/app/OperationTree.h"
#include "workbench/app/RecordBrowser.h"
#include "workbench/app/TracePanel.h"

namespace tsln::workbench {

WorkbenchFrame::WorkbenchFrame(CompanySession& session, const ObjectPtr& library)
    : wxFrame(nullptr, wxID_ANY, "Tessaline Workbench") {
    auto* across = new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxSP_LIVE_UPDATE);
    tree_ = new OperationTree(across);
    auto* down = new wxSplitterWindow(across, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxSP_LIVE_UPDATE);
    operation_ = new OperationPanel(down, library, session.sharedCode());
    trace_ = new TracePanel(down);
    for (wxSplitterWindow* splitter : {across, down})
        splitter->SetMinimumPaneSize(FromDIP(120));
    SetClientSize(FromDIP(wxSize(1140, 720)));
    down->SplitHorizontally(operation_, trace_, FromDIP(150));
    across->SplitVertically(tree_, down, FromDIP(310));
    down->SetSashGravity(0.0);

    CreateStatusBar(2);
    const int widths[] = {-3, -1};
    SetStatusWidths(2, widths);
    SetStatusText(
        wxString::FromUTF8(session.company().path() + (session.company().readOnly() ? "  (read-only)" : "")));
    SetStatusText(wxString::FromUTF8("User: " + session.user().name), 1);

    tree_->onSelect = [this, down](Operation operation) {
        operation_->show(operation);
        down->SetSashPosition(std::max(down->GetSashPosition(), operation_->GetBestSize().y));
    };
    tree_->onOpen = [this](Operation operation) {
        operation_->show(operation);
        operation_->run();
    };
    operation_->canBrowse = [](Operation operation) { return recordKindOf(operation) != nullptr; };
    operation_->onBrowse = [this, &session, library](Operation operation) {
        RecordBrowser(this, session, library, *recordKindOf(operation)).ShowModal();
    };
    if (const auto first = tree_->selected()) operation_->show(*first);
    session.tracer()->observe([this](const TraceEntry& entry) { trace_->add(entry); });
    CentreOnScreen();
    tree_->focusSearch();
}

}  // namespace tsln::workbench
