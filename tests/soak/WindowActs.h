#pragma once

#include <functional>
#include <string>

#include "desktop/ScreenDialog.h"
#include "tests/soak/RandomUser.h"

namespace tsln::soak {

/// An act on a window, not yet done.
struct WindowAct {
    std::string what;  ///< for the diary; empty for no act
    std::function<void()> act;
};

/// Some act on the window of a control: a click, a key, a text.
WindowAct someAct(test::Random& random, desktop::ScreenDialog& dialog, Control& control);
/// A key that the dialog may get whatever control has the keyboard.
WindowAct someKey(test::Random& random, desktop::ScreenDialog& dialog);

}  // namespace tsln::soak
