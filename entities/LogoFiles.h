#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The picture files in a company's reports folder. Paths and names are UTF-8.
namespace tsln::entities::logoFiles {

/// The names of the pictures (jpg, png, gif) in the folder, by name. Empty for a folder that cannot be read.
std::vector<std::string> list(const std::string& folder);
bool exists(const std::string& path);
/// The name of a file without its folder.
std::string nameOf(const std::string& path);
/// The path of a file in the folder.
std::string within(const std::string& folder, const std::string& name);
/// Copies a file and replaces an existing one. Returns false when that failed; the existing file is unchanged then.
bool copy(const std::string& from, const std::string& to);

}  // namespace tsln::entities::logoFiles
