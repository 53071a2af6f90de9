#include "entities/StoredAddresses.h"

#include <algorithm>

#include "entities/RunOnConnection.h"
#include "maintenance/StatementTags.h"

namespace tsln::entities {
namespace {

/// The columns of the parts in every table of addresses, and their tags.
constexpr std::pair<std::string_view, std::string_view> partColumns[] = {
    {"Address1", "<a1>"}, {"Address2", "<a2>"}, {"City", "<y>"},
    {"State", "<s>"},     {"Zip", "<z>"},       {"Country", "<c>"}};

}  // namespace

void StoredAddresses::read(const Host& host, std::int32_t owner) {
    addresses_.clear();
    const Records rows = host.database().ExecuteRead(std::string(table_.read) + std::to_string(owner));
    for (const Record row : rows) {
        LabelledAddress address{.ID = modSharedXML::readLong("ID", row),
                                .label = modSharedXML::readText("AddressLabel", row)};
        for (std::size_t i = 0; i < address.parts.size(); ++i)
            address.parts[i] = modSharedXML::readText(partColumns[i].first, row);
        // The statements write the column as "isDefault"; the result names it as the table does.
        address.isDefault = table_.hasDefault && (modSharedXML::readBoolean("IsDefault", row) ||
                                                  modSharedXML::readBoolean("isDefault", row));
        addresses_.push_back(std::move(address));
    }
}

std::size_t StoredAddresses::add(std::string label) {
    const bool first = std::ranges::all_of(addresses_, &LabelledAddress::deleted);
    addresses_.push_back({.label = std::move(label), .isDefault = table_.hasDefault && first});
    return addresses_.size() - 1;
}

void StoredAddresses::makeDefault(std::size_t index) {
    for (std::size_t i = 0; i < addresses_.size(); ++i)
        addresses_[i].isDefault = i == index;
}

std::string StoredAddresses::statement(const Host& host, const LabelledAddress& address,
                                       std::int32_t owner) const {
    StatementTags tags(host, SafeText::ByHost);
    if (address.deleted) {
        tags.plain("<id>", address.ID);
        return tags.fill(table_.remove);
    }
    const bool isNew = address.ID < 1;
    if (isNew) tags.plain(table_.ownerTag, owner);
    tags.text("<al>", address.label);
    for (std::size_t i = 0; i < address.parts.size(); ++i)
        tags.text(partColumns[i].second, address.parts[i]);
    if (table_.hasDefault) tags.plain("<d>", address.isDefault);
    if (!isNew) tags.plain("<id>", address.ID);
    return tags.fill(isNew ? table_.insert : table_.update);
}

void StoredAddresses::save(HostScreen& screen, std::int32_t owner) const {
    const Host host = screen.host();
    for (const bool deleted : {true, false}) {
        bool failed = false;
        for (const LabelledAddress& address : addresses_) {
            if (address.deleted != deleted || (deleted && address.ID < 1)) continue;
            if (!runOnConnection(host, [&] { return statement(host, address, owner); })) failed = true;
        }
        if (!failed) continue;
        screen.reportConnectionFailure(deleted ? "One or more of the addresses could not be deleted."
                                               : "One or more of the addresses could not be saved.");
    }
}

}  // namespace tsln::entities
