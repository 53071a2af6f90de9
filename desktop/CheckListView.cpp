#include <algorithm>

#include <wx/listctrl.h>
#include <wx/panel.h>
#include <wx/settings.h>
#include <wx/sizer.h>

#include "desktop/ControlView.h"
#include "desktop/Text.h"
#include "screens/CheckList.h"

namespace tsln::desktop {
namespace {

constexpr int leastHigh = 140;  // pixels at 96 per inch
constexpr int firstHigh = 240;
constexpr int tickRoom = 24;  // width of the tick box in the first column
constexpr int scrollBar = 24;

class CheckListView : public ControlView {
  public:
    CheckListView(ScreenDialog& dialog, wxWindow* parent, CheckList& control)
        : ControlView(dialog, control),
          control_(control),
          border_(new wxPanel(parent)),
          list_(new wxListCtrl(border_, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                               wxLC_REPORT | wxLC_SINGLE_SEL | wxBORDER_NONE)) {
        setWindow(border_);
        border_->SetMinSize(border_->FromDIP(wxSize(wide() * 2 / 3, leastHigh)));
        // The other lists have this border line, too.
        border_->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_3DSHADOW));
        auto* sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(list_, wxSizerFlags(1).Expand().Border(wxALL, 1));
        border_->SetSizer(sizer);
        list_->EnableCheckBoxes();
        for (const CheckList::Column& column : control.columns) {
            const bool first = list_->GetColumnCount() == 0;
            list_->AppendColumn(toWx(column.caption),
                                column.rightAligned ? wxLIST_FORMAT_RIGHT : wxLIST_FORMAT_LEFT,
                                list_->FromDIP(column.width + (first ? tickRoom : 0)));
        }
        list_->Bind(wxEVT_LIST_ITEM_CHECKED, [this](wxListEvent& e) { ticked(e.GetIndex(), true); });
        list_->Bind(wxEVT_LIST_ITEM_UNCHECKED, [this](wxListEvent& e) { ticked(e.GetIndex(), false); });
        list_->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent& e) { toggle(e.GetIndex()); });
        list_->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
            event.Skip();
            list_->CallAfter([this] { stretchLastColumn(); });
        });
        list_->Bind(wxEVT_SET_FOCUS, [this](wxFocusEvent& event) {
            event.Skip();
            focusFirst();
        });
    }

    wxWindow& inputWindow() const override { return *list_; }
    bool growsWide() const override { return true; }
    bool growsHigh() const override { return true; }
    wxSize preferredSize() const override { return list_->FromDIP(wxSize(wide(), firstHigh)); }

    bool takesKey(const wxKeyEvent& key) override {
        if (key.GetKeyCode() != WXK_SPACE || key.HasAnyModifiers()) return false;
        focusFirst();
        toggle(list_->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_FOCUSED));
        return true;
    }

  private:
    int wide() const {
        int all = tickRoom + scrollBar;
        for (const CheckList::Column& column : control_.columns)
            all += column.width;
        return all;
    }

    void stretchLastColumn() {
        const int last = list_->GetColumnCount() - 1;
        if (last < 0) return;
        int others = 0;
        for (int c = 0; c < last; ++c)
            others += list_->GetColumnWidth(c);
        const int own = list_->FromDIP(control_.columns.back().width + (last == 0 ? tickRoom : 0));
        list_->SetColumnWidth(last, std::max(own, list_->GetClientSize().x - others));
    }

    /// Focuses the first row when none is focused: Space and the arrow keys need a focused row.
    void focusFirst() {
        if (list_->GetItemCount() == 0) return;
        if (list_->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_FOCUSED) >= 0) return;
        constexpr long both = wxLIST_STATE_FOCUSED | wxLIST_STATE_SELECTED;
        list_->SetItemState(0, both, both);
    }

    void toggle(long item) {
        if (item >= 0) list_->CheckItem(item, !list_->IsItemChecked(item));
    }

    void ticked(long item, bool ticked) {
        if (showing_ || item < 0) return;
        act([&] { control_.userTick(static_cast<std::size_t>(item), ticked); });
    }

    void updateContent() override {
        showing_ = true;
        const auto& entries = control_.entries();
        if (static_cast<std::size_t>(list_->GetItemCount()) > entries.size()) list_->DeleteAllItems();
        for (std::size_t i = 0; i < entries.size(); ++i)
            showEntry(static_cast<long>(i), entries[i]);
        showing_ = false;
    }

    void showEntry(long item, const CheckList::Entry& entry) {
        if (item >= list_->GetItemCount()) list_->InsertItem(item, wxString());
        for (std::size_t c = 0; c < entry.cells.size(); ++c) {
            const wxString text = toWx(entry.cells[c]);
            const int column = static_cast<int>(c);
            if (list_->GetItemText(item, column) != text) list_->SetItem(item, column, text);
        }
        if (list_->IsItemChecked(item) != entry.ticked) list_->CheckItem(item, entry.ticked);
    }

    CheckList& control_;
    wxPanel* border_;
    wxListCtrl* list_;
    bool showing_ = false;
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, CheckList& list) {
    return std::make_unique<CheckListView>(dialog, parent, list);
}

}  // namespace tsln::desktop
