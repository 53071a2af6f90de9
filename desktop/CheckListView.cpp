#include <wx/dataview.h>
#include <wx/panel.h>
#include <wx/settings.h>
#include <wx/sizer.h>

#include "desktop/ControlView.h"
#include "desktop/NativeGrid.h"
#include "desktop/ReportTexts.h"
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
          list_(new wxDataViewListCtrl(border_, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                       wxDV_SINGLE | wxBORDER_NONE)) {
        setWindow(border_);
        border_->SetMinSize(wxSize(wide() * 2 / 3, border_->FromDIP(leastHigh)));
        // The other lists have this border line, too.
        border_->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_3DSHADOW));
        auto* sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(list_, wxSizerFlags(1).Expand().Border(wxALL, 1));
        border_->SetSizer(sizer);
        list_->AppendToggleColumn("", wxDATAVIEW_CELL_ACTIVATABLE, list_->FromDIP(tickRoom), wxALIGN_CENTRE,
                                  0);
        for (const CheckList::Column& column : control.columns) {
            list_->AppendTextColumn(toWx(column.caption), wxDATAVIEW_CELL_INERT, widthOf(column),
                                    column.rightAligned ? wxALIGN_RIGHT : wxALIGN_LEFT,
                                    wxDATAVIEW_COL_RESIZABLE);
        }
        if (!control.columns.empty()) takeRemainingWidth(*list_->GetColumn(list_->GetColumnCount() - 1));
        list_->Bind(wxEVT_DATAVIEW_ITEM_VALUE_CHANGED, [this](wxDataViewEvent& event) {
            if (showing_ || event.GetColumn() != 0) return;
            const int row = list_->ItemToRow(event.GetItem());
            if (row != wxNOT_FOUND) report(row, list_->GetToggleValue(static_cast<unsigned>(row), 0));
        });
        list_->Bind(wxEVT_DATAVIEW_ITEM_ACTIVATED,
                    [this](wxDataViewEvent& event) { toggle(list_->ItemToRow(event.GetItem())); });
        list_->GetMainWindow()->Bind(wxEVT_SET_FOCUS, [this](wxFocusEvent& event) {
            event.Skip();
            focusFirst();
        });
    }

    wxWindow& inputWindow() const override { return *list_; }
    bool growsWide() const override { return true; }
    bool growsHigh() const override { return true; }
    wxSize preferredSize() const override { return wxSize(wide(), list_->FromDIP(firstHigh)); }

    bool takesKey(const wxKeyEvent& key) override {
        if (key.GetKeyCode() != WXK_SPACE || key.HasAnyModifiers()) return false;
        focusFirst();
        toggle(list_->ItemToRow(list_->GetCurrentItem()));
        return true;
    }

  private:
    /// The width in pixels at which the column shows its caption whole and has the width it asks for.
    int widthOf(const CheckList::Column& column) const {
        return naturalWidth(*border_, {.caption = column.caption, .width = column.width});
    }
    int wide() const {
        int all = border_->FromDIP(tickRoom + scrollBar);
        for (const CheckList::Column& column : control_.columns)
            all += widthOf(column);
        return all;
    }

    /// Focuses the first row when none is focused: Space and the arrow keys need a focused row.
    void focusFirst() {
        if (list_->GetItemCount() == 0 || list_->GetCurrentItem().IsOk()) return;
        list_->SelectRow(0);
        list_->SetCurrentItem(list_->RowToItem(0));
    }

    void toggle(int row) {
        if (row != wxNOT_FOUND) report(row, !control_.entries()[static_cast<std::size_t>(row)].ticked);
    }

    void report(int row, bool ticked) {
        act([&] { control_.userTick(static_cast<std::size_t>(row), ticked); });
    }

    void updateContent() override {
        showing_ = true;
        const auto& entries = control_.entries();
        if (static_cast<std::size_t>(list_->GetItemCount()) > entries.size()) list_->DeleteAllItems();
        for (std::size_t i = 0; i < entries.size(); ++i)
            showEntry(static_cast<unsigned>(i), entries[i]);
        showing_ = false;
    }

    void showEntry(unsigned row, const CheckList::Entry& entry) {
        wxVector<wxVariant> cells;
        cells.push_back(entry.ticked);
        for (std::size_t c = 0; c < control_.columns.size(); ++c)
            cells.push_back(c < entry.cells.size() ? toWx(entry.cells[c]) : wxString());
        if (row >= static_cast<unsigned>(list_->GetItemCount())) return list_->AppendItem(cells);
        for (unsigned c = 0; c < cells.size(); ++c) {
            wxVariant shown;
            list_->GetValue(shown, row, c);
            if (shown != cells[c]) list_->SetValue(cells[c], row, c);
        }
    }

    CheckList& control_;
    wxPanel* border_;
    wxDataViewListCtrl* list_;
    bool showing_ = false;
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, CheckList& list) {
    return std::make_unique<CheckListView>(dialog, parent, list);
}

}  // namespace tsln::desktop
