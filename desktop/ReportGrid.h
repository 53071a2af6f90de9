#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <wx/dataview.h>
#include <wx/timer.h>

#include "desktop/NativeGrid.h"
#include "desktop/ReportTexts.h"

namespace tsln::desktop {

/// The window of a report control's rows. It draws from the control and reports what the user does through
/// `events`, which are set before the first showReport().
///
/// Cells of editable columns are edited in place: F2, Enter or typing edit the cell of the focused row that the
/// arrow keys have moved to, Tab goes on to the next one; Space ticks. The toolkit's cost of new rows grows with
/// their number, so while the user types elsewhere, for instance into a filter, changed rows are shown when the
/// typing pauses. Screen readers see the toolkit's rows, cells and headers.
class ReportGrid : public wxDataViewCtrl {
  public:
    ReportGrid(wxWindow* parent, ReportControl& report);
    ~ReportGrid() override;

    struct Events {
        std::function<void()> selection;  ///< the selection or the focused row may have changed
        std::function<void(std::size_t row)> activated;
        std::function<void(std::size_t column)> headerClicked;
        std::function<void(const wxPoint& onScreen)> contextMenu;    ///< asked for by the pointer
        std::function<void(const std::function<void()>& what)> act;  ///< reports another act to the control
    };
    Events events;

    /// The inner window that holds the rows and takes the input.
    wxWindow& rowsWindow() const;
    /// Shows the control's columns, rows, selection, focus and sort order. Sends the same events as the user's
    /// own actions; the caller has to ignore them.
    void showReport();
    /// Passes the user's column order and widths and the text of an open editor to the control.
    void settle();

    std::vector<std::size_t> selection() const;  ///< ascending
    std::optional<std::size_t> focusedRow() const;
    void bringIntoView(std::size_t row) { scrollTo(*this, itemOf(row), static_cast<unsigned>(row)); }
    /// Selects just this row and brings it into view.
    void goTo(std::size_t row);
    /// The row at a point of the screen, if there is one.
    std::optional<std::size_t> rowAt(const wxPoint& onScreen) const;
    /// The lower left corner of a row on the screen; nothing when it is not in view.
    std::optional<wxPoint> belowRow(std::size_t row) const;
    /// The width at which every column shows its caption whole and has the width it asks for, in pixels.
    int naturalWidth() const { return desktop::naturalWidth(*this, report_); }

    /// An editor is open in a cell and has the keyboard.
    bool isEditing() const { return editor_.isOpen(); }
    /// Handles a key that edits cells. True when the key needs no further handling.
    bool takesKey(const wxKeyEvent& key);
    /// Takes the keyboard and opens the editor in a cell.
    void beginEdit(ReportControl::Cell cell);
    /// Handles a letter typed on the focused row. True when it was entered into a cell.
    bool takesLetter(const wxString& letter);

    /// The cell that keys edit: the column of the focused row that has the focus, or the first one that can
    /// be edited.
    std::optional<ReportControl::Cell> currentCell() const;
    /// The rows in the window are not yet those of the control.
    bool refillPending() const { return refill_.IsRunning(); }

  private:
    class Model;

    void bindEvents();
    void showColumns();
    void appendColumn(std::size_t column);
    void refill();
    void showSortOrder();
    void showSelection();
    bool edit(const std::optional<ReportControl::Cell>& cell);
    std::optional<ReportControl::Cell> textCell(std::size_t row) const;
    bool editByList(const std::optional<ReportControl::Cell>& cell);
    std::size_t focusedColumn(std::size_t row) const;
    void acceptEdit();
    bool tick();
    bool moveOn(bool backwards);
    bool setValue(const wxVariant& value, ReportControl::Cell cell);
    wxDataViewItem itemOf(std::size_t row) const;
    wxDataViewColumn* columnWindow(std::size_t column) const;
    std::vector<std::size_t> orderInWindow() const;

    ReportControl& report_;
    GroupTexts groups_;
    wxObjectDataPtr<Model> model_;
    CellEditor editor_;
    wxTimer refill_;
    std::vector<std::size_t> order_;  // of the columns, last shown or reported
    std::vector<int> widths_;         // by column, in pixels; last shown or reported
    std::vector<wxString> captions_;
    std::uint64_t shownVersion_ = 0;
    std::int32_t editedID_ = 0;                  // of the record whose cell has the editor
    ReportControl::Cell lastCell_{SIZE_MAX, 0};  // the last one with the editor, or that Tab reached
    bool filled_ = false;
    bool quiet_ = false;     // events sent now are not caused by the user
    bool settling_ = false;  // in an act: typed text is passed to the control directly
    bool taking_ = false;    // the toolkit is processing an edited cell
    bool tabbing_ = false;   // the user goes from cell to cell by Tab
};

}  // namespace tsln::desktop
