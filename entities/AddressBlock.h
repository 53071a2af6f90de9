#pragma once

#include <array>
#include <string>
#include <string_view>

#include "bridge/HostScreen.h"
#include "entities/StatementTags.h"
#include "screens/Controls.h"
#include "shared/Connection.h"

namespace tsln::entities {

/// How the columns, the box and the tags of an address are called.
struct AddressNames {
    std::string_view prefix;  ///< of its columns: "BillTo"
    std::string_view box;     ///< "txtBillToAddress"
    std::array<std::string_view, 6> tags;
};

inline constexpr AddressNames billToNames{
    "BillTo", "txtBillToAddress", {"<ba1>", "<ba2>", "<by>", "<bs>", "<bz>", "<bc>"}};
inline constexpr AddressNames shipToNames{
    "ShipTo", "txtShipToAddress", {"<sa1>", "<sa2>", "<sy>", "<ss>", "<sz>", "<sc>"}};

/// An address in one box of several lines, stored in six columns. The host puts one form into the other.
class AddressBlock {
  public:
    /// `validate` is the record's wish to have its addresses validated, which the host may change whenever it
    /// reads one. It must outlive the block, as must the names.
    AddressBlock(HostScreen& screen, const AddressNames& names, bool& validate);

    TextBox box;

    void show(const Recordset& row);
    /// The user left the box: shows the address as the host puts it right. An address taken away is to be
    /// validated from then on.
    void left();
    /// Reads the address for its columns. The box stays as it is.
    void addTags(StatementTags& tags);

  private:
    HostScreen& screen_;
    const AddressNames& names_;
    bool& validate_;
};

}  // namespace tsln::entities
