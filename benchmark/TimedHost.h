#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "automation/Object.h"
#include "benchmark/contest/Contest.h"

namespace tsln::bench {

/// The seconds that the calls from the module to the host take. What the module does within such a call, when the host
/// fills a control, is left out.
struct HostTime {
    double host = 0;
    double module = 0;           ///< within calls to the host
    std::size_t statements = 0;  ///< calls of "Execute" and of members that begin with it

    double seconds() const { return host - module; }
    void reset() { *this = {}; }
};

/// Forwards calls to an object of the host, or to a control that the host gets, and sums the seconds that they take.
/// Objects that are returned or passed are wrapped, too.
class TimedObject : public Object {
  public:
    enum class Side { Host, Module };
    TimedObject(ObjectPtr target, Side side, HostTime& time)
        : target_(std::move(target)), side_(side), time_(time) {}

    Variant invoke(std::string_view member, Access access, Arguments arguments) override {
        std::vector<std::pair<std::size_t, ObjectPtr>> passed;
        for (std::size_t i = 0; side_ == Side::Host && i < arguments.count(); ++i) {
            if (!arguments[i].isObject() || !arguments[i].toObject()) continue;
            passed.emplace_back(i, arguments[i].toObject());
            arguments.assign(
                i, ObjectPtr(std::make_shared<TimedObject>(passed.back().second, Side::Module, time_)));
        }
        Variant result;
        double& sum = side_ == Side::Host ? time_.host : time_.module;
        // A control's member takes less time than to ask for the processor time.
        const bool ofProcessor = side_ == Side::Host;
        sum += secondsOf([&] { result = target_->invoke(member, access, arguments); }, ofProcessor);
        for (const auto& [i, object] : passed)
            arguments.assign(i, object);
        if (side_ == Side::Host && member.starts_with("Execute")) ++time_.statements;
        if (side_ == Side::Host && result.isObject() && result.toObject())
            return ObjectPtr(std::make_shared<TimedObject>(result.toObject(), Side::Host, time_));
        return result;
    }

  private:
    ObjectPtr target_;
    Side side_;
    HostTime& time_;
};

inline constexpr std::size_t shareRounds = 5;

/// The ratio of the module's own time to the host's, over several rounds of the work.
inline Spread shareOf(HostTime& time, const std::function<void()>& work) {
    std::vector<double> shares;
    for (std::size_t i = 0; i < shareRounds; ++i) {
        time.reset();
        const double all = secondsOf(work);
        shares.push_back(all / time.seconds() - 1);
    }
    return spreadOf(std::move(shares));
}

inline ObjectPtr timedHost(ObjectPtr host, HostTime& time) {
    return std::make_shared<TimedObject>(std::move(host), TimedObject::Side::Host, time);
}

}  // namespace tsln::bench
