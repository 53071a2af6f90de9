#include "workbench/app/OperationTree.h"

#include <wx/wupdlock.h>

#include "workbench/tour/OperationGroups.h"

namespace tsln::workbench {
namespace {

class OperationItem : public wxTreeItemData {
  public:
    explicit OperationItem(Operation shown) : operation(shown) {}
    const Operation operation;
};

}  // namespace

OperationTree::OperationTree(wxWindow* parent) : wxPanel(parent) {
    search_ = new wxSearchCtrl(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxTE_PROCESS_ENTER);
    search_->SetDescriptiveText("Search operations");
    search_->SetName("Search operations");
    search_->ShowCancelButton(true);
    tree_ = new wxTreeCtrl(
        this, wxID_ANY, wxDefaultPosition, wxDefaultSize,
        wxTR_HIDE_ROOT | wxTR_HAS_BUTTONS | wxTR_NO_LINES | wxTR_SINGLE | wxTR_FULL_ROW_HIGHLIGHT);
    tree_->SetName("Operations");

    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(search_, wxSizerFlags().Expand().Border(wxALL, FromDIP(8)));
    column->Add(tree_, wxSizerFlags(1).Expand());
    SetSizer(column);

    search_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { fill(); });
    search_->Bind(wxEVT_TEXT_ENTER, [this](wxCommandEvent&) { openSelected(); });
    search_->Bind(wxEVT_SEARCH, [this](wxCommandEvent&) { openSelected(); });
    search_->Bind(wxEVT_SEARCH_CANCEL, [this](wxCommandEvent&) { search_->Clear(); });
    tree_->Bind(wxEVT_TREE_SEL_CHANGED, [this](wxTreeEvent&) {
        if (const auto operation = selected(); operation && onSelect) onSelect(*operation);
    });
    tree_->Bind(wxEVT_TREE_ITEM_ACTIVATED, [this](wxTreeEvent&) { openSelected(); });
    fill();
}

void OperationTree::fill() {
    const wxWindowUpdateLocker noFlicker(tree_);
    tree_->DeleteAllItems();
    const wxTreeItemId root = tree_->AddRoot("");
    wxTreeItemId first;
    for (const OperationGroup& group : findOperations(search_->GetValue().utf8_string())) {
        const wxTreeItemId parent =
            tree_->AppendItem(root, wxString::FromUTF8(group.caption.data(), group.caption.size()));
        tree_->SetItemBold(parent);
        for (const Operation operation : group.operations) {
            const std::string_view name = info(operation).name;
            const wxTreeItemId item = tree_->AppendItem(parent, wxString::FromUTF8(name.data(), name.size()),
                                                        -1, -1, new OperationItem(operation));
            if (info(operation).visibility != Visibility::Public) {
                tree_->SetItemTextColour(item, wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT));
            }
            if (!first.IsOk()) first = item;
        }
    }
    tree_->ExpandAll();
    if (first.IsOk()) {
        tree_->SelectItem(first);
        tree_->EnsureVisible(tree_->GetItemParent(first));
    }
}

std::optional<Operation> OperationTree::selected() const {
    const wxTreeItemId item = tree_->GetSelection();
    if (!item.IsOk()) return std::nullopt;
    const auto* data = dynamic_cast<OperationItem*>(tree_->GetItemData(item));
    return data ? std::optional(data->operation) : std::nullopt;
}

void OperationTree::openSelected() {
    if (const auto operation = selected(); operation && onOpen) onOpen(*operation);
}

}  // namespace tsln::workbench
