#pragma once

#include <cstdint>
#include <map>
#include <optional>

#include "bridge/Host.h"

namespace tsln {

/// The rights of the user in one security area, each asked of the host at most once until they are forgotten.
class HeldRights {
  public:
    /// Without an area every right is held.
    explicit HeldRights(std::optional<std::int32_t> area) : area_(area) {}

    /// May raise HostError; the right is asked for again then.
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
