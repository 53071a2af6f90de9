#pragma once

#include <wx/srchctrl.h>
#include <wx/wx.h>

#include "automation/Object.h"
#include "workbench/app/RecordTable.h"
#include "workbench/host/CompanySession.h"

namespace tsln::workbench {

/// Lists the company's records of one kind for opening, and the activity history of the selected one.
class RecordBrowser : public wxDialog {
  public:
    /// `session` and `kind` must outlive the browser.
    RecordBrowser(wxWindow* owner, CompanySession& session, ObjectPtr library, const RecordKind& kind);

  private:
    /// Reads the records again and selects the one with the identifier.
    void fill(std::int32_t selected);
    void find(std::int32_t selected);
    void showHistory();
    /// Opens the editor on the record (0: on a new one) and shows the changed record.
    void edit(std::int32_t ID);
    /// The selected record's identifier, 0 without one.
    std::int32_t selected() const;
    void complain(const std::exception& error);

    CompanySession& session_;
    ObjectPtr library_;
    const RecordKind& kind_;
    wxSearchCtrl* search_;
    RecordTable* list_;
    wxTextCtrl* history_;
    wxButton* edit_;
};

}  // namespace tsln::workbench
