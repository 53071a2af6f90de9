#pragma once

#include <functional>
#include <optional>

#include <wx/srchctrl.h>
#include <wx/treectrl.h>
#include <wx/wx.h>

#include "bridge/Operations.h"

namespace tsln::workbench {

/// The operations of the library in groups, with a search field that filters them.
class OperationTree : public wxPanel {
  public:
    explicit OperationTree(wxWindow* parent);

    std::function<void(Operation)> onSelect;
    /// Called for Enter or a double click on an operation, and for Enter in the search field.
    std::function<void(Operation)> onOpen;

    std::optional<Operation> selected() const;
    void focusSearch() { search_->SetFocus(); }

  private:
    void fill();
    void openSelected();

    wxSearchCtrl* search_;
    wxTreeCtrl* tree_;
};

}  // namespace tsln::workbench
