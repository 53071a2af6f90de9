#include "pricing/ChargeCode.h"

#include <chrono>
#include <cmath>

#include "automation/DateText.h"
#include "automation/NumericText.h"

namespace tsln::pricing {
namespace {

constexpr std::size_t codeLength = 8;

float secondsSinceMidnight() {
    constexpr double secondsOfDay = 24 * 60 * 60;
    const double days = now().days;
    const double whole = std::round((days - std::floor(days)) * secondsOfDay);
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    const auto part = sinceEpoch - std::chrono::floor<std::chrono::seconds>(sinceEpoch);
    return static_cast<float>(whole + std::chrono::duration<double>(part).count());
}

}  // namespace

std::string makeChargeCode(const Host& host, const std::string& name) {
    const std::string digest = host.GetSHA2(name + numberText(secondsSinceMidnight()));
    // A charge without a code could not be told from others.
    if (digest.size() < codeLength) throw HostError(code::fail, "GetSHA2", "The charge code cannot be made.");
    return digest.substr(0, codeLength);
}

}  // namespace tsln::pricing
