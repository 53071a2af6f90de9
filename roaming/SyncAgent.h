#pragma once

#include <string_view>

#include "bridge/HostScreen.h"

namespace tsln::roaming {

/// The section of the company's options for roaming workstations.
inline constexpr std::string_view optionSection = "Roaming Workstations";

/// Starts the synchronization agent for the current profile and the companies' folder, and records the start. Returns
/// false when it could not be started; the user has been told why. May raise HostError.
bool startSyncAgent(HostScreen& screen);

/// Tells a running agent of this company to end, by an option that it reads. May raise HostError.
void stopSyncAgent(const Host& host);

}  // namespace tsln::roaming
