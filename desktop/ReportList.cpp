#include "desktop/ReportList.h"

#include <algorithm>

#include <wx/bitmap.h>
#include <wx/image.h>
#include <wx/imaglist.h>
#include <wx/wupdlock.h>

#include "desktop/Text.h"

namespace tsln::desktop {
namespace {

constexpr int headerPadding = 28;  // around a column's caption, so that it and a sort arrow are shown whole
constexpr std::size_t mostShown = 1000;  // bytes of a cell that are drawn; no column is wider

/// A cell's text on one line, as far as anybody can see it.
wxString cellText(std::string_view text) {
    if (text.size() > mostShown) {
        std::size_t end = mostShown;
        while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80)
            --end;  // whole characters
        text = text.substr(0, end);
    }
    wxString shown = toWx(text);
    shown.Replace("\r\n", " ");
    shown.Replace("\n", " ");
    shown.Replace("\r", " ");
    return shown;
}

}  // namespace

ReportList::ReportList(wxWindow* parent, const ReportControl& report)
    : wxListCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                 wxLC_REPORT | wxLC_VIRTUAL | wxBORDER_NONE),
      report_(report) {
    groupAttr_.SetFont(GetFont().Bold());
    EnableAlternateRowColours();
#ifndef __WXMSW__
    // The generic window puts the text right at the column's edge; an empty image before it keeps it off.
    wxImage nothing(1, GetCharHeight());
    nothing.InitAlpha();
    std::fill_n(nothing.GetAlpha(), GetCharHeight(), static_cast<unsigned char>(wxALPHA_TRANSPARENT));
    auto* images = new wxImageList(1, GetCharHeight(), true, 1);
    images->Add(wxBitmap(nothing));
    AssignImageList(images, wxIMAGE_LIST_SMALL);
#endif
}

// Painting: called by the toolkit for what is in view, so nothing may be thrown and a row may be gone.

wxString ReportList::OnGetItemText(long item, long column) const {
    const auto row = static_cast<std::size_t>(item);
    const auto col = static_cast<std::size_t>(column);
    if (item < 0 || row >= report_.rowCount() || column < 0 || col >= report_.columns.size()) return {};
    if (report_.row(row).isGroup()) return col == 0 ? groupText(row) : wxString();
    return cellText(report_.rowText(row, col));
}

wxItemAttr* ReportList::OnGetItemAttr(long item) const {
    const auto row = static_cast<std::size_t>(item);
    if (item >= 0 && row < report_.rowCount() && report_.row(row).isGroup()) {
        return const_cast<wxItemAttr*>(&groupAttr_);
    }
    return wxListCtrl::OnGetItemAttr(item);
}

int ReportList::OnGetItemColumnImage(long, long) const {
    return GetImageList(wxIMAGE_LIST_SMALL) ? 0 : -1;
}

wxString ReportList::groupText(std::size_t row) const {
    const wxString text = toWx(report_.rowText(row, 0));
    const auto group = std::ranges::lower_bound(groupRows_, row);
    if (group == groupRows_.end() || *group != row) return text;
    const std::size_t next = group + 1 == groupRows_.end() ? report_.rowCount() : group[1];
    return wxString::Format("%s (%zu)", text, next - row - 1);
}

// Taking the report over --------------------------------------------------------------------------

void ReportList::showReport() {
    const wxWindowUpdateLocker lock(this);
    showColumns();
    countGroups();
    SetItemCount(static_cast<long>(report_.rowCount()));
    showSelection();
    showSortOrder();
    Refresh();
}

void ReportList::showColumns() {
    std::vector<wxString> captions;
    for (const ReportControl::Column& column : report_.columns)
        captions.push_back(toWx(column.caption));
    if (captions == captions_) return;  // widths the user has set stay
    captions_ = std::move(captions);
    DeleteAllColumns();
    for (std::size_t i = 0; i < report_.columns.size(); ++i) {
        const ReportControl::Column& column = report_.columns[i];
        AppendColumn(captions_[i], column.rightAligned ? wxLIST_FORMAT_RIGHT : wxLIST_FORMAT_LEFT,
                     naturalWidth(column));
    }
    stretchColumn();
}

int ReportList::naturalWidth(const ReportControl::Column& column) const {
    return std::max(FromDIP(column.width), GetTextExtent(toWx(column.caption)).x + FromDIP(headerPadding));
}

int ReportList::naturalWidth() const {
    int wide = 0;
    for (const ReportControl::Column& column : report_.columns)
        wide += naturalWidth(column);
    return wide;
}

void ReportList::stretchColumn() {
    if (GetColumnCount() == 0) return;
    // Texts gain most from the room: the first column that is not right-aligned takes it, usually the name.
    const auto& columns = report_.columns;
    const auto left = std::ranges::find(columns, false, &ReportControl::Column::rightAligned);
    const auto stretched = left == columns.end() ? 0 : static_cast<int>(left - columns.begin());
    int others = 0;
    for (int i = 0; i < GetColumnCount(); ++i) {
        if (i != stretched) others += GetColumnWidth(i);
    }
    const int width =
        std::max(naturalWidth(columns[static_cast<std::size_t>(stretched)]), GetClientSize().x - others);
    if (width != GetColumnWidth(stretched)) SetColumnWidth(stretched, width);
}

void ReportList::countGroups() {
    groupRows_.clear();
    if (!report_.groupColumn()) return;
    for (std::size_t row = 0; row < report_.rowCount(); ++row) {
        if (report_.row(row).isGroup()) groupRows_.push_back(static_cast<std::uint32_t>(row));
    }
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
    if (const auto& order = report_.sortOrder()) {
        ShowSortIndicator(static_cast<int>(order->column), !order->descending);
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
    // Points count from the rows' own window, unlike those of all other members.
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
    // The generic list goes on by Shift from where its own keys have been, and from nowhere else.
    SetItemState(std::max(item - 1, 0L), wxLIST_STATE_FOCUSED, wxLIST_STATE_FOCUSED);
    wxKeyEvent key(wxEVT_CHAR);
    key.m_keyCode = row == 0 ? WXK_HOME : WXK_DOWN;
    rowsWindow().HandleWindowEvent(key);
#endif
    EnsureVisible(item);
}

std::optional<std::size_t> ReportList::findText(const wxString& start, std::size_t from) const {
    const std::size_t column = report_.sortOrder() ? report_.sortOrder()->column : 0;
    const std::size_t count = report_.rowCount();
    for (std::size_t i = 0; i < count && column < report_.columns.size(); ++i) {
        const std::size_t row = (from + i) % count;
        if (report_.row(row).isGroup()) continue;
        const std::string_view text = report_.rowText(row, column);
        if (toWx(text).Left(start.size()).IsSameAs(start, false)) return row;
    }
    return std::nullopt;
}

}  // namespace tsln::desktop
