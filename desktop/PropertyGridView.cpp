#include <wx/panel.h>
#include <wx/propgrid/propgrid.h>
#include <wx/settings.h>
#include <wx/sizer.h>

#include "desktop/ControlView.h"
#include "desktop/Text.h"
#include "screens/PropertyGrid.h"

namespace tsln::desktop {
namespace {

constexpr int leastWidth = 260;  // pixels at 96 per inch
constexpr int leastHeight = 140;
constexpr int firstWidth = 360;
constexpr int firstHeight = 300;

class PropertyGridView : public ControlView {
  public:
    PropertyGridView(ScreenDialog& dialog, wxWindow* parent, PropertyGrid& grid)
        : ControlView(dialog, grid),
          grid_(grid),
          border_(new wxPanel(parent)),
          window_(new wxPropertyGrid(border_, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                     wxPG_SPLITTER_AUTO_CENTER | wxPG_TOOLTIPS | wxBORDER_NONE)) {
        setWindow(border_);
        border_->SetMinSize(border_->FromDIP(wxSize(leastWidth, leastHeight)));
        border_->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_3DSHADOW));
        auto* sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(window_, wxSizerFlags(1).Expand().Border(wxALL, 1));
        border_->SetSizer(sizer);
        window_->SetExtraStyle(wxPG_EX_HELP_AS_TOOLTIPS);
        window_->SetCaptionTextColour(window_->GetCellTextColour());  // the toolkit's grey is hard to read
    }

    wxWindow& inputWindow() const override { return *window_; }
    bool growsWide() const override { return true; }
    bool growsHigh() const override { return true; }
    wxSize preferredSize() const override { return border_->FromDIP(wxSize(firstWidth, firstHeight)); }

    /// On one platform the toolkit's grid handles Tab itself and keeps the focus.
    bool takesKey(const wxKeyEvent& key) override {
        if (key.GetKeyCode() != WXK_TAB || (key.GetModifiers() & ~wxMOD_SHIFT) != 0) return false;
        border_->Navigate(key.ShiftDown() ? wxNavigationKeyEvent::IsBackward
                                          : wxNavigationKeyEvent::IsForward);
        return true;
    }

  private:
    void updateContent() override {
        if (clearings_ != grid_.clearings()) {
            clearings_ = grid_.clearings();
            window_->Clear();
            shown_.clear();
        }
        if (shown_.size() == grid_.items().size()) return;
        window_->Freeze();
        while (shown_.size() < grid_.items().size())
            append(grid_.items()[shown_.size()]);
        window_->Thaw();
    }

    void append(const PropertyGrid::Item& item) {
        const wxString caption = toWx(item.caption);
        // The toolkit finds properties by name, so each needs a unique name.
        const wxString name = wxString::Format("%zu", shown_.size());
        wxPGProperty* property = nullptr;
        if (item.isCategory) {
            property = new wxPropertyCategory(caption, name);
        } else {
            property = new wxStringProperty(caption, name, toWx(item.value));
        }
        if (item.parent) {
            window_->AppendIn(shown_[*item.parent], property);
        } else {
            window_->Append(property);
        }
        if (!item.isCategory) {
            property->ChangeFlag(wxPG_PROP_READONLY, true);
            property->SetHelpString(toWx(item.value));  // the tool tip of a value too long for its column
        }
        shown_.push_back(property);
    }

    PropertyGrid& grid_;
    wxPanel* border_;
    wxPropertyGrid* window_;
    std::vector<wxPGProperty*> shown_;  // by item
    int clearings_ = 0;
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, PropertyGrid& grid) {
    return std::make_unique<PropertyGridView>(dialog, parent, grid);
}

}  // namespace tsln::desktop
