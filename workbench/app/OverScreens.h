#pragma once

#include "desktop/ForeignWindows.h"

class wxTopLevelWindow;
class wxWindow;

namespace tsln::workbench {

/// Where a modal window of the host opens: over the screen or window that asked for it. On Windows the
/// module's screens are windows of another toolkit, which take no input while this lives.
class OverScreens {
  public:
    OverScreens();
    /// The parent for the window; null where it has none that this toolkit knows.
    wxWindow* owner() const noexcept { return owner_; }
    /// Keeps a window without a parent above the screen.
    void own(wxTopLevelWindow& window) const { screens_.own(window); }

  private:
    wxWindow* const owner_;  // looked up before the screens are held still
    const desktop::ForeignWindows screens_;
};

}  // namespace tsln::workbench
