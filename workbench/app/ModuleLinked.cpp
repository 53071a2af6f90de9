#ifndef _WIN32
#include <cstdlib>
#include <filesystem>

#include "automation/FilePath.h"
#include "bridge/Library.h"
#include "desktop/WxDesktop.h"
#include "module/Module.h"
#include "workbench/app/Module.h"
#include "workbench/host/CompanySession.h"

namespace tsln::workbench {
namespace {

/// The path of the user's settings file, in the platform's folder for settings, which is created when missing.
std::string settingsFile() {
    const char* config = std::getenv("XDG_CONFIG_HOME");
    const char* home = std::getenv("HOME");
    const std::filesystem::path folder = (config && *config ? std::filesystem::path(config)
                                          : home && *home   ? std::filesystem::path(home) / ".config"
                                                            : std::filesystem::temp_directory_path()) /
                                         "tessaline";
    std::error_code ignored;  // without settings only the window positions are lost
    std::filesystem::create_directories(folder, ignored);
    return utf8Of(folder / "settings.ini");
}

}  // namespace

struct Module::Parts {
    desktop::WxDesktop desktop;
    ObjectPtr library;
};

Module::Module(const CompanySession& session, OnProcessEnd onProcessEnd)
    : parts_(new Parts{
          .desktop{[&session](std::string_view programId) { return session.createObject(programId); },
                   settingsFile()}}) {
    parts_->desktop.onProcessEnd = std::move(onProcessEnd);
    auto library = std::make_shared<Library>(parts_->desktop);
    plugInModule(*library);
    parts_->library = std::move(library);
}

Module::~Module() = default;

const ObjectPtr& Module::library() const noexcept {
    return parts_->library;
}

}  // namespace tsln::workbench
#endif
