#include "desktop/ReportGrid.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <wx/settings.h>

#include "desktop/NativeWindow.h"
#include "desktop/Text.h"

namespace tsln::desktop {
namespace {

using Cell = ReportControl::Cell;
using Kind = ReportColumn::Kind;

constexpr int typingPause = 150;         // milliseconds without a change, after which new rows are shown
constexpr std::size_t manyRows = 10000;  // fewer are shown at once

/// The background of every other row, which makes rows easier to follow: the theme's own with a touch of its text's
/// colour, so that a text is readable on it in every theme.
wxColour stripeColour() {
    const wxColour plain = wxSystemSettings::GetColour(wxSYS_COLOUR_LISTBOX);
    const wxColour text = wxSystemSettings::GetColour(wxSYS_COLOUR_LISTBOXTEXT);
    constexpr double touch = 0.04;
    return {wxColour::AlphaBlend(text.Red(), plain.Red(), touch),
            wxColour::AlphaBlend(text.Green(), plain.Green(), touch),
            wxColour::AlphaBlend(text.Blue(), plain.Blue(), touch)};
}

/// Whether the key moves the focus from row to row.
bool moves(int key) {
    constexpr int keys[] = {WXK_UP,          WXK_DOWN,       WXK_HOME,          WXK_END,
                            WXK_PAGEUP,      WXK_PAGEDOWN,   WXK_NUMPAD_UP,     WXK_NUMPAD_DOWN,
                            WXK_NUMPAD_HOME, WXK_NUMPAD_END, WXK_NUMPAD_PAGEUP, WXK_NUMPAD_PAGEDOWN};
    return std::ranges::find(keys, key) != std::end(keys);
}

}  // namespace

/// Hands the control's rows to the toolkit, which asks for what is in view. Nothing may be thrown here, and a
/// row may be gone.
class ReportGrid::Model : public wxDataViewVirtualListModel {
  public:
    explicit Model(ReportGrid& grid) : grid_(grid), stripe_(stripeColour()) {}
    /// The grid is being destroyed.
    void detach() { attached_ = false; }

  private:
    bool has(unsigned row, unsigned column) const {
        return attached_ && row < grid_.report_.rowCount() && column < grid_.report_.columns.size();
    }

    bool HasValue(const wxDataViewItem& item, unsigned column) const override {
        const unsigned row = GetRow(item);
        if (!has(row, column)) return false;
        return !grid_.report_.row(row).isGroup() || column == grid_.order_.front();
    }

    void GetValueByRow(wxVariant& value, unsigned row, unsigned column) const override {
        const ReportControl& report = grid_.report_;
        const bool check = column < report.columns.size() && report.columns[column].kind == Kind::Check;
        if (!has(row, column) || report.row(row).isGroup()) {
            if (check) {
                value = false;
            } else {
                value = has(row, column) ? grid_.groups_.text(row) : wxString();
            }
        } else if (check) {
            value = report.checked(report.row(row).record, column);
        } else {
            value = shownText(report, row, column);
        }
    }

    bool GetAttrByRow(unsigned row, unsigned column, wxDataViewItemAttr& attr) const override {
        if (!has(row, column)) return false;
        const ReportControl::Row& shown = grid_.report_.row(row);
        if (shown.isGroup()) {
            attr.SetBold(true);
            // Not editable, but not grey either.
            attr.SetColour(wxSystemSettings::GetColour(wxSYS_COLOUR_LISTBOXTEXT));
            return true;
        }
#ifdef __WXGTK__
        if (row % 2 == 1) attr.SetBackgroundColour(stripe_);
#endif
        const ReportControl::Style style = grid_.report_.style(shown.record);
        if (style.bold) attr.SetBold(true);
        if (style.background) {
            const wxColour background(*style.background);
            attr.SetBackgroundColour(background);
            attr.SetColour(background.GetLuminance() > 0.5 ? *wxBLACK : *wxWHITE);
        }
        if (style.color) attr.SetColour(wxColour(*style.color));
        return !attr.IsDefault();
    }

    bool IsEnabledByRow(unsigned row, unsigned column) const override {
        if (!has(row, column) || !grid_.report_.columns[column].editable) return true;
        // A grey text would look like one that does not apply; editing it is vetoed.
        if (grid_.report_.columns[column].kind == Kind::Text) return true;
#ifndef __WXGTK__
        if (grid_.report_.row(row).isGroup()) return true;  // it would be grey; editing it is vetoed
#endif
        return grid_.report_.canEdit({row, column});
    }

    bool SetValueByRow(const wxVariant& value, unsigned row, unsigned column) override {
        return has(row, column) && grid_.setValue(value, {row, column});
    }

    ReportGrid& grid_;
    wxColour stripe_;
    bool attached_ = true;
};

ReportGrid::ReportGrid(wxWindow* parent, ReportControl& report)
    : wxDataViewCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                     wxDV_MULTIPLE | wxDV_ROW_LINES | wxBORDER_NONE),
      report_(report),
      groups_(report),
      model_(new Model(*this)),
      editor_(*this) {
    AssociateModel(model_.get());
    showColumns();
    bindEvents();
}

ReportGrid::~ReportGrid() {
    model_->detach();
}

wxWindow& ReportGrid::rowsWindow() const {
    return *const_cast<ReportGrid&>(*this).GetMainWindow();
}

void ReportGrid::bindEvents() {
    const auto changed = [this](wxEvent& event) {
        event.Skip();
        if (!quiet_) events.selection();
    };
    Bind(wxEVT_DATAVIEW_SELECTION_CHANGED, changed);
    Bind(wxEVT_DATAVIEW_ITEM_ACTIVATED, [this](wxDataViewEvent& event) {
        if (event.GetItem().IsOk()) events.activated(model_->GetRow(event.GetItem()));
    });
    Bind(wxEVT_DATAVIEW_ITEM_CONTEXT_MENU,
         [this](wxDataViewEvent&) { events.contextMenu(wxGetMousePosition()); });
    // A cell of an editable column that may not be edited.
    Bind(wxEVT_DATAVIEW_ITEM_START_EDITING, [this](wxDataViewEvent& event) {
        const wxDataViewColumn* const column = event.GetDataViewColumn();
        if (column && !report_.canEdit({model_->GetRow(event.GetItem()), column->GetModelColumn()}))
            event.Veto();
    });
    Bind(wxEVT_DATAVIEW_ITEM_EDITING_STARTED, [this](wxDataViewEvent& event) {
        event.Skip();
        const unsigned row = model_->GetRow(event.GetItem());
        if (const wxDataViewColumn* const column = event.GetDataViewColumn())
            lastCell_ = {row, column->GetModelColumn()};  // also when a click has opened the editor
        editedID_ =
            row < report_.rowCount() && !report_.row(row).isGroup() ? report_.id(report_.row(row).record) : 0;
    });
    // When the rows get the keyboard, pending rows are shown first.
    const auto entered = [this](wxEvent& event) {
        event.Skip();
        if (refillPending()) refill();
    };
    rowsWindow().Bind(wxEVT_SET_FOCUS, entered);
    rowsWindow().Bind(wxEVT_LEFT_DOWN, [this, entered](wxMouseEvent& event) {
        entered(event);
        tabbing_ = false;
        allowSeveral(*this, event.ShiftDown() || event.ControlDown());
    });
    refill_.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { refill(); });
#ifndef __WXGTK__
    rowsWindow().Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
        // The toolkit itself handles Tab and moves by it from column to column.
        if (event.GetKeyCode() != WXK_TAB || takesKey(event)) {
            if (event.GetKeyCode() != WXK_TAB) event.Skip();
            return;
        }
        Navigate(event.ShiftDown() ? wxNavigationKeyEvent::IsBackward : wxNavigationKeyEvent::IsForward);
    });
#endif
}

// Columns -----------------------------------------------------------------------------------------

void ReportGrid::showColumns() {
    std::vector<wxString> captions;
    std::vector<int> widths;
    for (const ReportControl::Column& column : report_.columns) {
        captions.push_back(toWx(column.caption));
        widths.push_back(desktop::naturalWidth(*this, column));
    }
    const std::vector<std::size_t> order = report_.columnOrder();
    if (captions == captions_ && widths == widths_ && order == order_) return;
    captions_ = std::move(captions);
    widths_ = std::move(widths);
    order_ = order;
    ClearColumns();
    for (const std::size_t column : order_)
        appendColumn(column);
    if (!order_.empty()) takeRemainingWidth(*columnWindow(stretchedColumn(report_)));
    onHeaderClick(*this, [this](unsigned column) { events.headerClicked(column); });
}

void ReportGrid::appendColumn(std::size_t index) {
    const ReportControl::Column& column = report_.columns[index];
    const auto mode = !column.editable             ? wxDATAVIEW_CELL_INERT
                      : column.kind == Kind::Check ? wxDATAVIEW_CELL_ACTIVATABLE
                                                   : wxDATAVIEW_CELL_EDITABLE;
    const wxAlignment align = column.kind == Kind::Check ? wxALIGN_CENTRE
                              : column.rightAligned      ? wxALIGN_RIGHT
                                                         : wxALIGN_LEFT;
    wxDataViewRenderer* renderer = nullptr;
    if (column.kind == Kind::Check) {
        renderer = new Striped<wxDataViewToggleRenderer>("bool", mode);
    } else if (column.kind == Kind::Choice && column.editable) {
        wxArrayString captions;
        for (const ReportColumn::Choice& choice : column.choices)
            captions.push_back(toWx(choice.caption));
        renderer = new Striped<wxDataViewChoiceRenderer>(captions, mode);
    } else {
        renderer = new wxDataViewTextRenderer("string", mode);
        renderer->EnableEllipsize(wxELLIPSIZE_END);
    }
    auto* const shown =
        new wxDataViewColumn(captions_[index], renderer, static_cast<unsigned>(index), widths_[index], align,
                             wxDATAVIEW_COL_REORDERABLE | (column.resizable ? wxDATAVIEW_COL_RESIZABLE : 0));
    AppendColumn(shown);
    if (column.editable) editor_.prepare(*shown, column.maxLength);
}

wxDataViewColumn* ReportGrid::columnWindow(std::size_t column) const {
    for (unsigned i = 0; i < GetColumnCount(); ++i) {
        if (GetColumn(i)->GetModelColumn() == column) return GetColumn(i);
    }
    return nullptr;
}

std::vector<std::size_t> ReportGrid::orderInWindow() const {
    std::vector<std::size_t> order = order_;
    std::ranges::sort(order, {}, [&](std::size_t column) { return GetColumnPosition(columnWindow(column)); });
    return order;
}

void ReportGrid::settle() {
    acceptEdit();
    if (const auto order = orderInWindow(); order != order_) {
        order_ = order;
        report_.userColumnOrder(order);
    }
    for (std::size_t column = 0; column < widths_.size(); ++column) {
        const int width = givenWidth(*columnWindow(column));
#ifndef __WXGTK__
        if (column == order_.back()) continue;  // it takes the width that is left
#endif
        if (width == widths_[column] || width <= 0) continue;
        report_.userColumnWidth(column, ToDIP(width));
        widths_[column] = desktop::naturalWidth(*this, report_.columns[column]);
    }
}

/// Ends editing within an act.
void ReportGrid::acceptEdit() {
    if (!editor_.isOpen() || taking_) return;
    settling_ = true;
    editor_.accept();
    settling_ = false;
}

// Rows --------------------------------------------------------------------------------------------

void ReportGrid::showReport() {
    showColumns();
    showSortOrder();
    if (filled_ && report_.rowsVersion() == shownVersion_) {
        if (refillPending()) return;
        showSelection();
        redrawRows(*this);
        return;
    }
    const bool many = std::max<std::size_t>(report_.rowCount(), model_->GetCount()) > manyRows;
    if (taking_) {
        refill_.StartOnce(1);  // once the toolkit is done with the cell
    } else if (filled_ && many && !hasKeyboard(*this)) {
        refill_.StartOnce(typingPause);
    } else {
        refill();
    }
}

void ReportGrid::refill() {
    refill_.Stop();
    acceptEdit();
    quiet_ = true;
    const wxDataViewColumn* const column = GetCurrentColumn();
    const VisibleRows inView = visibleRows(*this);
    groups_.count();
    model_->Reset(static_cast<unsigned>(report_.rowCount()));
    showSortOrder();  // which the toolkit takes for the order of the rows before
    shownVersion_ = report_.rowsVersion();
    filled_ = true;
    if (const auto focused = report_.focusedRow())
        selectOnly(*this, itemOf(*focused), static_cast<unsigned>(*focused), column);
    quiet_ = false;
    showSelection();
    if (report_.focusedRow() && inView.contains(*report_.focusedRow())) scrollBackTo(*this, inView.first);
}

void ReportGrid::showSortOrder() {
    const auto& order = report_.sortOrder();
    showSortArrow(*this, order ? columnWindow(order->column) : nullptr, !order || !order->descending);
}

void ReportGrid::showSelection() {
    const std::vector<std::size_t>& wanted = report_.selectedRows();
    const auto focused = report_.focusedRow();
    if (selection() == wanted && (!focused || focused == focusedRow())) return;
    quiet_ = true;
    if (focused) selectOnly(*this, itemOf(*focused), static_cast<unsigned>(*focused), GetCurrentColumn());
    const bool onlyFocused = focused && wanted == std::vector{*focused};
    if (!onlyFocused) allowSeveral(*this, true);
    if (!onlyFocused && wanted.size() == report_.rowCount()) {
        SelectAll();
    } else if (!onlyFocused) {
        wxDataViewItemArray items;
        for (const std::size_t row : wanted)
            items.push_back(itemOf(row));
        SetSelections(items);
    }
    if (focused) bringIntoView(*focused);
    quiet_ = false;
}

wxDataViewItem ReportGrid::itemOf(std::size_t row) const {
    return model_->GetItem(static_cast<unsigned>(row));
}

std::vector<std::size_t> ReportGrid::selection() const {
    wxDataViewItemArray items;
    GetSelections(items);
    std::vector<std::size_t> rows;
    rows.reserve(items.size());
    for (const wxDataViewItem& item : items)
        rows.push_back(model_->GetRow(item));
    std::ranges::sort(rows);
    return rows;
}

std::optional<std::size_t> ReportGrid::focusedRow() const {
    const wxDataViewItem item = GetCurrentItem();
    if (!item.IsOk()) return std::nullopt;
    return model_->GetRow(item);
}

void ReportGrid::goTo(std::size_t row) {
    selectOnly(*this, itemOf(row), static_cast<unsigned>(row), GetCurrentColumn());
    bringIntoView(row);
}

std::optional<std::size_t> ReportGrid::rowAt(const wxPoint& onScreen) const {
    return desktop::rowAt(*this, ScreenToClient(onScreen));
}

std::optional<wxPoint> ReportGrid::belowRow(std::size_t row) const {
    const wxRect rect = GetItemRect(itemOf(row));
    if (rect.IsEmpty()) return std::nullopt;
    return ClientToScreen(rect.GetBottomLeft());
}

// Editing -----------------------------------------------------------------------------------------

/// The column of the row that the arrow keys, Tab or editing reached last; not every platform reports it.
std::size_t ReportGrid::focusedColumn(std::size_t row) const {
    const wxDataViewColumn* const column = GetCurrentColumn();
    if ((tabbing_ || !column) && lastCell_.row == row) return lastCell_.column;
    return column ? column->GetModelColumn() : order_.front();
}

std::optional<Cell> ReportGrid::currentCell() const {
    const auto row = focusedRow();
    if (!row || *row >= report_.rowCount()) return std::nullopt;
    if (const Cell cell{*row, focusedColumn(*row)}; report_.canEdit(cell)) return cell;
    for (const std::size_t column : order_) {
        if (report_.canEdit({*row, column})) return Cell{*row, column};
    }
    return std::nullopt;
}

/// The first cell of the row that has an editor: a check box has none.
std::optional<Cell> ReportGrid::textCell(std::size_t row) const {
    for (const std::size_t column : order_) {
        if (report_.columns[column].kind != Kind::Check && report_.canEdit({row, column}))
            return Cell{row, column};
    }
    return std::nullopt;
}

bool ReportGrid::takesKey(const wxKeyEvent& key) {
    if (refillPending()) refill();
    const int code = key.GetKeyCode();
    const bool extends = key.ShiftDown() || key.ControlDown();
    // Within an editor, Shift types capitals.
    if (!isEditing() && (extends || moves(code))) allowSeveral(*this, extends);
    if (code == WXK_TAB && (isEditing() || tabbing_)) {
        const bool backwards = key.ShiftDown();
        if (key.GetModifiers() == (backwards ? wxMOD_SHIFT : wxMOD_NONE)) return moveOn(backwards);
    }
    if (isEditing()) return false;
    if (code != WXK_SPACE && code != WXK_SHIFT) tabbing_ = false;
    const auto cell = currentCell();
    if (!cell) return false;
    const Kind kind = report_.columns[cell->column].kind;
    if (key.GetModifiers() == wxMOD_ALT && code == WXK_DOWN && kind == Kind::Choice) return editByList(cell);
    if (key.HasAnyModifiers()) return false;
    switch (code) {
        case WXK_F2:
            return editByList(kind == Kind::Check ? textCell(cell->row) : cell);
        case WXK_RETURN:
        case WXK_NUMPAD_ENTER:
            return focusedColumn(cell->row) == cell->column && edit(cell);
        case WXK_SPACE:
            return tick();
        default:
            return false;
    }
}

bool ReportGrid::takesLetter(const wxString& letter) {
    const auto cell = currentCell();
    if (!cell || report_.columns[cell->column].kind != Kind::Text || !edit(cell)) return false;
    editor_.replaceText(letter);
    return true;
}

void ReportGrid::beginEdit(Cell cell) {
    SetFocus();
    if (refillPending()) refill();
    if (cell.row >= report_.rowCount()) return;
    goTo(cell.row);
    edit(cell);
}

/// Opens the editor in a cell. True when it is open.
bool ReportGrid::edit(const std::optional<Cell>& cell) {
    if (!cell || !report_.canEdit(*cell) || report_.columns[cell->column].kind == Kind::Check) return false;
    if (report_.selectedRows() != std::vector{cell->row}) goTo(cell->row);
    lastCell_ = *cell;
    EditItem(itemOf(cell->row), columnWindow(cell->column));
    return editor_.isOpen();
}

/// Opens the editor, and the list of choices where it has one.
bool ReportGrid::editByList(const std::optional<Cell>& cell) {
    if (!edit(cell)) return false;
    CallAfter([this] { editor_.openChoices(); });
    return true;
}

/// Toggles the check box of the focused row: that of the current column, or the first one.
bool ReportGrid::tick() {
    const auto row = focusedRow();
    if (!row) return false;
    std::vector<std::size_t> columns = order_;
    if (const auto cell = currentCell()) columns.insert(columns.begin(), cell->column);
    for (const std::size_t column : columns) {
        if (report_.columns[column].kind != Kind::Check || !report_.canEdit({*row, column})) continue;
        const bool ticked = report_.checked(report_.row(*row).record, column);
        events.act([&] { report_.userCheck(*row, column, !ticked); });
        return true;
    }
    return false;
}

/// Ends editing and goes to the next cell that can be edited; false when there is none.
bool ReportGrid::moveOn(bool backwards) {
    const auto row = focusedRow();
    editor_.accept();
    if (refillPending()) refill();
    const auto next = row ? report_.nextEditable({*row, lastCell_.column}, backwards) : std::optional<Cell>();
    tabbing_ = next.has_value();
    if (!next) return false;
    lastCell_ = *next;  // also where no editor opens
    selectOnly(*this, itemOf(next->row), static_cast<unsigned>(next->row), columnWindow(next->column));
    edit(next);
    return true;
}

/// Hands what was typed, chosen or ticked to the control.
bool ReportGrid::setValue(const wxVariant& value, Cell cell) {
    if (report_.rowsVersion() != shownVersion_) {  // the screen made new rows while the editor was open
        const auto record = report_.findRecord(editedID_);
        const auto row = record ? report_.findRow(*record) : std::nullopt;
        if (!row) return false;
        cell.row = *row;
    }
    taking_ = true;
    const auto take = [&] {
        if (report_.columns[cell.column].kind == Kind::Check) {
            report_.userCheck(cell.row, cell.column, value.GetBool());
        } else {
            report_.userEdit(cell.row, cell.column, fromWx(value.GetString()));
        }
    };
    if (settling_) {
        take();
    } else {
        events.act(take);
    }
    taking_ = false;
    return true;
}

}  // namespace tsln::desktop
