#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "bridge/Host.h"
#include "bridge/Library.h"
#include "screens/Screen.h"

namespace tsln {

/// A screen of the module: it keeps the library that opened it, calls the host, stores its window position, and
/// reports errors through the host.
class HostScreen : public Screen {
  public:
    HostScreen(Library& library, std::string name)
        : Screen(library.desktop(), std::move(name)), library_(library) {}

    Library& library() const noexcept { return library_; }
    Host host() const { return Host(library_); }

    /// Shows a message box with an OK button. Without a title it has the program's.
    void tell(std::string_view text, MessageIcon icon, std::string_view title = {}) {
        desktop().messageBox(this, text, MessageButtons::Ok, icon, title);
    }
    /// Asks with Yes and No; true for Yes.
    bool ask(std::string_view question, std::string_view title = {}) {
        return desktop().messageBox(this, question, MessageButtons::YesNo, MessageIcon::Question, title) ==
               MessageAnswer::Yes;
    }
    /// Reports a failed statement, with the database's description of the error.
    /// `show` shows it; by default it is logged, too.
    void reportDatabaseFailure(std::string_view message, std::string_view explanation = standardExplanation,
                               Host::ShowFailure show = &Host::ShowAndLogErrorMessage);
    /// Reports a failed statement that ran on the company's connection.
    void reportConnectionFailure(std::string_view message,
                                 std::string_view explanation = standardExplanation);

  protected:
    /// Refuses a close box while the screen is busy.
    bool Form_QueryUnload(bool byCloseBox) override { return !(byCloseBox && busy_ > 0); }
    void Form_Help() override;
    void reportError(const std::exception& error) noexcept override;

  private:
    friend class Busy;

    Library& library_;
    int busy_ = 0;  // the number of Busy objects
};

/// Marks a screen as busy for its own lifetime. It disables the buttons, and at the end enables those that it
/// disabled.
class Busy {
  public:
    /// The screen and its buttons must outlive it.
    Busy(HostScreen& screen, std::initializer_list<Button*> buttons);
    ~Busy();
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

  private:
    HostScreen& screen_;
    std::vector<Button*> disabled_;
};

/// The stored values of a screen's window. Editors also store whether the window is maximized.
enum class WindowValues { Place, PlaceAndState };

/// The key under which the values of a screen's window are stored.
std::string windowPositionKey(const Screen& screen);

/// Restores a screen's window position from the user's settings: Left, Width and Height, and WindowState if
/// requested, under the window positions key and the screen's name. A value that is no number is ignored.
void restoreWindowPosition(Screen& screen, WindowValues which = WindowValues::Place);
void saveWindowPosition(Screen& screen, WindowValues which = WindowValues::Place);

/// The user settings of the application.
inline constexpr std::string_view settingsKey = "Software\\Kestrane\\Tessaline\\5.0";

}  // namespace tsln
