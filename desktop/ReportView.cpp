#include <algorithm>
#include <chrono>

#include <wx/event.h>
#include <wx/panel.h>
#include <wx/settings.h>
#include <wx/sizer.h>

#include "desktop/ControlView.h"
#include "desktop/ReportList.h"
#include "desktop/ScreenDialog.h"
#include "desktop/Text.h"

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
          list_(new ReportList(border_, report)) {
        setWindow(border_);
        border_->SetMinSize(border_->FromDIP(wxSize(leastWide, leastHigh)));
        // A line in the system's colour; the toolkit's own borders are black or none, depending on the
        // platform.
        border_->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_3DSHADOW));
        auto* sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(list_, wxSizerFlags(1).Expand().Border(wxALL, 1));
        border_->SetSizer(sizer);
        bindSelection();
        bindMouse();
        list_->Bind(wxEVT_CHAR, &ReportView::onChar, this);
        for (wxWindow* child : list_->GetChildren())
            child->Bind(wxEVT_CHAR, &ReportView::onChar, this);
    }

    wxWindow& inputWindow() const override { return *list_; }
    bool growsWide() const override { return true; }
    bool growsHigh() const override { return true; }

    wxSize preferredSize() const override {
        constexpr int scrollBar = 24;
        const int wide = list_->ToDIP(list_->naturalWidth()) + scrollBar;
        const auto lists = std::ranges::count_if(report_.screen().controls(), [](const Control* control) {
            return dynamic_cast<const ReportControl*>(control) != nullptr;
        });
        const int high = std::max(firstHigh / static_cast<int>(lists), leastHigh);
        return list_->FromDIP(wxSize(std::clamp(wide, leastWide, mostWide), high));
    }

    wxPoint popupPosition() const override {
        if (popupAt_ != wxDefaultPosition) return popupAt_;
        wxRect row;
        const auto focused = list_->focusedRow();
        if (focused && list_->GetItemRect(static_cast<long>(*focused), row))
            return list_->ClientToScreen(row.GetBottomLeft());
        return list_->ClientToScreen(wxPoint(0, 0));
    }

    void settle() override {
        if (!unreported_) return;
        unreported_ = false;
        const std::vector<std::size_t> selected = list_->selection();
        const auto focused = list_->focusedRow();
        if (focused == report_.focusedRow() && std::ranges::equal(selected, report_.selectedRows())) return;
        report_.userSelect(selected, focused);
    }

    bool takesKey(const wxKeyEvent& key) override {
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
        list_->showReport();
        showing_ = false;
        unreported_ = false;
    }

    /// Takes the first key that moves within the rows. The toolkit's list is either on the first row from the
    /// start and would step over it, or, if its rows came after the keyboard, on none and stays there.
    bool enterRows(const wxKeyEvent& key) {
        if (report_.rowCount() == 0 || (key.GetModifiers() & ~wxMOD_SHIFT) != 0) return false;
        switch (key.GetKeyCode()) {
            case WXK_UP:
            case WXK_DOWN:
            case WXK_HOME:
            case WXK_PAGEUP:
            case WXK_PAGEDOWN:
                list_->goTo(0);
                break;
            case WXK_END:
                list_->goTo(report_.rowCount() - 1);
                break;
            default:
                return false;
        }
        selectionMayHaveChanged();
        act([] {});
        return true;
    }

    /// One act of the user changes the state of many rows; the list tells of each, or of none. So whatever
    /// may have changed the selection only asks for one report of the whole.
    void selectionMayHaveChanged() {
        if (showing_ || unreported_) return;
        unreported_ = true;
        list_->CallAfter([this] {
            if (unreported_) act([] {});  // every act settles first
        });
    }

    void bindSelection() {
        const auto changed = [this](wxEvent& event) {
            event.Skip();
            selectionMayHaveChanged();
        };
        list_->Bind(wxEVT_LIST_ITEM_SELECTED, changed);
        list_->Bind(wxEVT_LIST_ITEM_DESELECTED, changed);
        list_->Bind(wxEVT_LIST_ITEM_FOCUSED, changed);
        // A click beside the rows or a range by Shift sends none of these.
        const auto bindInput = [&](wxWindow* window) {
            window->Bind(wxEVT_LEFT_UP, changed);
            window->Bind(wxEVT_KEY_UP, changed);
        };
        bindInput(list_);
        for (wxWindow* child : list_->GetChildren())
            bindInput(child);
    }

    void bindMouse() {
        list_->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent& event) {
            const auto row = static_cast<std::size_t>(event.GetIndex());
            act([this, row] { report_.userDoubleClick(row); });
        });
        list_->Bind(wxEVT_LIST_COL_CLICK, [this](wxListEvent& event) {
            const int column = event.GetColumn();
            if (column < 0) return;
            act([this, column] { report_.userClickHeader(static_cast<std::size_t>(column)); });
        });
        list_->Bind(wxEVT_LIST_COL_BEGIN_DRAG, [this](wxListEvent& event) {
            const auto column = static_cast<std::size_t>(event.GetColumn());
            if (column < report_.columns.size() && !report_.columns[column].resizable) event.Veto();
        });
        list_->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
            event.Skip();
            list_->CallAfter([this] { list_->stretchColumn(); });
        });
        list_->Bind(wxEVT_CONTEXT_MENU, &ReportView::onContextMenu, this);
#ifndef __WXMSW__
        list_->rowsWindow().Bind(wxEVT_RIGHT_UP, [this](wxMouseEvent& event) {
            openContextMenu(list_->rowsWindow().ClientToScreen(event.GetPosition()));
        });
#endif
    }

    void onContextMenu(wxContextMenuEvent& event) {
#ifndef __WXMSW__
        // The generic window sends this for the pointer only beside its rows; its button tells of all of
        // them.
        if (event.GetPosition() != wxDefaultPosition) return;
#endif
        openContextMenu(event.GetPosition());
    }

    /// `at`: on the screen; none when asked for by the keyboard.
    void openContextMenu(const wxPoint& at) {
        popupAt_ = at;
        act([this] {
            const auto row = popupAt_ == wxDefaultPosition ? report_.focusedRow() : list_->rowAt(popupAt_);
            report_.userContextMenu(row.value_or(report_.rowCount()));
        });
        popupAt_ = wxDefaultPosition;
    }

    /// Letters typed in one go look for the row that begins with them.
    void onChar(wxKeyEvent& event) {
        const wxChar letter = event.GetUnicodeKey();
        const bool modified = event.ControlDown() || event.AltDown();
        const Clock::time_point now = Clock::now();
        const bool goesOn = now - lastTyped_ < typingPause && !typed_.empty();
        if (modified || letter <= ' ' || letter == WXK_DELETE) {
            if (!goesOn || letter != ' ') return event.Skip();
        }
        if (!goesOn) typed_.clear();
        typed_ += letter;
        lastTyped_ = now;
        const std::size_t focused = list_->focusedRow().value_or(0);
        // The first letter moves on from a row that begins with it already.
        if (const auto row = list_->findText(typed_, typed_.size() == 1 ? focused + 1 : focused)) {
            list_->goTo(*row);
            selectionMayHaveChanged();
        }
    }

    ReportControl& report_;
    wxPanel* border_;
    ReportList* list_;
    bool showing_ = false;
    bool unreported_ = false;
    wxPoint popupAt_ = wxDefaultPosition;
    wxString typed_;
    Clock::time_point lastTyped_{};
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, ReportControl& report) {
    return std::make_unique<ReportView>(dialog, parent, report);
}

}  // namespace tsln::desktop
