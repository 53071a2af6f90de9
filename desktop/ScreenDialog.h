#pragma once

#include <functional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <wx/dialog.h>
#include <wx/scrolwin.h>

#include "desktop/ControlView.h"
#include "desktop/ForeignWindows.h"
#include "screens/Screen.h"

namespace tsln::desktop {

/// The window of a screen while it is shown. It is built from the screen's layout, redraws changed controls
/// and reports the user's actions to the screen, one at a time: actions during another action are dropped.
class ScreenDialog : public wxDialog, private ScreenView {
  public:
    /// `owner`, which may be null, and `screen` must outlive the dialog.
    ScreenDialog(wxWindow* owner, Screen& screen);
    ~ScreenDialog() override;

    /// Shows the dialog and returns when the screen is hidden or unloaded.
    void run();
    void EndModal(int result) override;

    Screen& screen() const noexcept { return screen_; }
    /// Runs a user action, then redraws what it changed. Does nothing while another action runs or when the
    /// screen is not shown. The screen reports exceptions of `what`.
    void act(const std::function<void()>& what) override;
    /// Whether the control takes input now. During a job only the job's cancel button does.
    bool takesInput(const Control& control) const;
    /// Cancels the job if `control` is its cancel button. Returns false for any other control.
    bool cancelsJob(const Control& control);
    /// Moves the keyboard focus back to the control that had it last.
    void restoreFocus();
    /// Redraws what has changed so far. For actions that are about to wait.
    void drawChanges();

    // For the layout and the views ----------------------------------------------------------------
    /// Takes ownership of the view and returns it; null is returned unchanged.
    ControlView* addView(ControlViewPtr view);
    /// Makes Alt and the letter marked in the label activate the view.
    void addMnemonic(const wxString& label, ControlView& view);
    ControlView* viewOf(const Control& control) const;
    /// A control changed its size or was shown or hidden.
    void layoutChanged() { layoutDirty_ = true; }

  private:
    void controlChanged(Control& control) override;
    void screenChanged() override;
    void focusChanged(Control& control) override;
    void jobChanged() override;

    ControlView* viewWithKeyboard() const;
    void place();
    wxSize naturalSize();
    wxSize updateLeastSize();
    wxRect displayArea() const;
    wxSize leastClientSize();
    void narrowToDisplay();
    void rememberPlacement();
    void setInitialFocus();
    void moveFocus(ControlView& view);
    void noticeFocus();
    void activateFirst();
    void requestClose();
    void abandon();
    void showPointer();

    void onActivate(wxActivateEvent& event);
    void onKey(wxKeyEvent& event);
    bool pressKey(const wxKeyEvent& key);
    bool turnPage(int keyCode);
    bool turnPane(bool back);
    std::vector<wxWindow*> panes() const;
    bool pressMnemonic(const wxKeyEvent& key);
    bool press(bool (*isMeant)(const Control& control));

    Screen& screen_;
    wxScrolledWindow* content_ = nullptr;  // the screen without its last row
    std::vector<ControlViewPtr> views_;
    std::unordered_map<const Control*, ControlView*> viewByControl_;
    std::unordered_map<int, std::vector<ControlView*>> viewsByMnemonic_;
    std::unordered_set<ControlView*> changed_;
    ControlView* focused_ = nullptr;
    ControlView* focusedBeforeJob_ = nullptr;
    ForeignWindows* foreign_ = nullptr;  // while the dialog is shown
    bool layoutDirty_ = false;
    bool acting_ = false;
    bool activated_ = false;
    bool leftFront_ = false;  // another window was activated since the screen's last activation
    bool closePending_ = false;
    bool abandoned_ = false;  // the window or the program ends: the screen cannot refuse to close
    bool pointerBusy_ = false;
};

}  // namespace tsln::desktop
