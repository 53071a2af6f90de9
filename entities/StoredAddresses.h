#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "bridge/HostScreen.h"

namespace tsln::entities {

/// How the addresses of a kind of record are stored: their statements, with the tags <al> for the label, <a1>, <a2>, <y>,
/// <s>, <z> and <c> for the parts, <d> for the default flag and <id> for the key.
struct AddressTable {
    std::string_view read;  ///< followed by the key of the record
    std::string_view insert, update, remove;
    std::string_view ownerTag;  ///< stands for the record's key in the INSERT
    bool hasDefault = false;    ///< one of a record's addresses is its default
};

struct LabelledAddress {
    std::int32_t ID = 0;  ///< below 1: not stored yet
    std::string label;
    Address parts;
    bool isDefault = false;
    bool deleted = false;  ///< by the user; the row is deleted when the record is saved
};

/// The addresses of one record, in memory until the record is saved.
class StoredAddresses {
  public:
    /// The table must outlive the addresses.
    explicit StoredAddresses(const AddressTable& table) : table_(table) {}

    const AddressTable& table() const noexcept { return table_; }
    const std::vector<LabelledAddress>& all() const noexcept { return addresses_; }
    LabelledAddress& at(std::size_t index) { return addresses_.at(index); }

    /// Reads the record's addresses, in the order of the rows. May raise HostError, and is empty then.
    void read(const Host& host, std::int32_t owner);
    /// Adds an address and returns its index. The first one of a record is its default, where the table has one.
    std::size_t add(std::string label);
    /// Makes this address the default, and no other one.
    void makeDefault(std::size_t index);
    /// Deletes, adds and updates the rows. A statement that fails does not keep the others from running; the user is
    /// told once for the deletions and once for the other statements.
    void save(HostScreen& screen, std::int32_t owner) const;

  private:
    std::string statement(const Host& host, const LabelledAddress& address, std::int32_t owner) const;

    const AddressTable& table_;
    std::vector<LabelledAddress> addresses_;
};

}  // namespace tsln::entities
