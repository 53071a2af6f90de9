#pragma once

#include <string>

namespace tsln::workbench {

/// Writes a new file in one go: under a name of its own beside `path`, flushed to the disk, then moved to
/// `path` without ever replacing a file that somebody else has made there in the meantime (theirs stays).
/// Empty when done, else a sentence for the user that says why not; nothing is left behind then.
std::string writeNewFile(const std::string& path, const unsigned char* bytes, std::size_t size);

}  // namespace tsln::workbench
