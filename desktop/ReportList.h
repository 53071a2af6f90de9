#pragma once

#include <cstdint>
#include <vector>

#include <wx/listctrl.h>

#include "screens/ReportControl.h"

namespace tsln::desktop {

/// The window of a report control: asks the control for each row it paints, so that its cost does not depend
/// on the number of rows.
class ReportList : public wxListCtrl {
  public:
    ReportList(wxWindow* parent, const ReportControl& report);

    /// Takes over columns, rows, selection, focus and sort order. Sends events like a user's act would; the
    /// caller tells them apart.
    void showReport();

    std::vector<std::size_t> selection() const;
    std::optional<std::size_t> focusedRow() const;
    /// Selects just this row and brings it into view.
    void goTo(std::size_t row);
    /// The next row after `from` whose text in the sorted column, or the first one, begins with `start`.
    std::optional<std::size_t> findText(const wxString& start, std::size_t from) const;
    /// The row at a point of the screen, if there is one.
    std::optional<std::size_t> rowAt(const wxPoint& onScreen) const;
    /// The inner window that holds the rows and takes the input.
    wxWindow& rowsWindow() const;
#ifndef __WXMSW__
    /// The generic list does nothing where it takes itself for focused, also when its rows have lost the
    /// keyboard while the window was disabled.
    void SetFocus() override {
        rowsWindow().SetFocus();
    }
#endif
    /// Lets one column take the width that is left.
    void stretchColumn();
    /// The width at which every column shows its caption whole and has the width it asks for, in pixels.
    int naturalWidth() const;

  private:
    wxString OnGetItemText(long item, long column) const override;
    wxItemAttr* OnGetItemAttr(long item) const override;
    int OnGetItemColumnImage(long item, long column) const override;

    int naturalWidth(const ReportControl::Column& column) const;
    void showColumns();
    void showSelection();
    void showSortOrder();
    void countGroups();
    wxString groupText(std::size_t row) const;

    const ReportControl& report_;
    wxItemAttr groupAttr_;
    std::vector<wxString> captions_;        // of the columns shown now
    std::vector<std::uint32_t> groupRows_;  // ascending
};

}  // namespace tsln::desktop
