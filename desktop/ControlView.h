#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <wx/window.h>

#include "screens/Control.h"

class wxKeyEvent;

namespace tsln::desktop {

class ScreenDialog;

/// Shows one control of a screen in a window and reports the user's actions to the control. The window is
/// owned by its parent window, the view by the dialog. The dialog destroys the windows before the views.
class ControlView {
  public:
    virtual ~ControlView() = default;
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;

    Control& control() const noexcept { return control_; }
    wxWindow& window() const noexcept { return *window_; }
    /// The window that takes the keyboard focus: this window or a part of it.
    virtual wxWindow& inputWindow() const { return *window_; }

    /// Updates the window from the control's state. Reports nothing to the control.
    void update();
    /// Reports changes in the window that the control has not received yet. Called at the start of every
    /// action.
    virtual void settle() {}
    /// Handles a key pressed while the control has the focus. Returns true when the key needs no other
    /// handling.
    virtual bool takesKey([[maybe_unused]] const wxKeyEvent& key) { return false; }
    /// Whether the window itself handles Enter or Esc, which then press no button of the dialog.
    virtual bool wantsKey([[maybe_unused]] int keyCode) const { return false; }

    /// The user pressed the mnemonic of the control or of the label before it. The platform's own handling
    /// does not reach every window that may have the focus.
    virtual void mnemonic() { takeFocus(); }
    /// Takes the keyboard focus at the request of the screen.
    virtual void takeFocus() { inputWindow().SetFocus(); }

    /// Sets the label before the control in the layout. It is shown and hidden with the control.
    void setLabel(wxWindow* label) { label_ = label; }

    /// Whether the control can receive the keyboard focus, by a mnemonic or when the screen opens.
    virtual bool takesFocus() const { return true; }
    /// Whether the control can be the one with the focus when the screen opens.
    virtual bool isTabStop() const { return takesFocus(); }
    /// Whether the control is only a container, which never has the keyboard focus itself.
    virtual bool holdsOthers() const { return false; }
    /// Whether the user can only look at the control. It keeps its look while a job takes no input.
    virtual bool onlyShows() const { return false; }
    /// The text on the control; its "&" marks the mnemonic.
    virtual wxString caption() const { return {}; }

    /// Adds a page or a pane: a child of this window that contains a part of the layout.
    virtual void addPart([[maybe_unused]] wxWindow* part) {}
    /// The panes between which F6 moves the keyboard focus.
    virtual const std::vector<wxWindow*>& panes() const;

    /// Whether the window takes the available width or height of the layout.
    virtual bool growsWide() const { return false; }
    virtual bool growsHigh() const { return false; }
    /// The preferred initial size in pixels; the window's minimum size may be smaller.
    virtual wxSize preferredSize() const { return window_->GetEffectiveMinSize(); }
    /// The position of a popup, in screen pixels.
    virtual wxPoint popupPosition() const;

  protected:
    ControlView(ScreenDialog& dialog, Control& control) : dialog_(dialog), control_(control) {}
    void setWindow(wxWindow* window) { window_ = window; }
    ScreenDialog& dialog() const noexcept { return dialog_; }
    /// Updates the state that the derived class shows.
    virtual void updateContent() = 0;
    /// Reports a user action to the control, by ScreenDialog::act().
    void act(const std::function<void()>& what);

  private:
    ScreenDialog& dialog_;
    Control& control_;
    wxWindow* window_ = nullptr;
    wxWindow* label_ = nullptr;
};

using ControlViewPtr = std::unique_ptr<ControlView>;

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, Button& button);
ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, CheckBox& box);
ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, CheckList& list);
ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, ColorBox& box);
ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, ComboBox& box);
ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, DateBox& box);
ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, Frame& frame);
ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, Label& label);
ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, MarkupLabel& label);
ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, OptionButton& button);
ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, Picture& picture);
ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, ProgressBar& bar);
ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, PropertyGrid& grid);
ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, ReportControl& report);
ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, Splitter& splitter);
ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, TabControl& tabs);
ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, TextBox& box);

/// Makes the view of a control; null for a kind that has no window.
ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, Control& control);

/// The width of `characters` characters of average text in the window's font, in pixels.
int widthOfCharacters(const wxWindow& window, int characters);

}  // namespace tsln::desktop
