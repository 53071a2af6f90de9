#pragma once

#include <cstdint>
#include <map>
#include <optional>

#include "bridge/Host.h"

namespace tsln {

/// The user's rights in one security area. Asks the host for each right at most once until forget() is called.
class HeldRights {
  public:
    /// Without an area every right is held.
    explicit HeldRights(std::optional<std::int32_t> area) : area_(area) {}

    /// Returns whether the user holds the right. Raises HostError when the host fails, and asks again next time.
    bool holds(Right right, const Host& host) {
        if (!area_) return true;
        const auto known = held_.find(right);
        if (known != held_.end()) return known->second;
        return held_[right] = host.security().CanDo(*area_, right);
    }
    void forget() { held_.clear(); }

  private:
    std::optional<std::int32_t> area_;
    std::map<Right, bool> held_;
};

}  // namespace tsln
