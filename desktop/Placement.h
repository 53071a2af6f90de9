#pragma once

#include <wx/gdicmn.h>

#include "screens/Screen.h"

namespace tsln::desktop {

/// The constraints on the place of a screen's window; all in one unit of length.
struct Surroundings {
    wxRect display;  ///< the part of the display that windows may use
    wxRect owner;    ///< the window below, or the display when there is none
    wxSize least;    ///< the minimum size, unless the display is smaller
    wxSize natural;  ///< the size used when none is stored
};

/// The window's rectangle. Stored values are limited so that the whole window is on the display; without
/// stored values the window is centred on its owner.
wxRect placeWindow(const Screen::Placement& stored, bool resizable, const Surroundings& around);

}  // namespace tsln::desktop
