#pragma once

#include "desktop/ForeignWindows.h"

class wxDialog;
class wxWindow;

namespace tsln::workbench {

/// Where a modal window of the host opens: over the screen or window that asked for it. On Windows the
/// module's screens are windows of another toolkit, which take no input while this lives.
class OverScreens {
  public:
    OverScreens();
    /// The parent for the window; null where it has none that this toolkit knows.
    wxWindow* owner() const noexcept { return owner_; }
    /// Keeps a dialog without a parent above the screen; it is cancelled when the screen is destroyed.
    void own(wxDialog& dialog);

  private:
    wxWindow* const owner_;  // looked up before the screens are held still
    desktop::ForeignWindows screens_;
};

}  // namespace tsln::workbench
