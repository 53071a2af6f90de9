#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "automation/Object.h"
#include "screens/Desktop.h"

namespace tsln::workbench {

class CompanySession;

/// The maintenance module as the workbench gets hold of it: on Windows by the platform's own means, like any
/// host, elsewhere linked in, with windows of the workbench's own.
class Module {
  public:
    /// Called after a process that the module waited for has ended. The module as loaded by the platform
    /// tells nobody.
    using OnProcessEnd = std::function<void(std::string_view commandLine, ProcessEnd end)>;

    /// Loads the module. The session's components can be created from now on; it must outlive this. Throws
    /// HostError when the module cannot be loaded.
    Module(const CompanySession& session, OnProcessEnd onProcessEnd);
    ~Module();
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;

    /// The class `Library`.
    const ObjectPtr& library() const noexcept;

  private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

}  // namespace tsln::workbench
