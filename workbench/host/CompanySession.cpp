#include "workbench/host/CompanySession.h"

#include "workbench/host/Components.h"
#include "workbench/host/Sha2.h"
#include "workbench/host/SharedCode.h"

namespace tsln::workbench {

CompanySession::CompanySession(const std::string& path, std::string_view login, HostUi& ui, OpenMode mode)
    : context_(std::make_shared<HostContext>(path, mode, login, ui)),
      sharedCode_(std::make_shared<TracedObject>(std::make_shared<SharedCode>(context_), "", tracer_)) {}

bool CompanySession::acceptsPassword(std::string_view password) const {
    return !needsPassword() || sameName(user().passwordHash, sha2(password, 256));
}

ObjectPtr CompanySession::createObject(std::string_view programId) const {
    return std::make_shared<TracedObject>(createComponent(programId, context_), std::string(programId),
                                          tracer_);
}

}  // namespace tsln::workbench
