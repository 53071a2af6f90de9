#pragma once

#include <vector>

#include <wx/dataview.h>
#include <wx/timer.h>

#include "desktop/NativeGrid.h"
#include "desktop/ReportTexts.h"
#include "desktop/ReportWindow.h"

namespace tsln::desktop {

/// The window of a report control whose cells are edited in place.
///
/// F2, Enter or typing edit the cell of the focused row that the arrow keys have moved to, Tab goes on to the
/// next one; Space ticks. The toolkit's cost of new rows grows with their number, so while the user types
/// elsewhere, for instance into a filter, changed rows are shown when the typing pauses.
class ReportGrid : public wxDataViewCtrl, public ReportWindow {
  public:
    ReportGrid(wxWindow* parent, ReportControl& report);
    ~ReportGrid() override;

    wxWindow& window() override { return *this; }
    wxWindow& rowsWindow() const override;
    void showReport() override;
    void settle() override;

    std::vector<std::size_t> selection() const override;
    std::optional<std::size_t> focusedRow() const override;
    void goTo(std::size_t row) override;
    std::optional<std::size_t> rowAt(const wxPoint& onScreen) const override;
    std::optional<wxPoint> belowRow(std::size_t row) const override;
    int naturalWidth() const override { return desktop::naturalWidth(*this, report_); }

    bool isEditing() const override { return editor_.isOpen(); }
    bool takesKey(const wxKeyEvent& key) override;
    bool takesLetter(const wxString& letter) override;

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
