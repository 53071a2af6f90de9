#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "workbench/host/HostContext.h"
#include "workbench/host/Trace.h"

namespace tsln::workbench {

/// An open company with its signed-in user, in the form in which a host appears to the module: the shared-code
/// object, the components, and a trace of all calls to them.
class CompanySession {
  public:
    /// Opens the company and signs in the user with this login name. `ui` must outlive the session and all objects
    /// obtained from it. Throws CompanyFileError, SignInError or SqlError, with sentences for the user.
    CompanySession(const std::string& path, std::string_view login, HostUi& ui,
                   OpenMode mode = OpenMode::Create);

    Company& company() noexcept { return context_->company; }
    const User& user() const noexcept { return context_->user; }
    /// True when the user signs in with a password. The one who has the session must ask for it.
    bool needsPassword() const noexcept { return !user().passwordHash.empty(); }
    bool acceptsPassword(std::string_view password) const;
    /// The notices that the module posted to the host's other windows.
    const std::vector<Notice>& notices() const noexcept { return context_->notices; }
    /// Registers a program that "ExternalProgram" returns for this name unless the company has another one.
    void registerProgram(std::string name, std::string path) {
        context_->programs.insert_or_assign(std::move(name), std::move(path));
    }
    EventLog& eventLog() noexcept { return context_->eventLog; }

    /// The traced shared-code object. As long as the module holds it, the company stays open.
    ObjectPtr sharedCode() const noexcept { return sharedCode_; }
    /// Creates a component by its program identifier, traced. Raises HostError(code::classNotRegistered).
    ObjectPtr createObject(std::string_view programId) const;

    /// For observing the calls, and for tracing further objects (the module's library) together with the host's.
    const std::shared_ptr<Tracer>& tracer() const noexcept { return tracer_; }

  private:
    std::shared_ptr<HostContext> context_;
    std::shared_ptr<Tracer> tracer_ = std::make_shared<Tracer>();
    ObjectPtr sharedCode_;
};

}  // namespace tsln::workbench
