#include "desktop/ReportList.h"

#include <algorithm>

#include <wx/bitmap.h>
#include <wx/image.h>
#include <wx/imaglist.h>
#include <wx/wupdlock.h>

#include "desktop/Text.h"

namespace tsln::desktop {

ReportList::ReportList(wxWindow* parent, ReportControl& report)
    : wxListCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                 wxLC_REPORT | wxLC_VIRTUAL | wxBORDER_NONE),
      report_(report),
      groups_(report) {
    groupAttr_.SetFont(GetFont().Bold());
    EnableAlternateRowColours();
#ifndef __WXMSW__
    // The generic window draws the text directly at the column's edge; an empty image before it adds a margin.
    wxImage nothing(1, GetCharHeight());
    nothing.InitAlpha();
    std::fill_n(nothing.GetAlpha(), GetCharHeight(), static_cast<unsigned char>(wxALPHA_TRANSPARENT));
    auto* images = new wxImageList(1, GetCharHeight(), true, 1);
    images->Add(wxBitmap(nothing));
    AssignImageList(images, wxIMAGE_LIST_SMALL);
#endif
    bindEvents();
}

void ReportList::bindEvents() {
    const auto changed = [this](wxEvent& event) {
        event.Skip();
        events.selection();
    };
    Bind(wxEVT_LIST_ITEM_SELECTED, changed);
    Bind(wxEVT_LIST_ITEM_DESELECTED, changed);
    Bind(wxEVT_LIST_ITEM_FOCUSED, changed);
    Bind(wxEVT_LIST_ITEM_ACTIVATED,
         [this](wxListEvent& event) { events.activated(static_cast<std::size_t>(event.GetIndex())); });
    Bind(wxEVT_LIST_COL_CLICK, [this](wxListEvent& event) {
        const auto place = static_cast<std::size_t>(event.GetColumn());
        if (place < shown_.size()) events.headerClicked(shown_[place].column);
    });
    Bind(wxEVT_LIST_COL_BEGIN_DRAG, [this](wxListEvent& event) {
        const auto place = static_cast<std::size_t>(event.GetColumn());
        if (place < shown_.size() && !report_.columns[shown_[place].column].resizable) event.Veto();
    });
    Bind(wxEVT_LIST_COL_END_DRAG, [this](wxListEvent& event) {
        const auto place = static_cast<std::size_t>(event.GetColumn());
        CallAfter([this, place] { columnDragged(place); });  // natively the column has its width only then
    });
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        CallAfter([this] { stretchColumn(); });
    });
#ifndef __WXMSW__
    rowsWindow().Bind(wxEVT_RIGHT_UP, [this](wxMouseEvent& event) {
        events.contextMenu(rowsWindow().ClientToScreen(event.GetPosition()));
    });
#endif
}

// Painting: called by the toolkit for what is in view, so nothing may be thrown and a row may be gone.

wxString ReportList::OnGetItemText(long item, long column) const {
    const auto row = static_cast<std::size_t>(item);
    const auto place = static_cast<std::size_t>(column);
    if (row >= report_.rowCount() || place >= shown_.size()) return {};
    if (report_.row(row).isGroup()) return place == 0 ? groups_.text(row) : wxString();
    const std::size_t shown = shown_[place].column;
    return shown < report_.columns.size() ? shownText(report_, row, shown) : wxString();
}

wxItemAttr* ReportList::OnGetItemAttr(long item) const {
    const auto row = static_cast<std::size_t>(item);
    wxItemAttr* const usual = wxListCtrl::OnGetItemAttr(item);
    if (row >= report_.rowCount()) return usual;
    if (report_.row(row).isGroup()) return const_cast<wxItemAttr*>(&groupAttr_);
    const ReportControl::Style style = report_.style(report_.row(row).record);
    if (!style.bold && !style.color) return usual;
    recordAttr_ = usual ? *usual : wxItemAttr();
    if (style.bold) recordAttr_.SetFont(groupAttr_.GetFont());
    if (style.color) recordAttr_.SetTextColour(wxColour(*style.color));
    return &recordAttr_;
}

int ReportList::OnGetItemColumnImage(long, long) const {
    return GetImageList(wxIMAGE_LIST_SMALL) ? 0 : -1;
}

// Showing the report -----------------------------------------------------------------------------

void ReportList::showReport() {
    const wxWindowUpdateLocker lock(this);
    showColumns();
    groups_.count();
    SetItemCount(static_cast<long>(report_.rowCount()));
    showSelection();
    showSortOrder();
    Refresh();
}

void ReportList::showColumns() {
    std::vector<Shown> wanted;
    for (const std::size_t column : report_.columnOrder())
        wanted.push_back({column, toWx(report_.columns[column].caption), report_.columns[column].width});
    if (wanted == shown_) return;  // widths that columns were stretched to stay
    shown_ = std::move(wanted);
    DeleteAllColumns();
    for (const Shown& shown : shown_) {
        const ReportControl::Column& column = report_.columns[shown.column];
        AppendColumn(shown.caption, column.rightAligned ? wxLIST_FORMAT_RIGHT : wxLIST_FORMAT_LEFT,
                     desktop::naturalWidth(*this, column));
    }
    stretchColumn();
}

void ReportList::columnDragged(std::size_t place) {
    if (place >= shown_.size()) return;
    shown_[place].width = ToDIP(GetColumnWidth(static_cast<int>(place)));
    report_.userColumnWidth(shown_[place].column, shown_[place].width);
}

void ReportList::stretchColumn() {
    if (shown_.empty()) return;
    const auto stretched = std::ranges::find(shown_, stretchedColumn(report_), &Shown::column);
    if (stretched == shown_.end()) return;
    const auto place = static_cast<int>(stretched - shown_.begin());
    int others = 0;
    for (int i = 0; i < GetColumnCount(); ++i) {
        if (i != place) others += GetColumnWidth(i);
    }
    const int width = std::max(desktop::naturalWidth(*this, report_.columns[stretched->column]),
                               GetClientSize().x - others);
    if (width != GetColumnWidth(place)) SetColumnWidth(place, width);
}

void ReportList::showSelection() {
    const auto& wanted = report_.selectedRows();
    if (wanted.size() == 1 && report_.focusedRow() == wanted.front() &&
        (selection() != std::vector(wanted.begin(), wanted.end()) || focusedRow() != wanted.front())) {
        goTo(wanted.front());
        return;
    }
    if (!std::ranges::equal(selection(), wanted)) {
        if (wanted.size() == report_.rowCount()) {
            SetItemState(-1, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);  // as one range
        } else {
            SetItemState(-1, 0, wxLIST_STATE_SELECTED);
            for (const std::size_t row : wanted) {
                SetItemState(static_cast<long>(row), wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
            }
        }
    }
    if (const auto focused = report_.focusedRow(); focused && focused != focusedRow()) {
        SetItemState(static_cast<long>(*focused), wxLIST_STATE_FOCUSED, wxLIST_STATE_FOCUSED);
        EnsureVisible(static_cast<long>(*focused));
    }
}

void ReportList::showSortOrder() {
    const auto& order = report_.sortOrder();
    const auto sorted = order ? std::ranges::find(shown_, order->column, &Shown::column) : shown_.end();
    if (sorted != shown_.end()) {
        ShowSortIndicator(static_cast<int>(sorted - shown_.begin()), !order->descending);
    } else {
        RemoveSortIndicator();
    }
}

// What the user sees ------------------------------------------------------------------------------

std::vector<std::size_t> ReportList::selection() const {
    std::vector<std::size_t> rows;
    const auto count = static_cast<std::size_t>(GetSelectedItemCount());
    rows.reserve(count);
    long row = -1;
    while (rows.size() < count) {  // the search for one more than there are would run through all rows
        row = GetNextItem(row, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
        if (row < 0) break;
        rows.push_back(static_cast<std::size_t>(row));
    }
    return rows;
}

std::optional<std::size_t> ReportList::focusedRow() const {
    const long row = GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_FOCUSED);
    if (row < 0) return std::nullopt;
    return static_cast<std::size_t>(row);
}

wxWindow& ReportList::rowsWindow() const {
    for (wxWindow* child : GetChildren()) {
        if (child->GetName() != "wxlistctrlcolumntitles") return *child;
    }
    return const_cast<ReportList&>(*this);  // natively the list is one window
}

std::optional<std::size_t> ReportList::rowAt(const wxPoint& onScreen) const {
    int where = 0;
    // Points are relative to the rows' inner window here, unlike in all other members.
    const long row = HitTest(rowsWindow().ScreenToClient(onScreen), where);
    if (row < 0) return std::nullopt;
    return static_cast<std::size_t>(row);
}

void ReportList::goTo(std::size_t row) {
    const long item = static_cast<long>(row);
    SetItemState(-1, 0, wxLIST_STATE_SELECTED);
#ifdef __WXMSW__
    SetItemState(item, wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED,
                 wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED);
#else
    // The generic list extends a selection by Shift only from the row that its own keys reached last.
    SetItemState(std::max(item - 1, 0L), wxLIST_STATE_FOCUSED, wxLIST_STATE_FOCUSED);
    wxKeyEvent key(wxEVT_CHAR);
    key.m_keyCode = row == 0 ? WXK_HOME : WXK_DOWN;
    rowsWindow().HandleWindowEvent(key);
#endif
    EnsureVisible(item);
}

std::optional<wxPoint> ReportList::belowRow(std::size_t row) const {
    wxRect rect;
    if (!GetItemRect(static_cast<long>(row), rect)) return std::nullopt;
    return ClientToScreen(rect.GetBottomLeft());
}

}  // namespace tsln::desktop
