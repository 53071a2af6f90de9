#pragma once

#include <functional>
#include <iosfwd>

namespace tsln {

class Screen;

/// Asks for a file name and lets `write` write the text file, in UTF-8 with lines ended by CR LF. Tells the user when the
/// file cannot be written. Nothing is written when the user cancels.
void saveTextFile(Screen& screen, const std::function<void(std::ostream& file)>& write);

}  // namespace tsln
