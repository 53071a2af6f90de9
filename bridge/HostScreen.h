#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "bridge/Host.h"
#include "bridge/Library.h"
#include "screens/Screen.h"

namespace tsln {

/// A screen of the module: it knows the library that opened it, asks the host through it, keeps its window
/// position, and reports what goes wrong through the host.
class HostScreen : public Screen {
  public:
    HostScreen(Library& library, std::string name)
        : Screen(library.desktop(), std::move(name)), library_(library) {}

    Library& library() const noexcept { return library_; }
    Host host() const { return Host(library_); }

    /// A plain message box of the module.
    void tell(std::string_view text, MessageIcon icon) {
        desktop().messageBox(this, text, MessageButtons::Ok, icon);
    }
    bool ask(std::string_view question) {
        return desktop().messageBox(this, question, MessageButtons::YesNo, MessageIcon::Question) ==
               MessageAnswer::Yes;
    }
    /// Reports a failed statement with the database's own words.
    void reportDatabaseFailure(std::string_view message, std::string_view explanation = standardExplanation);

  protected:
    /// While the screen is busy, a request to close it by its close box is refused.
    bool Form_QueryUnload(bool byCloseBox) override { return !(byCloseBox && busy_ > 0); }
    void Form_Help() override;
    void reportError(const std::exception& error) noexcept override;

  private:
    friend class Busy;

    Library& library_;
    int busy_ = 0;  // how many Busy there are
};

/// Marks a screen as busy while it lives. The buttons are disabled meanwhile; those that were enabled before are
/// enabled again in the end.
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

/// Which values of a screen's window are kept: the editors keep, besides its place and size, whether it fills
/// the display.
enum class WindowValues { Place, PlaceAndState };

/// Puts a screen where its user left it. Left, Width and Height, and WindowState if wanted, are kept under
/// the window positions key in a value set named after the screen; values that are no numbers are passed
/// over.
void restoreWindowPosition(Screen& screen, WindowValues which = WindowValues::Place);
void saveWindowPosition(Screen& screen, WindowValues which = WindowValues::Place);

/// The user settings of the application.
inline constexpr std::string_view settingsKey = "Software\\Kestrane\\Tessaline\\5.0";

}  // namespace tsln
