#pragma once

#include <string>
#include <string_view>

#include "automation/Variant.h"

namespace tsln {

/// "$1,234.50", "($1,234.50)" below zero: with two decimals, half away from zero.
std::string currencyText(double amount);
/// "3/4/2011": the day alone. A date out of range raises HostError(code::overflow).
std::string shortDateText(Date date);

}  // namespace tsln
