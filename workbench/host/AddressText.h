#pragma once

#include <string>
#include <string_view>

namespace tsln::workbench {

/// An address as it is stored. Every field may be empty.
struct Address {
    std::string line1, line2, city, state, zip, country;

    /// True when mail can be delivered: only the second line and the country may be missing.
    bool isComplete() const { return !line1.empty() && !city.empty() && !state.empty() && !zip.empty(); }
    friend bool operator==(const Address&, const Address&) = default;
};

/// Returns the address in the form for editing: its lines, then "City, State Zip", then the country, without empty
/// lines.
std::string combineAddress(const Address& address);

/// Reads an address of the United States or Canada as people write it: one or two lines, the city line, and
/// optionally the country. From the result of combineAddress() for such an address it recovers the fields.
///
/// An address of another form loses no text: the last line before a known country is the city, and further lines are
/// joined by commas in line2.
Address parseAddress(std::string_view text);

}  // namespace tsln::workbench
