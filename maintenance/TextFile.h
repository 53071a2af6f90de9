#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

namespace tsln {

class Screen;

/// Asks for a file name, proposing `path` and then setting it to the chosen path, and lets `write` write the text file, in UTF-8 with lines ended by CR LF. Tells the user when the
/// file cannot be written. Nothing is written when the user cancels.
void saveTextFile(Screen& screen, std::string& path, const std::function<void(std::ostream& file)>& write);

/// A name for a file with the data of this caption or name, without the signs that file systems refuse.
std::string fileName(std::string_view caption, std::string_view ending);

}  // namespace tsln
