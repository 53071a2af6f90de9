#ifndef _WIN32
#include "bridge/Library.h"
#include "desktop/WxDesktop.h"
#include "module/Module.h"
#include "workbench/app/Module.h"
#include "workbench/app/SettingsFolder.h"
#include "workbench/host/CompanySession.h"

namespace tsln::workbench {
struct Module::Parts {
    desktop::WxDesktop desktop;
    ObjectPtr library;
};

Module::Module(const CompanySession& session, const OnProcessEnd& onProcessEnd)
    : parts_(new Parts{
          .desktop{[&session](std::string_view programId) { return session.createObject(programId); },
                   settingsFile("settings.ini")}}) {
    parts_->desktop.onProcessEnd = onProcessEnd;
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
