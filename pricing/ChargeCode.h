#pragma once

#include <string>

#include "bridge/Host.h"

namespace tsln::pricing {

/// Makes the code of a new charge from its name and the time of day: eight characters. May raise HostError.
std::string makeChargeCode(const Host& host, const std::string& name);

}  // namespace tsln::pricing
