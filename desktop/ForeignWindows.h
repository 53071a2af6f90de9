#pragma once

#include <functional>
#include <vector>

#include <wx/gdicmn.h>

class wxTopLevelWindow;

namespace tsln::desktop {

/// The windows of this thread that another part of the program has opened: the host's, where the screens are
/// guests. The toolkit knows nothing of them. While this lives they take no input, as behind any modal
/// window. Elsewhere than on Windows there are none.
class ForeignWindows {
  public:
    /// Disables those that are shown and enabled.
    ForeignWindows();
    /// Enables those that still are disabled, and gives the keyboard back to the one that had it.
    ~ForeignWindows();
    ForeignWindows(const ForeignWindows&) = delete;
    ForeignWindows& operator=(const ForeignWindows&) = delete;

    /// Enables them again, the last disabled first. To be called before the modal window goes: the system
    /// activates an enabled window then, and would pick one of another program.
    void enable() noexcept;

    /// Keeps a window that has no parent above the foreign window that was in front, as its owner. Should the
    /// owner be destroyed before this object, the system destroys the window as well, and `onLost` is called.
    /// To be called once at most.
    void own(wxTopLevelWindow& window, std::function<void()> onLost);

    /// The program is ending: tells its message loop so again, after a loop of ours has taken the word from
    /// the queue. The exit code that came with it is lost; it becomes 0.
    static void passQuitOn() noexcept;

    /// Where that foreign window is; empty when there is none.
    static wxRect foremostRect();

  private:
    void* foremost_ = nullptr;
    std::vector<void*> disabled_;
    void* owned_ = nullptr;  // while there is a window to watch
    std::function<void()> onLost_;
};

}  // namespace tsln::desktop
