#pragma once

#include <string>

namespace tsln::workbench {

/// Writes a new file completely or not at all: under another name beside `path`, flushed to the disk, then moved to
/// `path`. Never replaces a file that was created there in the meantime (which is kept). Returns an empty text, or a
/// sentence for the user with the reason of the failure.
std::string writeNewFile(const std::string& path, const unsigned char* bytes, std::size_t size);

}  // namespace tsln::workbench
