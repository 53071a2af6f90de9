#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "bridge/HostScreen.h"
#include "entities/StatementTags.h"

namespace tsln::entities {

/// How a kind of master record is written and spoken of.
struct Entity {
    std::string_view table;   ///< "Vendors"
    std::string_view noun;    ///< "vendor", as messages call it
    std::string_view insert;  ///< template of the statement; the same for `update`, which ends at "<id>"
    std::string_view update;
    using Record = void (Activity::*)(std::int32_t ID, std::string_view text) const;
    Record recordAdded;    ///< where the history notes a new record
    Record recordUpdated;  ///< and what changed
    std::int32_t addedNotice;
    std::int32_t updatedNotice;
};

/// "Vendor": the noun as captions and events begin with it.
std::string capitalized(std::string_view noun);

/// Writes the record and tells of it: the history gets an entry (of an update: what it changed, if anything),
/// then the event log, then the rest of the host a notice. `name` is the record's own. An `ID` below 1 makes
/// a new record and is set to its key; `tags` are all but "<id>".
///
/// `further` saves what else belongs to the record, after its history entry; it tells its failures itself.
/// False when the row could not be written, which has been told then. Once it is written the save counts:
/// what cannot be noted of it afterwards is reported, and the rest goes on.
bool saveWithHistory(HostScreen& screen, const Entity& entity, const std::string& name, std::int32_t& ID,
                     StatementTags tags, const std::function<void()>& further = {});

}  // namespace tsln::entities
