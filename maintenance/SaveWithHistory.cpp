#include "maintenance/SaveWithHistory.h"

#include "bridge/modSharedRecordHistory.h"

namespace tsln {
namespace {

using namespace modSharedRecordHistory;

constexpr std::int32_t savedEvent = 2;

/// The quote before the name is not closed, here and in failureText() (deliberate).
std::string eventText(const RecordHistory& history, const std::string& name, std::string_view what) {
    return capitalized(history.noun) + " '" + name + " was " + std::string(what) + ".";
}

std::string failureText(const RecordHistory& history, const std::string& name, std::string_view what) {
    return "The " + std::string(history.noun) + " '" + name + " could not be " + std::string(what) + ".";
}

/// The current row, or nothing: a failure to read it must not prevent the change.
Document snapshot(const HostScreen& screen, std::string_view table, std::int32_t ID) {
    try {
        return takeSnapshot(table, ID, screen.host().sharedCode()->get("CurrentCompanyConn").toObject());
    } catch (const std::exception&) {
        return nullptr;
    }
}

std::string changes(const HostScreen& screen, std::string_view table, const Document& before,
                    std::int32_t ID) {
    const Document comparison = compare(before, snapshot(screen, table, ID));
    try {
        return describeChanges(comparison, table, screen.host().sharedCode());
    } catch (const std::exception&) {
        return {};
    }
}

bool insert(HostScreen& screen, const RecordHistory& history, std::int32_t& ID, const RecordSave& save) {
    ID = screen.host().database().ExecuteNonQueryWithID(save.statement());
    if (ID < 1) {
        screen.reportDatabaseFailure(failureText(history, save.name, "added"), saveAgainExplanation);
        return false;
    }
    screen.handle(
        [&] { (screen.host().activity().*history.recordAdded)(ID, capitalized(history.noun) + " added."); });
    return true;
}

bool update(HostScreen& screen, const RecordHistory& history, std::int32_t ID, const RecordSave& save) {
    const Document before = snapshot(screen, save.table, ID);
    if (!screen.host().database().ExecuteNonQuery(save.statement())) {
        screen.reportDatabaseFailure(failureText(history, save.name, "updated"), saveAgainExplanation);
        return false;
    }
    const std::string told = changes(screen, save.table, before, ID);
    if (told.empty()) return true;
    screen.handle([&] {
        (screen.host().activity().*history.recordUpdated)(ID,
                                                          capitalized(history.noun) + " updated:\r\n" + told);
    });
    return true;
}

}  // namespace

std::string capitalized(std::string_view noun) {
    std::string text(noun);
    if (!text.empty() && text[0] >= 'a' && text[0] <= 'z') text[0] = static_cast<char>(text[0] - 'a' + 'A');
    return text;
}

bool saveWithHistory(HostScreen& screen, const RecordHistory& history, std::int32_t& ID,
                     const RecordSave& save) {
    const bool isNew = ID < 1;
    if (!(isNew ? insert(screen, history, ID, save) : update(screen, history, ID, save))) return false;
    if (save.further) screen.handle(save.further);
    screen.handle([&] {
        screen.host().RecordEvent(savedEvent, eventText(history, save.name, isNew ? "added" : "updated"));
    });
    screen.handle([&] {
        screen.host().messages().PostMessage(isNew ? history.addedNotice : history.updatedNotice, ID);
    });
    return true;
}

}  // namespace tsln
