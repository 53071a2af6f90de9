#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "bridge/Operations.h"

namespace tsln::workbench {

/// An argument that stands for the path of a company of version 4.2, made for the stop. Its customers are so many that the
/// migration is seen at work.
inline constexpr std::string_view oldCompanyArgument = "{a company of version 4.2}";

/// One stop of the gallery: the called operation, and the user's actions in the windows it opens.
struct GalleryStop {
    std::string name;  ///< the base of the picture files' names
    Operation operation;
    std::vector<std::string> arguments = {};
    /// The keys to press, in the syntax of readKeys().
    std::string_view keys = {};
    /// Statements that prepare the company for the stop, separated by ";".
    std::string_view prepare = {};
};

/// Returns a stop for every operation that opens a screen, with arguments that fit the demonstration company; for an
/// operation that edits a row, one for a new row and one for an existing row. Then follow stops that need keys. An
/// operation added to the library is included automatically.
std::vector<GalleryStop> galleryStops();

/// The next action of the user.
struct Keystroke {
    enum class Kind {
        Press,
        Type,
        Look,     ///< looks at a newly opened window
        Picture,  ///< takes a picture of the current windows, new or not
        Wait,     ///< gives a process the time to end
    };
    Kind kind = Kind::Press;
    int key = 0;  ///< a WXK_ code or a character
    int modifiers = 0;
    std::string text;
};

/// Parses keys: "Enter", "Shift+Down", "Alt+m", "*" for a picture, "..." for a wait, and "=Net_21" to type "Net 21".
/// Throws std::invalid_argument for any other word.
std::vector<Keystroke> readKeys(std::string_view keys);

}  // namespace tsln::workbench
