#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tsln {

// File names are UTF-8 texts on every system. std::filesystem::path reads a std::string in the system's own
// encoding, so texts are converted by these two functions.

inline std::filesystem::path pathOf(std::string_view utf8) {
    return std::u8string(utf8.begin(), utf8.end());
}

inline std::string utf8Of(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

}  // namespace tsln
