#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "automation/Object.h"
#include "screens/Desktop.h"

namespace tsln::workbench {

class CompanySession;

/// The maintenance module as the workbench loads it: through COM on Windows, like any host; linked into the program
/// elsewhere.
class Module {
  public:
    /// Called after a process that the module waited for has ended. The module loaded through COM does not call it.
    using OnProcessEnd = std::function<void(std::string_view commandLine, ProcessEnd end)>;

    /// Loads the module. From then on the session's components can be created; the session must outlive this object.
    /// Throws HostError when the module cannot be loaded.
    Module(const CompanySession& session, const OnProcessEnd& onProcessEnd);
    ~Module();
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;

    /// The module's `Library` object.
    const ObjectPtr& library() const noexcept;

  private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

}  // namespace tsln::workbench
