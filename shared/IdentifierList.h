#pragma once

#include <cstdint>
#include <vector>

#include "automation/Variant.h"

namespace tsln {

/// The most identifiers that a list may have.
inline constexpr std::int32_t mostIdentifiers = 1'000'000;

/// Reads a list of identifiers from what a late-bound caller passed:
/// - a number: that one identifier;
/// - text: whole numbers with commas between them and blanks around them ("3, 7,12");
/// - an object with the members Count and Item, which an array of the platform has, too;
/// - nothing at all (Empty, Null, a left-out argument, no object, blank text): an empty list.
///
/// Item is asked for 1 to Count. A collection whose Item(0) gives a value is counted from 0 to Count - 1
/// instead.
///
/// Raises HostError(code::typeMismatch) for an element that is no whole number, code::overflow for one beyond
/// 32 bits (both tell its place in the list, from 1), code::badIndex for a Count below zero or above
/// mostIdentifiers, and whatever the collection itself raises.
std::vector<std::int32_t> readIdentifiers(const Variant& list);

}  // namespace tsln
