#pragma once

#include <wx/gdicmn.h>

#include "screens/Screen.h"

namespace tsln::desktop {

/// Where a screen's window goes; all in one unit of length.
struct Surroundings {
    wxRect display;  ///< the part of the display that windows may use
    wxRect owner;    ///< the window below, or the display when there is none
    wxSize least;    ///< the window is never smaller, unless the display is
    wxSize natural;  ///< its size when none is stored
};

/// The window's rectangle: the stored values as far as they keep the window whole on the display, otherwise
/// centred on its owner.
wxRect placeWindow(const Screen::Placement& stored, bool resizable, const Surroundings& around);

}  // namespace tsln::desktop
