#pragma once

#include <cstdint>

#include "bridge/Library.h"

namespace tsln::lists {

/// True when the group may go: every company keeps its three required groups and one group of each type. A
/// refusal is shown to the user, except for a group that is not there or of no known type. Raises HostError.
bool canDeleteDiscountGroup(Library& library, std::int32_t ID);

/// Deletes a group after asking: its customers get another group that the user chooses, its discounts go with
/// it. True when it is gone. What fails is recorded in the host's event log and told; statements that have
/// run by then stay in effect. Throws nothing.
bool deleteDiscountGroup(Library& library, std::int32_t ID);

}  // namespace tsln::lists
