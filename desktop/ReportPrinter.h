#pragma once

#include <cstddef>
#include <vector>

#include <wx/cmndata.h>
#include <wx/print.h>

#include "screens/ReportControl.h"

namespace tsln::desktop {

/// Prints a report: title and date above, the columns scaled to the page's width with their headings on every
/// page, the page's number below. The report must outlive it and stay as it is.
class ReportPrintout : public wxPrintout {
  public:
    ReportPrintout(const ReportControl& report, const wxString& title, const wxPageSetupDialogData& page);

    void OnPreparePrinting() override;
    bool HasPage(int page) override { return page >= 1 && page <= pageCount_; }
    void GetPageInfo(int* least, int* most, int* from, int* to) override;
    bool OnPrintPage(int page) override;

    int pageCount() const noexcept { return pageCount_; }

  private:
    struct Column {
        const ReportControl::Column* shown = nullptr;
        std::size_t index = 0;
        int left = 0;
        int width = 0;
    };
    void measure();
    void printHeading(wxDC& dc, int page);
    void printRow(wxDC& dc, std::size_t row, int top);
    void printCell(wxDC& dc, const wxString& text, int left, int top, int width, bool rightAligned) const;

    const ReportControl& report_;
    wxString title_;
    wxString date_;
    const wxPageSetupDialogData& page_;
    wxRect area_;  // all of these in the units of the page's logical coordinates
    std::vector<Column> columns_;
    int titleHeight_ = 0;
    int rowHeight_ = 0;
    int padding_ = 0;
    std::size_t rowsPerPage_ = 1;
    int pageCount_ = 1;
};

/// Shows the pages of the report over `owner`, from where the user may print them, and returns when the
/// window is closed. Works without a printer.
void previewReport(wxWindow* owner, const ReportControl& report, const wxString& title);

}  // namespace tsln::desktop
