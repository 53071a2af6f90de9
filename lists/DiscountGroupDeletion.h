#pragma once

#include <cstdint>

#include "bridge/Library.h"

namespace tsln::lists {

/// Returns true when the group may be deleted: a company keeps its three required groups and at least one group of
/// each type. A message box tells the user of a refusal, unless the group does not exist or has an unknown type. May
/// raise HostError.
bool canDeleteDiscountGroup(Library& library, std::int32_t ID);

/// Asks the user, then deletes a group: its customers move to another group that the user chooses, and its discounts
/// are deleted. Returns true when the group is deleted. A failure is written to the host's event log and shown to the
/// user; statements that ran before it stay in effect. Throws nothing.
bool deleteDiscountGroup(Library& library, std::int32_t ID);

}  // namespace tsln::lists
