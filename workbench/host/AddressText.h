#pragma once

#include <string>
#include <string_view>

namespace tsln::workbench {

/// An address as it is stored; every field may be empty.
struct Address {
    std::string line1, line2, city, state, zip, country;

    /// It can be delivered to: nothing but the second line and the country is missing.
    bool isComplete() const { return !line1.empty() && !city.empty() && !state.empty() && !zip.empty(); }
    friend bool operator==(const Address&, const Address&) = default;
};

/// The address as it is edited: its lines, then "City, State Zip", then the country, without empty lines.
std::string combineAddress(const Address& address);

/// Reads an address as people write it, of the United States and Canada: one to two lines, the line of the
/// city, and the country if there is a line behind it. It finds the fields of every such address in what
/// combineAddress() made of them.
///
/// An address of another shape loses no text: the last line before a known country is the city, further lines
/// stand in line2 with commas between.
Address parseAddress(std::string_view text);

}  // namespace tsln::workbench
