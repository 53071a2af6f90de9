#pragma once

#include <string>

#include "tests/soak/RandomUser.h"

namespace tsln::soak {

/// Lets the random user work real windows until so many acts are done. The display has to be there.
void runWindows(RandomUser& user, const std::string& folder, std::size_t acts);

}  // namespace tsln::soak
