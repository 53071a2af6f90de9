#pragma once

#include <memory>
#include <string>

#include "automation/Object.h"
#include "benchmark/contest/Contest.h"

namespace tsln::bench {

/// What a host's objects took.
struct HostTime {
    double seconds = 0;
    std::size_t statements = 0;  ///< calls of "Execute" and of members that begin with it
};

/// Forwards calls to an object of the host, its sub-objects and its connection, and measures them.
class TimedHost : public Object {
  public:
    /// `time` must outlive the object.
    TimedHost(ObjectPtr target, HostTime& time) : target_(std::move(target)), time_(time) {}
    Variant invoke(std::string_view member, Access access, Arguments arguments) override {
        Variant result;
        time_.seconds += secondsOf([&] { result = target_->invoke(member, access, arguments); });
        if (member.starts_with("Execute")) ++time_.statements;
        for (const char* part : {"Database", "Common", "CurrentCompanyConn"}) {
            if (sameName(member, part)) return std::make_shared<TimedHost>(result.toObject(), time_);
        }
        return result;
    }

  private:
    ObjectPtr target_;
    HostTime& time_;
};

}  // namespace tsln::bench
