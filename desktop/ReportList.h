#pragma once

#include <vector>

#include <wx/listctrl.h>

#include "desktop/ReportTexts.h"
#include "desktop/ReportWindow.h"

namespace tsln::desktop {

/// The window of a report control for reading: asks the control for each row it paints, so that its cost does
/// not depend on the number of rows.
class ReportList : public wxListCtrl, public ReportWindow {
  public:
    ReportList(wxWindow* parent, ReportControl& report);

    wxWindow& window() override { return *this; }
    wxWindow& rowsWindow() const override;
    void showReport() override;

    std::vector<std::size_t> selection() const override;
    std::optional<std::size_t> focusedRow() const override;
    void goTo(std::size_t row) override;
    std::optional<std::size_t> rowAt(const wxPoint& onScreen) const override;
    std::optional<wxPoint> belowRow(std::size_t row) const override;
    int naturalWidth() const override { return desktop::naturalWidth(*this, report_); }
#ifndef __WXMSW__
    /// The generic list does nothing where it takes itself for focused, also when its rows have lost the
    /// keyboard while the window was disabled.
    void SetFocus() override {
        rowsWindow().SetFocus();
    }
#endif

  private:
    wxString OnGetItemText(long item, long column) const override;
    wxItemAttr* OnGetItemAttr(long item) const override;
    int OnGetItemColumnImage(long item, long column) const override;

    /// A column as it is shown.
    struct Shown {
        std::size_t column = 0;
        wxString caption;
        int width = 0;  // as the control has it
        friend bool operator==(const Shown&, const Shown&) = default;
    };

    void bindEvents();
    void columnDragged(std::size_t place);
    void stretchColumn();
    void showColumns();
    void showSelection();
    void showSortOrder();

    ReportControl& report_;
    wxItemAttr groupAttr_;
    mutable wxItemAttr recordAttr_;  // of the row that was asked for last
    std::vector<Shown> shown_;       // from left to right
    GroupTexts groups_;
};

}  // namespace tsln::desktop
