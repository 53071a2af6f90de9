#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "bridge/Operations.h"

namespace tsln::workbench {

/// One stop of the gallery: an operation that is called, and what the user does in the windows it opens.
struct GalleryStop {
    std::string name;  ///< of its pictures' files
    Operation operation;
    std::vector<std::string> arguments = {};
    /// Keys in their order, as readKeys() has them.
    std::string_view keys = {};
    /// Statements that make the company what the stop needs, split by ";".
    std::string_view prepare = {};
};

/// Every operation that opens a screen, with arguments that suit the demonstration company; those that edit a
/// row once for a new row and once for an existing one. Then what takes some keys to show. An operation that
/// is added to the library is among them by itself.
std::vector<GalleryStop> galleryStops();

/// What the user does next.
struct Keystroke {
    enum class Kind {
        Press,
        Type,
        Look,     ///< at what has opened
        Picture,  ///< at the windows as they are now, new or not
        Wait,     ///< gives a process the time to end
    };
    Kind kind = Kind::Press;
    int key = 0;  ///< a WXK_ code or a character
    int modifiers = 0;
    std::string text;
};

/// Reads keys: "Enter", "Shift+Down", "Alt+m", "*" for a picture, "..." for a wait, and "=Net_21" to type
/// "Net 21". Throws std::invalid_argument for a word that is none of these.
std::vector<Keystroke> readKeys(std::string_view keys);

}  // namespace tsln::workbench
