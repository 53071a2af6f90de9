#include <algorithm>
#include <chrono>

#include <wx/event.h>
#include <wx/panel.h>
#include <wx/settings.h>
#include <wx/sizer.h>

#include "desktop/ControlView.h"
#include "desktop/ReportGrid.h"
#include "desktop/ScreenDialog.h"

namespace tsln::desktop {
namespace {

using Clock = std::chrono::steady_clock;
constexpr auto typingPause = std::chrono::seconds(1);  // after that a letter starts a new search

constexpr int leastWide = 260;  // pixels at 96 per inch
constexpr int leastHigh = 160;
constexpr int mostWide = 900;   // at first; the user may make it wider
constexpr int firstHigh = 340;  // shared by the lists of a screen

class ReportView : public ControlView {
  public:
    ReportView(ScreenDialog& dialog, wxWindow* parent, ReportControl& report)
        : ControlView(dialog, report),
          report_(report),
          border_(new wxPanel(parent)),
          rows_(*new ReportGrid(border_, report)) {
        setWindow(border_);
        border_->SetMinSize(border_->FromDIP(wxSize(leastWide, std::min(leastHigh, firstHeight()))));
        // A line in the system's colour; the toolkit's own borders are black or none, depending on the
        // platform.
        border_->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_3DSHADOW));
        auto* sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(&rows_, wxSizerFlags(1).Expand().Border(wxALL, 1));
        border_->SetSizer(sizer);
        bindEvents();
        bindInput(rows_);
        for (wxWindow* child : rows_.GetChildren())
            bindInput(*child);
    }

    wxWindow& inputWindow() const override { return rows_; }
    bool growsWide() const override { return true; }
    bool growsHigh() const override { return true; }

    wxSize preferredSize() const override {
        constexpr int scrollBar = 24;
        const int wide = border_->ToDIP(rows_.naturalWidth()) + scrollBar;
        return border_->FromDIP(wxSize(std::clamp(wide, leastWide, mostWide), firstHeight()));
    }

    /// In pixels at 96 per inch.
    int firstHeight() const {
        constexpr int roundText = 8;  // within a row
        if (report_.rowsAtFirst > 0)
            return (report_.rowsAtFirst + 1) * (border_->ToDIP(rows_.GetCharHeight()) + roundText);
        // This one is among them.
        const auto lists = std::ranges::count_if(report_.screen().controls(), [](const Control* control) {
            return dynamic_cast<const ReportControl*>(control) != nullptr;
        });
        return std::max(firstHigh / std::max(static_cast<int>(lists), 1), leastHigh);
    }

    wxPoint popupPosition() const override {
        if (popupAt_ != wxDefaultPosition) return popupAt_;
        if (const auto focused = rows_.focusedRow()) {
            if (const auto below = rows_.belowRow(*focused)) return *below;
        }
        return rows_.ClientToScreen(wxPoint(0, 0));
    }

    void settle() override {
        if (!reporting_) rows_.settle();
        if (!unreported_) return;
        unreported_ = false;
        const std::vector<std::size_t> selected = rows_.selection();
        const auto focused = rows_.focusedRow();
        if (focused == report_.focusedRow() && std::ranges::equal(selected, report_.selectedRows())) return;
        report_.userSelect(selected, focused);
    }

    bool wantsKey(int) const override { return rows_.isEditing(); }

    bool takesKey(const wxKeyEvent& key) override {
        // A space typed during a search by letters belongs to the search text.
        if (!(key.GetKeyCode() == WXK_SPACE && isSearching()) && rows_.takesKey(key)) return true;
        if (rows_.isEditing()) return false;
        const int code = key.GetKeyCode();
        if (key.GetModifiers() == wxMOD_CONTROL && code == 'A') {
            act([this] { report_.userSelectAll(); });
            return true;
        }
        if (!report_.focusedRow() && enterRows(key)) return true;
        if (key.HasAnyModifiers()) return false;
        switch (code) {
            case WXK_RETURN:
            case WXK_NUMPAD_ENTER:
                // A list whose rows do not open leaves Enter to the default button.
                if (!report_.onRowDoubleClick) return false;
                act([this] {
                    if (report_.focusedRow()) report_.userDoubleClick(*report_.focusedRow());
                });
                return true;
            case WXK_INSERT:
            case WXK_NUMPAD_INSERT:
                act([this] { report_.userInsertKey(); });
                return true;
            case WXK_DELETE:
            case WXK_NUMPAD_DELETE:
                act([this] { report_.userDeleteKey(); });
                return true;
            default:
                return false;
        }
    }

  private:
    void updateContent() override {
        showing_ = true;
        rows_.showReport();
        showing_ = false;
        unreported_ = false;
        if (const auto cell = report_.takeEditRequest()) {
            // Once the act has ended: the editor must not open while the rows are replaced.
            border_->CallAfter([this, cell] { rows_.beginEdit(*cell); });
        }
    }

    /// Handles the first key that moves within the rows. The toolkit's list is either on the first row from the
    /// start and would step over it, or, if its rows came after the keyboard, on none and stays there.
    bool enterRows(const wxKeyEvent& key) {
        if (report_.rowCount() == 0 || (key.GetModifiers() & ~wxMOD_SHIFT) != 0) return false;
        switch (key.GetKeyCode()) {
            case WXK_UP:
            case WXK_DOWN:
            case WXK_HOME:
            case WXK_PAGEUP:
            case WXK_PAGEDOWN:
                rows_.goTo(0);
                break;
            case WXK_END:
                rows_.goTo(report_.rowCount() - 1);
                break;
            default:
                return false;
        }
        selectionMayHaveChanged();
        act([] {});
        return true;
    }

    /// One act of the user changes the state of many rows; the list reports each of them, or none. So whatever
    /// may have changed the selection only asks for one report of the whole.
    void selectionMayHaveChanged() {
        if (showing_ || unreported_) return;
        unreported_ = true;
        border_->CallAfter([this] {
            if (!unreported_) return;
            reporting_ = true;  // an editor that the user has just opened stays open
            act([] {});         // every act settles first
            reporting_ = false;
        });
    }

    void bindEvents() {
        rows_.events = {
            .selection = [this] { selectionMayHaveChanged(); },
            .activated = [this](std::size_t row) { act([this, row] { report_.userDoubleClick(row); }); },
            .headerClicked = [this](std::size_t column) { act([&] { report_.userClickHeader(column); }); },
            .contextMenu = [this](const wxPoint& at) { openContextMenu(at); },
            .act = [this](const std::function<void()>& what) { act(what); },
        };
        rows_.Bind(wxEVT_CONTEXT_MENU, &ReportView::onContextMenu, this);
    }

    void bindInput(wxWindow& window) {
        // A click outside the rows or a range selected by Shift changes the selection without an event.
        const auto changed = [this](wxEvent& event) {
            event.Skip();
            selectionMayHaveChanged();
        };
        window.Bind(wxEVT_LEFT_UP, changed);
        window.Bind(wxEVT_KEY_UP, changed);
        window.Bind(wxEVT_CHAR, &ReportView::onChar, this);
    }

    void onContextMenu(wxContextMenuEvent& event) {
#ifndef __WXMSW__
        // The generic window sends this only for clicks outside its rows; the mouse button's event comes for
        // all of them.
        if (event.GetPosition() != wxDefaultPosition) return;
#endif
        openContextMenu(event.GetPosition());
    }

    /// `at`: on the screen; none when asked for by the keyboard.
    void openContextMenu(const wxPoint& at) {
        popupAt_ = at;
        act([this] {
            const auto row = popupAt_ == wxDefaultPosition ? report_.focusedRow() : rows_.rowAt(popupAt_);
            report_.userContextMenu(row.value_or(report_.rowCount()));
        });
        popupAt_ = wxDefaultPosition;
    }

    bool isSearching() const {
        return !typed_.empty() && Clock::now() - lastTyped_ < typingPause;
    }

    /// Letters typed in one go look for the row that begins with them.
    void onChar(wxKeyEvent& event) {
        const wxChar letter = event.GetUnicodeKey();
        const bool modified = event.ControlDown() || event.AltDown();
        if (!modified && letter > ' ' && letter != WXK_DELETE && rows_.takesLetter(wxString(letter))) return;
        const bool goesOn = isSearching();
        if (modified || letter <= ' ' || letter == WXK_DELETE) {
            if (!goesOn || letter != ' ') return event.Skip();
        }
        if (!goesOn) typed_.clear();
        typed_ += letter;
        lastTyped_ = Clock::now();
        const std::size_t focused = rows_.focusedRow().value_or(0);
        // The first letter moves on from a row that begins with it already.
        if (const auto row = findText(report_, typed_, typed_.size() == 1 ? focused + 1 : focused)) {
            rows_.goTo(*row);
            selectionMayHaveChanged();
        }
    }

    ReportControl& report_;
    wxPanel* border_;
    ReportGrid& rows_;
    bool showing_ = false;
    bool unreported_ = false;
    bool reporting_ = false;
    wxPoint popupAt_ = wxDefaultPosition;
    wxString typed_;
    Clock::time_point lastTyped_{};
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, ReportControl& report) {
    return std::make_unique<ReportView>(dialog, parent, report);
}

}  // namespace tsln::desktop
