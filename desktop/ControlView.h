#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <wx/window.h>

#include "screens/Control.h"

class wxKeyEvent;

namespace tsln::desktop {

class ScreenDialog;

/// Draws one control of a screen by a window and reports what the user does to it. The window belongs to its
/// parent window; the view, to the dialog, which destroys the windows first.
class ControlView {
  public:
    virtual ~ControlView() = default;
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;

    Control& control() const noexcept { return control_; }
    wxWindow& window() const noexcept { return *window_; }
    /// The window in it that takes the keyboard.
    virtual wxWindow& inputWindow() const { return *window_; }

    /// Draws the control anew from its state. Sends nothing back to it.
    void update();
    /// Reports what the window knows and the control does not yet. Called at the beginning of every act.
    virtual void settle() {}
    /// A key pressed while the focus is here. True when that was all.
    virtual bool takesKey([[maybe_unused]] const wxKeyEvent& key) { return false; }
    /// Enter or Esc mean something here, so that they press no button of the dialog.
    virtual bool wantsKey([[maybe_unused]] int keyCode) const { return false; }

    /// The user pressed its mnemonic, or that of the label before it. The platform's own handling does not
    /// reach every window that may have the focus.
    virtual void mnemonic() { takeFocus(); }
    /// Takes the keyboard by the screen's wish.
    virtual void takeFocus() { inputWindow().SetFocus(); }

    /// The label before it in the layout, which is hidden along with it.
    void setLabel(wxWindow* label) { label_ = label; }

    /// True when the keyboard can be moved here: by a mnemonic, or when the screen opens.
    virtual bool takesFocus() const { return true; }
    /// The keyboard stops here when the screen opens, if this is the first such control.
    virtual bool isTabStop() const { return takesFocus(); }
    /// It only holds other controls, and has the keyboard whenever one of them has.
    virtual bool holdsOthers() const { return false; }
    /// The text on the control itself; its "&" marks the control's mnemonic.
    virtual wxString caption() const { return {}; }

    /// Takes a window made as a child of its own, which holds what the layout puts there: a page, a pane.
    virtual void addPart([[maybe_unused]] wxWindow* part) {}
    /// The windows between which F6 moves the keyboard.
    virtual const std::vector<wxWindow*>& panes() const;

    /// How it stands in the layout.
    virtual bool growsWide() const { return false; }
    virtual bool growsHigh() const { return false; }
    /// The size in pixels it would like at first; its window's least size may be smaller.
    virtual wxSize preferredSize() const { return window_->GetEffectiveMinSize(); }
    /// Where a popup opens, in pixels of the screen.
    virtual wxPoint popupPosition() const;

  protected:
    ControlView(ScreenDialog& dialog, Control& control) : dialog_(dialog), control_(control) {}
    void setWindow(wxWindow* window) { window_ = window; }
    ScreenDialog& dialog() const noexcept { return dialog_; }
    /// Draws what the kind adds.
    virtual void updateContent() = 0;
    /// Reports an act of the user to the control, unless the screen is at work.
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

/// The view of a control of whatever kind; null for a kind that shows no window.
ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, Control& control);

/// The width of so many characters of average text in the window's font, in pixels.
int widthOfCharacters(const wxWindow& window, int characters);

}  // namespace tsln::desktop
