#pragma once

#include "desktop/ForeignWindows.h"

class wxDialog;
class wxWindow;

namespace tsln::workbench {

/// Determines where a modal window of the host opens: over the screen or window that called for it. On Windows the
/// module's screens belong to another toolkit; they are disabled for the lifetime of this object.
class OverScreens {
  public:
    OverScreens();
    /// The parent for the window; null when this toolkit knows no such window.
    wxWindow* owner() const noexcept { return owner_; }
    /// Keeps a dialog without a parent above the screen. The dialog is cancelled when the screen is destroyed.
    void own(wxDialog& dialog);

  private:
    wxWindow* const owner_;  // found before the screens are disabled
    desktop::ForeignWindows screens_;
};

}  // namespace tsln::workbench
