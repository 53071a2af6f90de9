#include "workbench/app/OperationTree.h"

#include "desktop/NativeWindow.h"
#include "desktop/Text.h"
#include "workbench/tour/OperationGroups.h"

namespace tsln::workbench {

using desktop::toWx;

/// The found groups and their operations. The toolkit knows a group by its number from 1 on, an operation by its own
/// number behind those of all possible groups.
class OperationTree::Model : public wxDataViewModel {
  public:
    void show(std::vector<OperationGroup> groups) {
        groups_ = std::move(groups);
        Cleared();
    }
    const std::vector<OperationGroup>& groups() const noexcept { return groups_; }

    static wxDataViewItem itemOf(Operation operation) {
        return wxDataViewItem(reinterpret_cast<void*>(firstOperation + static_cast<std::size_t>(operation)));
    }
    static wxDataViewItem groupItem(std::size_t group) {
        return wxDataViewItem(reinterpret_cast<void*>(group + 1));
    }
    static std::optional<Operation> operationOf(const wxDataViewItem& item) {
        const std::size_t number = numberOf(item);
        if (number < firstOperation) return std::nullopt;
        return static_cast<Operation>(number - firstOperation);
    }

  private:
    static constexpr std::size_t firstOperation = 1000;

    static std::size_t numberOf(const wxDataViewItem& item) {
        return reinterpret_cast<std::size_t>(item.GetID());
    }

    const ListedOperation* find(Operation operation, std::size_t& group) const {
        for (group = 0; group < groups_.size(); ++group) {
            for (const ListedOperation& listed : groups_[group].operations) {
                if (listed.operation == operation) return &listed;
            }
        }
        return nullptr;
    }

    void GetValue(wxVariant& value, const wxDataViewItem& item, unsigned column) const override {
        value = wxString();
        std::size_t group = 0;
        if (const auto operation = operationOf(item)) {
            const ListedOperation* const listed = find(*operation, group);
            if (listed) value = toWx(std::string(column == 0 ? listed->caption : info(*operation).name));
        } else if (item.IsOk() && column == 0 && numberOf(item) <= groups_.size()) {
            value = toWx(std::string(groups_[numberOf(item) - 1].caption));
        }
    }
    bool SetValue(const wxVariant&, const wxDataViewItem&, unsigned) override { return false; }
    bool GetAttr(const wxDataViewItem& item, unsigned, wxDataViewItemAttr& attr) const override {
        const auto operation = operationOf(item);
        if (!operation) {
            attr.SetBold(true);
        } else if (info(*operation).visibility != Visibility::Public) {
            attr.SetColour(wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT));
        }
        return !attr.IsDefault();
    }
    wxDataViewItem GetParent(const wxDataViewItem& item) const override {
        std::size_t group = 0;
        const auto operation = operationOf(item);
        return operation && find(*operation, group) ? groupItem(group) : wxDataViewItem();
    }
    bool IsContainer(const wxDataViewItem& item) const override { return !operationOf(item); }
    unsigned GetChildren(const wxDataViewItem& item, wxDataViewItemArray& children) const override {
        if (!item.IsOk()) {
            for (std::size_t group = 0; group < groups_.size(); ++group)
                children.push_back(groupItem(group));
        } else if (numberOf(item) <= groups_.size()) {
            for (const ListedOperation& listed : groups_[numberOf(item) - 1].operations)
                children.push_back(itemOf(listed.operation));
        }
        return static_cast<unsigned>(children.size());
    }

    std::vector<OperationGroup> groups_;
};

OperationTree::OperationTree(wxWindow* parent) : wxPanel(parent), model_(new Model) {
    search_ = new wxSearchCtrl(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxTE_PROCESS_ENTER);
    search_->SetDescriptiveText("Search operations");
    desktop::setAccessibleName(*search_, "Search operations");
    search_->ShowCancelButton(true);
    tree_ = new wxDataViewCtrl(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxDV_SINGLE | wxBORDER_NONE);
    desktop::setAccessibleName(*tree_, "Operations");
    tree_->AssociateModel(model_.get());
    constexpr int resizable = wxDATAVIEW_COL_RESIZABLE;
    tree_->SetExpanderColumn(
        tree_->AppendTextColumn("Screen", 0, wxDATAVIEW_CELL_INERT, FromDIP(230), wxALIGN_LEFT, resizable));
    tree_->AppendTextColumn("Operation", 1, wxDATAVIEW_CELL_INERT, FromDIP(200), wxALIGN_LEFT, resizable);

    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(search_, wxSizerFlags().Expand().Border(wxALL, FromDIP(8)));
    column->Add(tree_, wxSizerFlags(1).Expand());
    SetSizer(column);

    search_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { fill(); });
    search_->Bind(wxEVT_TEXT_ENTER, [this](wxCommandEvent&) { openSelected(); });
    search_->Bind(wxEVT_SEARCH, [this](wxCommandEvent&) { openSelected(); });
    search_->Bind(wxEVT_SEARCH_CANCEL, [this](wxCommandEvent&) { search_->Clear(); });
    tree_->Bind(wxEVT_DATAVIEW_SELECTION_CHANGED, [this](wxDataViewEvent&) {
        if (const auto operation = selected(); operation && onSelect) onSelect(*operation);
    });
    tree_->Bind(wxEVT_DATAVIEW_ITEM_ACTIVATED, [this](wxDataViewEvent&) { openSelected(); });
    fill();
}

void OperationTree::fill() {
    model_->show(findOperations(search_->GetValue().utf8_string()));
    for (std::size_t group = 0; group < model_->groups().size(); ++group)
        tree_->Expand(Model::groupItem(group));
    if (!model_->groups().empty()) select(model_->groups().front().operations.front().operation);
}

void OperationTree::select(Operation operation) {
    const wxDataViewItem item = Model::itemOf(operation);
    tree_->Select(item);
    tree_->SetCurrentItem(item);
    tree_->EnsureVisible(item);
    if (onSelect) onSelect(operation);  // the toolkit tells only the user's own selection
}

std::optional<Operation> OperationTree::selected() const {
    return Model::operationOf(tree_->GetSelection());
}

void OperationTree::openSelected() {
    if (const auto operation = selected(); operation && onOpen) onOpen(*operation);
}

}  // namespace tsln::workbench
