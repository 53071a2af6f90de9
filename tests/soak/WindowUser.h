#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <string>

#include <wx/weakref.h>
#include <wx/window.h>

#include "desktop/ScreenDialog.h"
#include "tests/soak/GtkInput.h"
#include "tests/soak/RandomUser.h"

namespace tsln::soak {

/// The random user at real windows. Each time the event loop has nothing else to do, also that of a dialog above others
/// or of a menu, he does one act in the window in front.
class WindowUser {
  public:
    /// `callOperation` lets the host call some operation while a screen is shown.
    WindowUser(RandomUser& user, std::function<void()> callOperation);
    ~WindowUser();
    WindowUser(const WindowUser&) = delete;
    WindowUser& operator=(const WindowUser&) = delete;

  private:
    using Clock = std::chrono::steady_clock;
    /// What he intends in a window.
    struct Visit {
        int left;                      ///< acts before he leaves; negative: he tries to leave
        wxWeakRef<wxWindow> window{};  ///< null once it is destroyed
        Clock::time_point since = Clock::now();
    };

    void schedule(unsigned milliseconds);
    void slowDown();  ///< puts off the next turn
    void turn();
    void workMenu(GtkMenuShell& menu);
    void workScreen(desktop::ScreenDialog& dialog);
    void leave(desktop::ScreenDialog& dialog, Visit& visit);
    void workDialog(wxTopLevelWindow& window);
    Visit& visitOf(wxWindow& window, int patience);

    RandomUser& user_;
    const std::function<void()> callOperation_;
    std::map<const wxWindow*, Visit> visits_;
    int withoutInput_ = 0;  ///< turns since a window took all input
    guint source_ = 0;
};

/// Starts the toolkit and lets the random user work real windows until so many acts are done.
void runWindows(RandomUser& user, const std::string& folder, std::size_t acts);

}  // namespace tsln::soak
