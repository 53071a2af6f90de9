#pragma once

#include <string>

#include "automation/Variant.h"

namespace tsln::workbench {

/// Returns the date in the database's form: "2011-03-04T10:20:30". A date out of range raises
/// HostError(code::overflow).
std::string sqlDateText(Date date);

/// The current date and time in UTC, as the database's bookkeeping columns store it.
Date nowUtc();

}  // namespace tsln::workbench
