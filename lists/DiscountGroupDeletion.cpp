#include "lists/DiscountGroupDeletion.h"

#include <algorithm>
#include <string>

#include "bridge/Host.h"
#include "lists/DiscountGroupTypes.h"
#include "shared/modSharedSQL.h"

namespace tsln::lists {
namespace {

using modSharedSQL::format;

/// The message box that refuses to delete the last group of a type.
struct LastOfType {
    std::int32_t type;
    std::string_view message, advice;
};
constexpr LastOfType lastOfType[] = {
    {0, "The discount group {0} cannot be deleted because it's the last price discount group.",
     "You must have at least one price discount group setup in your company."},
    {1, "The discount group {0} cannot be deleted because it's the last cost discount group.",
     // "customer cost group" is deliberate.
     "You must have at least one customer cost group setup in your company."},
    {2, "The discount group {0} cannot be deleted because it's the last customer discount group.",
     "You must have at least one customer discount group setup in your company."},
};

/// A statement of the deletion, and the event log entry for its failure: {0} is the replacement group, {1} the
/// deleted group.
struct Step {
    std::string_view statement, failure;
};
constexpr std::string_view customersNotMoved =
    "Unable to update the customers to reference a new discount group [{0}] while deleting a discount group. More information to follow.";
constexpr Step steps[] = {
    {"UPDATE Customers SET DiscountGroupID = {0} WHERE DiscountGroupID = {1}", customersNotMoved},
    {"UPDATE Customers SET CustomerDiscountGroupID = {0} WHERE CustomerDiscountGroupID = {1}",
     customersNotMoved},
    {"DELETE FROM Discounts WHERE DiscountGroupID = {1}",
     "Unable to delete the discounts from discount group [{1}]. More information to follow."},
    {"DELETE FROM DiscountGroups WHERE ID = {1}",
     "Unable to delete the discount group [{1}]. More information to follow."},
};

/// Writes to the event log. A failure to log is ignored: it must not replace the failure being logged.
void record(const Host& host, std::string_view text) noexcept {
    try {
        host.RecordEvent(text);
    } catch (const std::exception&) {
    }
}

void recordErrors(const Host& host, const Connection& connection) noexcept {
    try {
        for (const std::string& description : connection.errors())
            record(host, description);
    } catch (const std::exception& error) {
        record(host, error.what());
    }
}

bool runSteps(const Host& host, const Connection& connection, std::int32_t replacement, std::int32_t ID) {
    for (const Step& step : steps) {
        try {
            connection.Execute(format(step.statement, replacement, ID));
        } catch (const std::exception&) {
            record(host, format(step.failure, replacement, ID));
            recordErrors(host, connection);
            return false;
        }
    }
    return true;
}

/// Checks, asks and deletes. Returns true when the group is deleted. Sets `name` once the group's name is read, and
/// `failed` when the deletion failed rather than being refused or declined.
bool askAndDelete(Library& library, std::int32_t ID, std::string& name, bool& failed) {
    Argument group(ID);
    if (!library.perform(Operation::CanDeleteDiscountGroup, Arguments({&group, 1})).toBoolean()) return false;
    const Host host(library);
    name = host.common().GetDiscountGroupName(ID);
    const std::string question =
        "Deleting the discount group '" + name +
        "' will delete all discounts for that group and set the discount group for associated customers to another discount group that you must select. Are you sure you want to delete this discount group?";
    if (library.desktop().messageBox(nullptr, question, MessageButtons::YesNo, MessageIcon::Question) !=
        MessageAnswer::Yes) {
        return false;
    }
    const std::int32_t replacement = library.ShowGetReplacementDiscountGroup(ID);
    if (replacement <= 0) return false;

    failed = true;
    const auto connection = host.currentCompanyConnection();
    if (!connection) {
        record(host, "Unable to access the database while deleting a discount group.");
        return false;
    }
    if (!runSteps(host, *connection, replacement, ID)) return false;
    failed = false;
    record(host, "The discount group '" + name + "' was deleted.");
    return true;
}

}  // namespace

bool canDeleteDiscountGroup(Library& library, std::int32_t ID) {
    const Host host(library);
    const Records rows = host.database().ExecuteRead(
        format("SELECT DiscountGroup, DiscountGroupType FROM DiscountGroups WHERE ID = {0}", ID));
    if (rows.empty()) return false;
    const std::string name = modSharedXML::readText("DiscountGroup", rows.first());
    const std::int32_t number = modSharedXML::readInteger("DiscountGroupType", rows.first());
    const auto type = std::ranges::find(discountGroupTypes, number, &DiscountGroupType::number);
    if (type == std::end(discountGroupTypes)) return false;

    if (comparableGroupName(name) == type->requiredGroup) {
        host.ShowMessageStyle1(
            format("The discount group {0} cannot be deleted because it's a required discount group.", name),
            "");
        return false;
    }
    const std::string count =
        format("SELECT COUNT(*) AS MyCount FROM DiscountGroups WHERE DiscountGroupType = {0}", number);
    if (countOf(host.database().ExecuteScaler(count, "", "0")) > 1) return true;
    const auto last = std::ranges::find(lastOfType, number, &LastOfType::type);
    host.ShowMessageStyle1(format(last->message, name), last->advice);
    return false;
}

bool deleteDiscountGroup(Library& library, std::int32_t ID) {
    std::string name;
    bool failed = false;
    try {
        if (askAndDelete(library, ID, name, failed)) return true;
    } catch (const std::exception& error) {
        failed = true;
        record(Host(library), error.what());
    }
    if (failed) {
        library.desktop().messageBox(nullptr, "The discount group '" + name + "' could not be deleted.",
                                     MessageButtons::Ok, MessageIcon::Exclamation);
    }
    return false;
}

}  // namespace tsln::lists
