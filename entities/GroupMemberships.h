#pragma once

#include <cstdint>
#include <set>
#include <string_view>

#include "bridge/HostScreen.h"
#include "screens/ReportControl.h"

namespace tsln::entities {

/// The groups of customers, in a list where those of one customer are ticked.
class GroupMemberships {
  public:
    /// The screen must outlive this object.
    explicit GroupMemberships(HostScreen& screen);

    ReportControl rptGroups;

    /// Lists all groups and ticks those of the customer; none for a key below 1. May raise HostError. Until a call
    /// succeeds, save() leaves the memberships as they are.
    void read(std::int32_t customer);
    /// Lists the groups again. Ticks stay. May raise HostError; the list is unchanged then.
    void readGroups(std::int32_t customer);
    /// Ticks the groups with these keys, separated by commas. Other text is ignored.
    void tick(std::string_view keys);
    /// Writes the memberships after the customer's own row. `added`: the customer is new and has none yet. Reports its
    /// failures.
    void save(std::int32_t customer, bool added) const;

  private:
    std::set<std::int32_t> ticked() const;
    void show(const Records& groups, const std::set<std::int32_t>& members);

    HostScreen& screen_;
    bool loaded_ = false;
};

}  // namespace tsln::entities
