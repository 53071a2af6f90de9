#pragma once

#include <functional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <wx/dialog.h>

#include "desktop/ControlView.h"
#include "desktop/ForeignWindows.h"
#include "screens/Screen.h"

namespace tsln::desktop {

/// The window of a screen while it is shown: built from the screen's layout, keeps it drawn, and reports the
/// user's acts to it. One act at a time: what the user does while the screen is at work is not passed on.
class ScreenDialog : public wxDialog, private ScreenView {
  public:
    /// Both must outlive the dialog.
    ScreenDialog(wxWindow* owner, Screen& screen);
    ~ScreenDialog() override;

    /// Shows the dialog and returns when the screen is hidden or unloaded.
    void run();
    void EndModal(int result) override;

    Screen& screen() const noexcept { return screen_; }
    /// Runs an act of the user, then draws what it changed. Nothing happens while another one runs or the
    /// screen is gone. What it throws is reported by the screen.
    void act(const std::function<void()>& what) override;
    /// Whether the control takes input now: while the screen does a job, only the job's cancel button does.
    bool takesInput(const Control& control) const;
    /// Passes a press of the job's cancel button on to the job; false for any other control.
    bool cancelsJob(const Control& control);
    /// Gives the keyboard back to the control that had it.
    void restoreFocus();
    /// Draws what has changed so far; for an act that is about to wait for something.
    void drawChanges();

    // For the layout and the views ----------------------------------------------------------------
    /// Takes the view over and returns it; null is passed through.
    ControlView* addView(ControlViewPtr view);
    /// Alt and the letter that the label marks moves the focus to the view.
    void addMnemonic(const wxString& label, ControlView& view);
    ControlView* viewOf(const Control& control) const;
    /// Something changed its size or came or went.
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
    bool leftFront_ = false;  // another window came to the front since the screen was activated
    bool closePending_ = false;
    bool abandoned_ = false;  // the window is gone or the program ends: the screen has no say
    bool pointerBusy_ = false;
};

}  // namespace tsln::desktop
