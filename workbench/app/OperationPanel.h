#pragma once

#include <functional>
#include <string>
#include <vector>

#include <wx/wx.h>

#include "automation/Object.h"
#include "bridge/Operations.h"

class wxFlexGridSizer;

namespace tsln::workbench {

/// Shows one operation of the library, lets the user type its arguments, and calls it by name, like any host.
class OperationPanel : public wxPanel {
  public:
    /// `sharedCode` is passed for an argument of the type Object.
    OperationPanel(wxWindow* parent, ObjectPtr library, ObjectPtr sharedCode);

    void show(Operation operation);
    /// Calls the operation with the typed arguments and shows its result or its error.
    void run();

    /// `canBrowse` tells whether the operation edits records that a list can show; `onBrowse` shows that list.
    std::function<bool(Operation)> canBrowse;
    std::function<void(Operation)> onBrowse;

  private:
    void showResult(const wxString& text, bool failed);
    Argument argument(std::size_t i) const;

    ObjectPtr library_;
    ObjectPtr sharedCode_;
    const OperationInfo* operation_ = nullptr;
    wxStaticText* name_;
    wxStaticText* signature_;
    wxFlexGridSizer* fields_;
    std::vector<wxTextCtrl*> arguments_;
    wxButton* open_;
    wxButton* browse_;
    wxTextCtrl* result_;
};

}  // namespace tsln::workbench
