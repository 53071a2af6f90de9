#pragma once

#include <cstdint>
#include <set>

#include "bridge/HostScreen.h"
#include "screens/ReportControl.h"

namespace tsln::entities {

/// The security roles, in a list where those of one employee are ticked. A mark shows which ticks differ from what is
/// stored; only those are written.
class EmployeeRoles {
  public:
    /// The screen must outlive this object.
    explicit EmployeeRoles(HostScreen& screen);

    ReportControl rptRoles;

    /// Lists all roles and ticks those of the employee; none for a key below 1. May raise HostError. Until a call
    /// succeeds, save() leaves the employee's roles as they are.
    void read(std::int32_t employee);
    bool loaded() const noexcept { return loaded_; }
    std::size_t tickedCount() const;
    /// Writes the changed ticks after the employee's own row. Reports its failures.
    void save(std::int32_t employee);

  private:
    void mark(std::size_t record);

    HostScreen& screen_;
    std::set<std::int32_t> stored_;  // the roles that the employee has
    bool loaded_ = false;
};

}  // namespace tsln::entities
