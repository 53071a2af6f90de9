#include "entities/GroupMemberships.h"

#include <array>

#include "automation/NumericText.h"
#include "entities/RunOnConnection.h"
#include "shared/modSharedSQL.h"

namespace tsln::entities {
namespace {

constexpr std::size_t memberColumn = 2;
/// The groups of customers; other types group other records.
constexpr std::string_view readGroupsOfCustomers =
    "SELECT * FROM Groups WHERE GroupType = 1 ORDER BY GroupName";

}  // namespace

GroupMemberships::GroupMemberships(HostScreen& screen) : rptGroups(screen, "rptGroups"), screen_(screen) {
    rptGroups.columns = {
        {.caption = "Group", .width = 200},
        {.caption = "Description", .width = 320},
        {.caption = "Member", .width = 80, .kind = ReportColumn::Kind::Check, .editable = true}};
    rptGroups.accessibleName = "Groups";
}

void GroupMemberships::read(std::int32_t customer) {
    loaded_ = false;
    const Database database = screen_.host().database();
    const Records groups = database.ExecuteRead(readGroupsOfCustomers);
    std::set<std::int32_t> members;
    if (customer >= 1) {
        const Records memberships = database.ExecuteRead(
            modSharedSQL::format("SELECT * FROM GroupedCustomers WHERE CustomerID = {0}", customer));
        for (const Record row : memberships)
            members.insert(modSharedXML::readLong("GroupID", row));
    }
    show(groups, members);
    loaded_ = true;
}

void GroupMemberships::readGroups(std::int32_t customer) {
    if (!loaded_) return read(customer);
    show(screen_.host().database().ExecuteRead(readGroupsOfCustomers), ticked());
}

void GroupMemberships::show(const Records& groups, const std::set<std::int32_t>& members) {
    rptGroups.clearRecords();
    for (const Record row : groups) {
        const std::int32_t group = modSharedXML::readLong("ID", row);
        const std::string name = modSharedXML::readText("GroupName", row);
        const std::string description = modSharedXML::readText("Description", row);
        const std::array<std::string_view, 3> cells{name, description, members.contains(group) ? "1" : "0"};
        rptGroups.addRecord(group, cells);
    }
    rptGroups.populate();
}

std::set<std::int32_t> GroupMemberships::ticked() const {
    std::set<std::int32_t> groups;
    for (std::size_t record = 0; record < rptGroups.recordCount(); ++record) {
        if (rptGroups.checked(record, memberColumn)) groups.insert(rptGroups.id(record));
    }
    return groups;
}

void GroupMemberships::tick(std::string_view keys) {
    while (!keys.empty()) {
        const std::size_t comma = std::min(keys.find(','), keys.size());
        std::int32_t group = 0;
        if (readNumber(keys.substr(0, comma), group) == Reading::Done) {
            if (const auto record = rptGroups.findRecord(group))
                rptGroups.setCell(*record, memberColumn, "1");
        }
        keys.remove_prefix(std::min(comma + 1, keys.size()));
    }
}

void GroupMemberships::save(std::int32_t customer, bool added) const {
    if (!loaded_) return;
    const auto run = [&](std::string_view statement, std::int32_t group) {
        return runOnConnection(screen_.host(), [&] {
            return modSharedSQL::fillTags(statement, {{"<g>", group}, {"<c>", customer}});
        });
    };
    if (!added && !run("DELETE FROM GroupedCustomers WHERE CustomerID = <c>", 0)) {
        return screen_.reportConnectionFailure("Group memberships could not be updated.");
    }
    bool failed = false;
    for (const std::int32_t group : ticked()) {
        if (!run("INSERT INTO GroupedCustomers (GroupID, CustomerID) VALUES(<g>, <c>)", group)) failed = true;
    }
    if (!failed) return;
    screen_.reportConnectionFailure(added ? "One or more of the group memberships could not be saved."
                                          : "One or more of the group memberships could not be updated.");
}

}  // namespace tsln::entities
