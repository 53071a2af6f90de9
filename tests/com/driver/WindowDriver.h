#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "com/edge/Platform.h"

namespace tsln::test {

/// Thrown when something did not happen within the time to wait.
class DriverError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The visible top-level windows of all programs, the foremost first.
std::vector<HWND> topWindows();
/// The enabled top-level windows of this program.
std::vector<HWND> ownInputWindows();

/// Operates the windows of any program: finds them by their captions and sends them messages of the system.
/// Must run on another thread than the windows. Texts are UTF-8; captions are compared with their "&". Every
/// member waits until its act is possible, and throws DriverError when that takes too long.
class WindowDriver {
  public:
    /// The visible, enabled top-level window of that caption.
    HWND window(const std::string& caption);
    /// True when no visible window has the caption, at once or within the time to wait.
    bool gone(const std::string& caption);
    /// Presses a button that closes its window or opens another one, by its caption.
    void press(const std::string& window, const std::string& button);
    /// Presses a button that opens a menu, and chooses the menu's item of that number, from 1.
    void choose(const std::string& window, const std::string& button, int item);
    /// Replaces the text of the window's entry field of that number, from 0 in the order of the keyboard.
    void fill(const std::string& window, std::size_t field, const std::string& text);
    std::string read(const std::string& window, std::size_t field);
    /// Clicks the close box. The window must close or open another one.
    void close(const std::string& window);
    /// Waits until the window's list has that many rows.
    void waitForRows(const std::string& window, int count);
    /// Captions of the visible top-level windows that a program with such windows shows, for messages.
    static std::vector<std::string> captions();

  private:
    HWND child(const std::string& window, const std::function<bool(HWND)>& isMeant, const std::string& what);
    HWND button(const std::string& window, const std::string& caption);
    HWND field(const std::string& window, std::size_t number);
};

}  // namespace tsln::test
