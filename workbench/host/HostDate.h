#pragma once

#include <string>

#include "automation/Variant.h"

namespace tsln::workbench {

/// The date as the database writes it: "2011-03-04T10:20:30". A date out of range raises
/// HostError(code::overflow).
std::string sqlDateText(Date date);

/// The date and time of now, UTC, as the database's own bookkeeping has them.
Date nowUtc();

}  // namespace tsln::workbench
