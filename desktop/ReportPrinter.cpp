#include "desktop/ReportPrinter.h"

#include <algorithm>
#include <numeric>

#include <wx/choice.h>
#include <wx/control.h>
#include <wx/datetime.h>
#include <wx/dc.h>
#include <wx/display.h>
#include <wx/evtloop.h>
#include <wx/statusbr.h>
#include <wx/textctrl.h>
#ifdef __WXGTK__
#include <gtk/gtk.h>
#endif

#include "desktop/NativeWindow.h"
#include "desktop/ReportTexts.h"
#include "desktop/Text.h"

namespace tsln::desktop {
namespace {

constexpr int marginMillimetres = 15;
constexpr int widestPortrait = 720;  // pixels at 96 per inch; wider lists print across the long side

wxFont bodyFont() {
    return wxFont(wxFontInfo(9).Family(wxFONTFAMILY_SWISS));
}
wxFont headingFont() {
    return bodyFont().Bold();
}
wxFont titleFont() {
    return wxFont(wxFontInfo(14).Family(wxFONTFAMILY_SWISS).Bold());
}

int totalWidth(const ReportControl& report) {
    return std::accumulate(report.columns.begin(), report.columns.end(), 0,
                           [](int sum, const ReportControl::Column& column) { return sum + column.width; });
}

wxPageSetupDialogData pageFor(const ReportControl& report) {
    wxPrintData print;
    print.SetOrientation(totalWidth(report) > widestPortrait ? wxLANDSCAPE : wxPORTRAIT);
    wxPageSetupDialogData page(print);
    page.SetMarginTopLeft({marginMillimetres, marginMillimetres});
    page.SetMarginBottomRight({marginMillimetres, marginMillimetres});
    return page;
}

/// The toolkit gives the preview's controls tool tips at most.
void nameControls(wxWindow& parent) {
    for (wxWindow* child : parent.GetChildren()) {
        if (dynamic_cast<wxPreviewCanvas*>(child)) {
            setAccessibleName(*child, "Preview of the page");
        } else if (auto* page = dynamic_cast<wxTextCtrl*>(child)) {
            setAccessibleName(*page, "Page");
            page->SetMinSize({page->GetMinSize().x, boxHeight(*page)});
        } else if (dynamic_cast<wxChoice*>(child)) {
            setAccessibleName(*child, "Zoom");
        } else if (child->GetLabel().empty() && !child->GetToolTipText().empty()) {
            setAccessibleName(*child, child->GetToolTipText());
        }
        nameControls(*child);
    }
}

/// The preview's window, modal above modal dialogs.
class PreviewFrame : public wxPreviewFrame {
  public:
    /// Ends the loop when it closes. The loop must outlive it.
    PreviewFrame(wxPrintPreview* preview, wxWindow* owner, const wxString& title, wxGUIEventLoop& loop)
        : wxPreviewFrame(preview, owner, title), loop_(loop) {
        Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& event) {
            event.Skip();
#ifdef __WXGTK__
            gtk_grab_remove(GetHandle());
#endif
            if (loop_.IsRunning()) loop_.ScheduleExit();
        });
        Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
            if (event.GetKeyCode() == WXK_ESCAPE) {
                Close(true);
            } else {
                event.Skip();
            }
        });
    }

    void open() {
        InitializeWithModality(wxPreviewFrame_AppModal);
        // The toolkit's status line is too low for the letters' descenders.
        if (wxStatusBar* line = GetStatusBar()) line->SetMinHeight(line->GetCharHeight() + FromDIP(10));
        nameControls(*this);
        wxSize size = FromDIP(wxSize(900, 700));
        size.DecTo(wxDisplay(this).GetClientArea().GetSize() -
                   wxSize(0, 4 * GetCharHeight()));  // the title bar
        SetSize(size);
        CentreOnScreen();
        Show();
#ifdef __WXGTK__
        gtk_grab_add(GetHandle());  // a modal dialog below holds the grab, and with it all input
#endif
        Raise();
    }

  private:
    /// Leaves out the buttons that are not needed to reach every page where the display has no room for all.
    void CreateControlBar() override {
        wxPreviewFrame::CreateControlBar();
        if (m_controlBar->GetBestSize().x <= wxDisplay(this).GetClientArea().width) return;
        m_controlBar->Destroy();
        m_controlBar = new wxPreviewControlBar(
            m_printPreview, wxPREVIEW_PRINT | wxPREVIEW_PREVIOUS | wxPREVIEW_NEXT | wxPREVIEW_ZOOM, this);
        m_controlBar->CreateButtons();
    }

    wxGUIEventLoop& loop_;
};

}  // namespace

ReportPrintout::ReportPrintout(const ReportControl& report, const wxString& title,
                               const wxPageSetupDialogData& page)
    : wxPrintout(title), report_(report), title_(title), date_(wxDateTime::Now().Format("%x")), page_(page) {}

void ReportPrintout::OnPreparePrinting() {
    MapScreenSizeToPageMargins(page_);
    measure();
}

void ReportPrintout::measure() {
    wxDC& dc = *GetDC();
    area_ = GetLogicalPageMarginsRect(page_);
    dc.SetFont(titleFont());
    titleHeight_ = dc.GetCharHeight() * 2;
    dc.SetFont(bodyFont());
    padding_ = std::max(1, dc.GetCharWidth() / 2);
    rowHeight_ = dc.GetCharHeight() * 4 / 3;

    columns_.clear();
    const int total = std::max(1, totalWidth(report_));
    int before = 0;  // scaled from the running sum, so that rounding leaves no gap at the right
    for (const std::size_t index : report_.columnOrder()) {
        const ReportControl::Column& column = report_.columns[index];
        const auto scaled = [&](int width) {
            return static_cast<int>(static_cast<long long>(width) * area_.width / total);
        };
        columns_.push_back(
            {&column, index, area_.x + scaled(before), scaled(before + column.width) - scaled(before)});
        before += column.width;
    }

    const int bodyHeight =
        area_.height - titleHeight_ - 3 * rowHeight_;  // headings, and the foot with its distance
    rowsPerPage_ = static_cast<std::size_t>(std::max(1, bodyHeight / std::max(1, rowHeight_)));
    const std::size_t pages = (report_.rowCount() + rowsPerPage_ - 1) / rowsPerPage_;
    pageCount_ = static_cast<int>(std::max<std::size_t>(1, pages));
}

void ReportPrintout::GetPageInfo(int* least, int* most, int* from, int* to) {
    *least = *from = 1;
    *most = *to = pageCount_;
}

bool ReportPrintout::OnPrintPage(int page) {
    if (!GetDC() || !HasPage(page)) return false;
    MapScreenSizeToPageMargins(page_);
    wxDC& dc = *GetDC();
    dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
    dc.SetTextForeground(*wxBLACK);
    printHeading(dc, page);
    const std::size_t first = static_cast<std::size_t>(page - 1) * rowsPerPage_;
    const std::size_t end = std::min(first + rowsPerPage_, report_.rowCount());
    int top = area_.y + titleHeight_ + rowHeight_;
    for (std::size_t row = first; row < end; ++row, top += rowHeight_)
        printRow(dc, row, top);
    return true;
}

void ReportPrintout::printHeading(wxDC& dc, int page) {
    dc.SetFont(titleFont());
    printCell(dc, title_, area_.x, area_.y, area_.width * 3 / 4, false);
    dc.SetFont(bodyFont());
    printCell(dc, date_, area_.x + area_.width * 3 / 4, area_.y, area_.width / 4, true);
    printCell(dc, wxString::Format("Page %d of %d", page, pageCount_), area_.x,
              area_.GetBottom() - rowHeight_, area_.width, true);

    dc.SetFont(headingFont());
    const int top = area_.y + titleHeight_;
    for (const Column& column : columns_) {
        printCell(dc, toWx(column.shown->caption), column.left, top, column.width,
                  column.shown->rightAligned);
    }
    dc.SetPen(wxPen(*wxBLACK, 1));
    dc.DrawLine(area_.x, top + rowHeight_ - 1, area_.GetRight(), top + rowHeight_ - 1);
}

void ReportPrintout::printRow(wxDC& dc, std::size_t row, int top) {
    if (report_.row(row).isGroup()) {
        dc.SetFont(headingFont());
        printCell(dc, shownText(report_, row, 0), area_.x, top, area_.width, false);
    } else {
        dc.SetFont(bodyFont());
        for (const Column& column : columns_) {
            printCell(dc, shownText(report_, row, column.index), column.left, top, column.width,
                      column.shown->rightAligned);
        }
    }
    dc.SetPen(wxPen(wxColour(200, 200, 200), 1));
    dc.DrawLine(area_.x, top + rowHeight_ - 1, area_.GetRight(), top + rowHeight_ - 1);
}

void ReportPrintout::printCell(wxDC& dc, const wxString& text, int left, int top, int width,
                               bool rightAligned) const {
    const wxString shown = wxControl::Ellipsize(text, dc, wxELLIPSIZE_END, std::max(1, width - 2 * padding_));
    const int extent = rightAligned ? dc.GetTextExtent(shown).x : 0;
    const int x = rightAligned ? left + width - padding_ - extent : left + padding_;
    dc.DrawText(shown, x, top + (rowHeight_ - dc.GetCharHeight()) / 2);
}

void previewReport(wxWindow* owner, const ReportControl& report, const wxString& title) {
    const wxPageSetupDialogData page = pageFor(report);
    wxPrintDialogData printing(page.GetPrintData());
    // One printout for the screen, one for the printer; the preview owns both.
    auto* preview = new wxPrintPreview(new ReportPrintout(report, title, page),
                                       new ReportPrintout(report, title, page), &printing);
    if (!preview->IsOk()) {
        delete preview;
        return;
    }
    preview->SetZoom(100);
    wxGUIEventLoop loop;
    (new PreviewFrame(preview, owner, title + " - Print Preview", loop))->open();
    loop.Run();  // the frame deletes itself once it is closed
}

}  // namespace tsln::desktop
