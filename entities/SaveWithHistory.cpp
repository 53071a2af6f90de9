#include "entities/SaveWithHistory.h"

#include "shared/modSharedRecordHistory.h"

namespace tsln::entities {
namespace {

using namespace modSharedRecordHistory;

constexpr std::int32_t savedEvent = 2;

/// The quote before the name is not closed, here and in the failures' texts (deliberate).
std::string eventText(const Entity& entity, const std::string& name, std::string_view what) {
    return capitalized(entity.noun) + " '" + name + " was " + std::string(what) + ".";
}

std::string failureText(const Entity& entity, const std::string& name, std::string_view what) {
    return "The " + std::string(entity.noun) + " '" + name + " could not be " + std::string(what) + ".";
}

/// The row as it stands, or nothing.
Document snapshot(const HostScreen& screen, const Entity& entity, std::int32_t ID) {
    try {
        return takeSnapshot(entity.table, ID,
                            screen.host().sharedCode()->get("CurrentCompanyConn").toObject());
    } catch (const std::exception&) {
        return nullptr;  // without it the change is not told, but made all the same
    }
}

std::string changes(const HostScreen& screen, const Entity& entity, const Document& before, std::int32_t ID) {
    const Document comparison = compare(before, snapshot(screen, entity, ID));
    try {
        return describeChanges(comparison, entity.table, screen.host().sharedCode());
    } catch (const std::exception&) {
        return {};
    }
}

/// The row and its history entry.
bool insert(HostScreen& screen, const Entity& entity, const std::string& name, std::int32_t& ID,
            const StatementTags& tags) {
    ID = screen.host().database().ExecuteNonQueryWithID(tags.fill(entity.insert));
    if (ID < 1) {
        screen.reportDatabaseFailure(failureText(entity, name, "added"), saveAgainExplanation);
        return false;
    }
    screen.handle(
        [&] { (screen.host().activity().*entity.recordAdded)(ID, capitalized(entity.noun) + " added."); });
    return true;
}

bool update(HostScreen& screen, const Entity& entity, const std::string& name, std::int32_t ID,
            StatementTags& tags) {
    const Document before = snapshot(screen, entity, ID);
    tags.plain("<id>", ID);
    if (!screen.host().database().ExecuteNonQuery(tags.fill(entity.update))) {
        screen.reportDatabaseFailure(failureText(entity, name, "updated"), saveAgainExplanation);
        return false;
    }
    const std::string told = changes(screen, entity, before, ID);
    if (told.empty()) return true;
    screen.handle([&] {
        (screen.host().activity().*entity.recordUpdated)(ID,
                                                         capitalized(entity.noun) + " updated:\r\n" + told);
    });
    return true;
}

}  // namespace

std::string capitalized(std::string_view noun) {
    std::string text(noun);
    if (!text.empty() && text[0] >= 'a' && text[0] <= 'z') text[0] = static_cast<char>(text[0] - 'a' + 'A');
    return text;
}

bool saveWithHistory(HostScreen& screen, const Entity& entity, const std::string& name, std::int32_t& ID,
                     StatementTags tags, const std::function<void()>& further) {
    const bool isNew = ID < 1;
    if (!(isNew ? insert(screen, entity, name, ID, tags) : update(screen, entity, name, ID, tags)))
        return false;
    if (further) screen.handle(further);
    screen.handle(
        [&] { screen.host().RecordEvent(savedEvent, eventText(entity, name, isNew ? "added" : "updated")); });
    screen.handle(
        [&] { screen.host().messages().PostMessage(isNew ? entity.addedNotice : entity.updatedNotice, ID); });
    return true;
}

}  // namespace tsln::entities
