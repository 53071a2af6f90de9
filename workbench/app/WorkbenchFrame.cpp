#include "workbench/app/WorkbenchFrame.h"

#include <algorithm>

#include <wx/config.h>
#include <wx/display.h>
#include <wx/persist/dataview.h>
#include <wx/persist/splitter.h>
#include <wx/persist/toplevel.h>
#include <wx/splitter.h>

#include "workbench/app/BulkSelection.h"
#include "workbench/app/OperationPanel.h"
#include "workbench/app/OperationTree.h"
#include "workbench/app/RecordBrowser.h"
#include "workbench/app/TracePanel.h"

namespace tsln::workbench {
namespace {

constexpr const char* lastOperation = "/Workbench/LastOperation";

}  // namespace

WorkbenchFrame::WorkbenchFrame(CompanySession& session, const ObjectPtr& library)
    : wxFrame(nullptr, wxID_ANY, "Tessaline Workbench") {
    across_ = new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxSP_LIVE_UPDATE);
    tree_ = new OperationTree(across_);
    down_ = new wxSplitterWindow(across_, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxSP_LIVE_UPDATE);
    operation_ = new OperationPanel(down_, library, session.sharedCode());
    trace_ = new TracePanel(down_);
    for (wxSplitterWindow* splitter : {across_, down_})
        splitter->SetMinimumPaneSize(FromDIP(120));
    wxSize size = FromDIP(wxSize(1240, 760));
    size.DecTo(wxDisplay(this).GetClientArea().GetSize() -
               wxSize(0, 4 * GetCharHeight()));  // title and status bars
    SetClientSize(size);
    down_->SplitHorizontally(operation_, trace_, FromDIP(200));
    across_->SplitVertically(tree_, down_, std::min(FromDIP(420), size.x * 2 / 5));
    down_->SetSashGravity(0.0);

    CreateStatusBar(2);
    const int widths[] = {-3, -1};
    SetStatusWidths(2, widths);
    SetStatusText(
        wxString::FromUTF8(session.company().path() + (session.company().readOnly() ? "  (read-only)" : "")));
    SetStatusText(wxString::FromUTF8("User: " + session.user().name), 1);

    tree_->onSelect = [this](Operation operation) {
        operation_->show(operation);
        down_->SetSashPosition(std::max(down_->GetSashPosition(), operation_->GetBestSize().y));
    };
    tree_->onOpen = [this](Operation operation) {
        operation_->show(operation);
        operation_->run();
        tree_->focusSearch();  // the keyboard was lost while the window was disabled
    };
    operation_->canBrowse = [](Operation operation) {
        return recordKindOf(operation) != nullptr || operation == Operation::ShowBulkChange;
    };
    operation_->onBrowse = [this, &session, library](Operation operation) {
        if (operation == Operation::ShowBulkChange) return selectForBulkChange(this, session, *library);
        RecordBrowser(this, session, library, *recordKindOf(operation)).ShowModal();
        tree_->focusSearch();
    };
    if (const auto first = tree_->selected()) operation_->show(*first);
    session.tracer()->observe([this](const TraceEntry& entry) { trace_->add(entry); });
    CentreOnScreen();
    Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& key) {
        if (key.GetKeyCode() != 'F' || key.GetModifiers() != wxMOD_CONTROL) return key.Skip();
        tree_->focusSearch();
    });
    tree_->focusSearch();
}

WorkbenchFrame::~WorkbenchFrame() {
    if (!remembers_) return;
    if (const auto operation = tree_->selected())
        wxConfigBase::Get()->Write(lastOperation, wxString::FromUTF8(std::string(info(*operation).name)));
}

void WorkbenchFrame::remember() {
    remembers_ = true;
    wxPersistentRegisterAndRestore(this, "Workbench");
    wxPersistentRegisterAndRestore(across_, "Across");
    wxPersistentRegisterAndRestore(down_, "Down");
    wxPersistentRegisterAndRestore(&trace_->splitter(), "Trace");
    wxPersistentRegisterAndRestore(&trace_->list(), "Calls");
    const std::string last = wxConfigBase::Get()->Read(lastOperation).utf8_string();
    if (const auto operation = findOperation(last)) tree_->select(*operation);
}

}  // namespace tsln::workbench
