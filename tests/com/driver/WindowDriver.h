#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "com/edge/Platform.h"

namespace tsln::test {

/// Thrown when an expected event does not occur in time.
class DriverError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The visible windows within a window, also those within its parts.
std::vector<HWND> childrenOf(HWND window);
/// Returns the visible top-level windows of all programs, the foremost first.
std::vector<HWND> topWindows();
/// Returns the enabled top-level windows of this program.
std::vector<HWND> ownInputWindows();

/// Operates the windows of any program: finds them by caption and sends them messages of the system. It must not run
/// on the windows' thread. Texts are UTF-8; captions are compared with their "&". Every member waits until its action
/// is possible, and throws DriverError after a time limit.
class WindowDriver {
  public:
    /// Returns the visible, enabled top-level window with this caption.
    HWND window(const std::string& caption);
    /// Returns true when no visible window has the caption, now or within the time limit.
    bool gone(const std::string& caption);
    /// Presses a button that closes its window or opens another one, by its caption.
    void press(const std::string& window, const std::string& button);
    /// Ticks a check box or chooses an option that is not chosen, by its caption. The window stays open.
    void tick(const std::string& window, const std::string& button);
    /// Presses a button once, which need not close or open a window.
    void click(const std::string& window, const std::string& button);
    /// Presses a button that opens a menu, and chooses an item of the menu by its number from 1.
    void choose(const std::string& window, const std::string& button, int item);
    /// Replaces the text of an entry field, by its number from 0 in tab order.
    void fill(const std::string& window, std::size_t field, const std::string& text);
    std::string read(const std::string& window, std::size_t field);
    /// Puts the window in front of all others, so that it gets the keys that are typed.
    void bringToFront(const std::string& window);
    /// Clicks the close box. The window must close or open another one.
    void close(const std::string& window);
    /// Selects the first row of a list of records, once the list has one. Other processes and threads see no more of
    /// the rows: Wine passes the accessibility interface to none of them.
    void selectFirstRow(const std::string& window);
    /// Returns the captions of all visible top-level windows, for messages.
    static std::vector<std::string> captions();

  private:
    HWND child(const std::string& window, const std::function<bool(HWND)>& isMeant, const std::string& what);
    HWND button(const std::string& window, const std::string& caption);
    HWND field(const std::string& window, std::size_t number);
};

}  // namespace tsln::test
