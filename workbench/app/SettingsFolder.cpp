#include "workbench/app/SettingsFolder.h"

#include <cstdlib>
#include <filesystem>

#include "automation/FilePath.h"

namespace tsln::workbench {
namespace {

std::filesystem::path userFolder() {
    for (const char* variable : {"XDG_CONFIG_HOME", "APPDATA"}) {
        if (const char* folder = std::getenv(variable); folder && *folder) return folder;
    }
    if (const char* home = std::getenv("HOME"); home && *home) return std::filesystem::path(home) / ".config";
    return std::filesystem::temp_directory_path();
}

}  // namespace

std::string settingsFile(std::string_view name) {
    const std::filesystem::path folder = userFolder() / "tessaline";
    std::error_code ignored;  // without settings only places and sizes of windows are lost
    std::filesystem::create_directories(folder, ignored);
    return utf8Of(folder / name);
}

}  // namespace tsln::workbench
