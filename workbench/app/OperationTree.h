#pragma once

#include <functional>
#include <optional>

#include <wx/dataview.h>
#include <wx/srchctrl.h>
#include <wx/wx.h>

#include "bridge/Operations.h"

namespace tsln::workbench {

/// The operations of the library in groups, each with its caption and its name, and a search field that filters them.
class OperationTree : public wxPanel {
  public:
    explicit OperationTree(wxWindow* parent);

    std::function<void(Operation)> onSelect;
    /// Called for Enter or a double click on an operation, and for Enter in the search field.
    std::function<void(Operation)> onOpen;

    std::optional<Operation> selected() const;
    /// Selects an operation that the tree shows.
    void select(Operation operation);
    void focusSearch() { search_->SetFocus(); }

  private:
    class Model;

    void fill();
    void openSelected();

    wxSearchCtrl* search_;
    wxDataViewCtrl* tree_;
    wxObjectDataPtr<Model> model_;
};

}  // namespace tsln::workbench
