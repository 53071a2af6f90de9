#pragma once

#include <string_view>

namespace tsln::workbench {

/// A kind of files that the host keeps in a folder of its own.
struct FileLocation {
    std::string_view name;
    const char* folder;  ///< below the company's folder; empty: that folder
};
inline constexpr FileLocation fileLocations[] = {
    {"Companies", ""},
    {"Products", "Products"},
    {"Reports", "Reports"},
    {"Export Files", "Export Files"},
    {"Sync", "Sync"},
    {"Document Templates", "Document Templates"},
    {"Kestrane Connect", "Kestrane Connect"},
};

/// The section of the company's options that hold the folders which are not the usual ones.
inline constexpr std::string_view fileLocationSection = "File Locations";

}  // namespace tsln::workbench
