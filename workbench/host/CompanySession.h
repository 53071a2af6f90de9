#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "workbench/host/HostContext.h"
#include "workbench/host/Trace.h"

namespace tsln::workbench {

/// An open company with its signed-in user, seen as the module sees its host: the shared-code object, the
/// components, and the trace of every call on either.
class CompanySession {
  public:
    /// Opens the company and signs the user in by his login name. `ui` must outlive the session and every
    /// object got from it. Throws CompanyFileError, SignInError, SqlError, with sentences for the user.
    CompanySession(const std::string& path, std::string_view login, HostUi& ui,
                   OpenMode mode = OpenMode::Create);

    Company& company() noexcept { return context_->company; }
    const User& user() const noexcept { return context_->user; }
    /// What the module posted to the host's other windows.
    const std::vector<Notice>& notices() const noexcept { return context_->notices; }
    EventLog& eventLog() noexcept { return context_->eventLog; }

    /// Traced. The module keeps it alive as long as it needs it, and the company with it.
    ObjectPtr sharedCode() const noexcept { return sharedCode_; }
    /// A component by its program identifier, traced. Raises HostError(code::classNotRegistered).
    ObjectPtr createObject(std::string_view programId) const;

    /// To observe the calls, and to trace further objects (the module's library) with the host's.
    const std::shared_ptr<Tracer>& tracer() const noexcept { return tracer_; }

  private:
    std::shared_ptr<HostContext> context_;
    std::shared_ptr<Tracer> tracer_ = std::make_shared<Tracer>();
    ObjectPtr sharedCode_;
};

}  // namespace tsln::workbench
