#pragma once

#include <filesystem>

namespace tsln::workbench {

/// Draws the logos of the demonstration company into the folder, as PNG files. A file that exists stays. A failure to
/// write is ignored: the company works without logos.
void writeSamplePictures(const std::filesystem::path& folder);

}  // namespace tsln::workbench
