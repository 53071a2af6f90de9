#pragma once

#include <functional>
#include <vector>

#include <wx/gdicmn.h>

class wxTopLevelWindow;

namespace tsln::desktop {

/// Disables the windows of this thread that the toolkit did not open, such as the host's, while it exists.
/// The toolkit disables only its own windows while a dialog is modal. Does nothing on other systems than
/// Windows.
class ForeignWindows {
  public:
    /// Disables the foreign windows that are shown and enabled.
    ForeignWindows();
    /// Enables the windows that are still disabled and activates the one that was active before.
    ~ForeignWindows();
    ForeignWindows(const ForeignWindows&) = delete;
    ForeignWindows& operator=(const ForeignWindows&) = delete;

    /// Disables again what the host has enabled since: a message box of the host enables its owner when it closes.
    void disable();
    /// Enables the windows again, the last disabled first. Must be called before the modal window is hidden:
    /// otherwise the system finds no enabled window of this program and activates another program's.
    void enable() noexcept;

    /// Makes the foremost foreign window the owner of `window`, which stays above it, unless `window` has a
    /// parent. When the owner is destroyed before this object, the system also destroys `window`, and
    /// `onLost` is called. May be called once.
    void own(wxTopLevelWindow& window, std::function<void()> onLost);

    /// Posts the quit message again after a nested message loop has removed it from the queue, so that the
    /// outer loop ends, too. The exit code of the original message is replaced by 0.
    static void passQuitOn() noexcept;

    /// The rectangle of the foremost foreign window, in screen pixels; empty without one.
    static wxRect foremostRect();

  private:
    // Only Windows uses these.
    [[maybe_unused]] void* foremost_ = nullptr;
    std::vector<void*> disabled_;
    [[maybe_unused]] void* owned_ = nullptr;  // the window given to own(); null without one
    std::function<void()> onLost_;
};

}  // namespace tsln::desktop
