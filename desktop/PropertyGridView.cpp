#include <algorithm>

#include <wx/dataview.h>
#include <wx/panel.h>
#include <wx/settings.h>
#include <wx/sizer.h>

#include "desktop/ControlView.h"
#include "desktop/NativeGrid.h"
#include "desktop/ReportTexts.h"
#include "desktop/Text.h"
#include "screens/PropertyGrid.h"

namespace tsln::desktop {
namespace {

constexpr int leastWidth = 260;  // pixels at 96 per inch
constexpr int leastHeight = 140;
constexpr int firstWidth = 360;
constexpr int firstHeight = 300;
constexpr int captionWidth = 180;
constexpr int levelWidth = 20;  // the indentation of an item within a category
constexpr int captionMargin = 16;

/// Hands the grid's items to the toolkit's tree, which knows each by its index plus one.
class ItemModel : public wxDataViewModel {
  public:
    explicit ItemModel(const PropertyGrid& grid) : grid_(&grid) {}
    /// The grid is being destroyed.
    void detach() { grid_ = nullptr; }

    static wxDataViewItem itemAt(std::size_t index) {
        return wxDataViewItem(reinterpret_cast<void*>(index + 1));
    }
    wxDataViewItem parentOf(std::size_t index) const {
        const auto& parent = grid_->items()[index].parent;
        return parent ? itemAt(*parent) : wxDataViewItem();
    }
    /// The first `count` items are those that the tree knows.
    void show(std::size_t count) { shown_ = count; }

  private:
    const PropertyGrid::Item* find(const wxDataViewItem& item) const {
        const auto index = reinterpret_cast<std::size_t>(item.GetID()) - 1;
        return grid_ && item.IsOk() && index < grid_->items().size() ? &grid_->items()[index] : nullptr;
    }

    void GetValue(wxVariant& value, const wxDataViewItem& item, unsigned column) const override {
        const PropertyGrid::Item* const found = find(item);
        value = found ? onOneLine(column == 0 ? found->caption : found->value) : wxString();
    }
    bool SetValue(const wxVariant&, const wxDataViewItem&, unsigned) override { return false; }
    bool GetAttr(const wxDataViewItem& item, unsigned, wxDataViewItemAttr& attr) const override {
        if (!IsContainer(item)) return false;
        attr.SetBold(true);
        return true;
    }
    wxDataViewItem GetParent(const wxDataViewItem& item) const override {
        const PropertyGrid::Item* const found = find(item);
        return found && found->parent ? itemAt(*found->parent) : wxDataViewItem();
    }
    bool IsContainer(const wxDataViewItem& item) const override {
        const PropertyGrid::Item* const found = find(item);
        return !item.IsOk() || (found && found->isCategory);
    }
    unsigned GetChildren(const wxDataViewItem& item, wxDataViewItemArray& children) const override {
        for (std::size_t i = 0; grid_ && i < shown_; ++i) {
            if (parentOf(i) == item) children.push_back(itemAt(i));
        }
        return static_cast<unsigned>(children.size());
    }

    const PropertyGrid* grid_;
    std::size_t shown_ = 0;
};

class PropertyGridView : public ControlView {
  public:
    PropertyGridView(ScreenDialog& dialog, wxWindow* parent, PropertyGrid& grid)
        : ControlView(dialog, grid),
          grid_(grid),
          model_(new ItemModel(grid)),
          border_(new wxPanel(parent)),
          tree_(new wxDataViewCtrl(border_, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                   wxDV_SINGLE | wxBORDER_NONE)) {
        setWindow(border_);
        border_->SetMinSize(border_->FromDIP(wxSize(leastWidth, leastHeight)));
        border_->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_3DSHADOW));
        auto* sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(tree_, wxSizerFlags(1).Expand().Border(wxALL, 1));
        border_->SetSizer(sizer);
        tree_->AssociateModel(model_.get());
        captionsWidth_ = tree_->FromDIP(captionWidth);
        captions_ =
            tree_->AppendTextColumn("Property", 0, wxDATAVIEW_CELL_INERT, captionsWidth_, wxALIGN_LEFT);
        wxDataViewColumn* const values = tree_->AppendTextColumn("Value", 1, wxDATAVIEW_CELL_INERT,
                                                                 tree_->FromDIP(captionWidth), wxALIGN_LEFT);
        for (wxDataViewColumn* column : {captions_, values})
            column->GetRenderer()->EnableEllipsize(wxELLIPSIZE_END);
        tree_->SetExpanderColumn(captions_);
        takeRemainingWidth(*values);
    }
    ~PropertyGridView() override { model_->detach(); }

    wxWindow& inputWindow() const override { return *tree_; }
    bool growsWide() const override { return true; }
    bool growsHigh() const override { return true; }
    wxSize preferredSize() const override { return border_->FromDIP(wxSize(firstWidth, firstHeight)); }

  private:
    void updateContent() override {
        if (clearings_ != grid_.clearings()) {
            clearings_ = grid_.clearings();
            shown_ = 0;
            model_->show(0);
            model_->Cleared();
        }
        while (shown_ < grid_.items().size()) {
            const std::size_t index = shown_++;
            const wxDataViewItem item = ItemModel::itemAt(index), parent = model_->parentOf(index);
            model_->show(shown_);
            model_->ItemAdded(parent, item);
            if (parent.IsOk()) tree_->Expand(parent);
            widenFor(index);
        }
    }

    /// Widens the column of captions to show the item's caption in full, unless it would take most of the grid.
    void widenFor(std::size_t index) {
        const PropertyGrid::Item& item = grid_.items()[index];
        const wxFont font = item.isCategory ? tree_->GetFont().Bold() : tree_->GetFont();
        int width = 0;
        tree_->GetTextExtent(toWx(item.caption), &width, nullptr, nullptr, nullptr, &font);
        int levels = 1;
        for (auto parent = item.parent; parent; parent = grid_.items()[*parent].parent)
            ++levels;
        width += tree_->FromDIP(captionMargin + levels * levelWidth);
        const int most = std::max(tree_->GetClientSize().x, border_->GetMinSize().x) * 3 / 5;
        width = std::min(width, most);
        if (width <= captionsWidth_) return;
        captionsWidth_ = width;
        captions_->SetWidth(width);
    }

    PropertyGrid& grid_;
    wxObjectDataPtr<ItemModel> model_;
    wxPanel* border_;
    wxDataViewCtrl* tree_;
    wxDataViewColumn* captions_ = nullptr;
    int captionsWidth_ = 0;  // as set last; the column itself changes later
    std::size_t shown_ = 0;  // of the grid's items
    int clearings_ = 0;
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, PropertyGrid& grid) {
    return std::make_unique<PropertyGridView>(dialog, parent, grid);
}

}  // namespace tsln::desktop
