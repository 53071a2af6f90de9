#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "bridge/HostScreen.h"

namespace tsln {

/// The texts, members and codes by which a kind of master record is written to the history, the event log and the
/// notices.
struct RecordHistory {
    std::string_view noun;  ///< "vendor", as messages name it
    using Write = void (Activity::*)(std::int32_t ID, std::string_view text) const;
    Write recordAdded;    ///< adds the history entry of a new record
    Write recordUpdated;  ///< adds the history entry of a change
    std::int32_t addedNotice;
    std::int32_t updatedNotice;
};

/// The noun with a capital first letter, for captions and events.
std::string capitalized(std::string_view noun);

/// A master record to be saved. An existing row is captured before `statement` is called.
struct RecordSave {
    std::string_view table;
    std::string name;                        ///< the record's name in messages
    std::function<std::string()> statement;  ///< builds the complete INSERT or UPDATE
    /// Saves further data of the record, after the history entry. Reports its own failures. May be empty.
    std::function<void()> further = {};
};

/// Writes the record, then a history entry (for an update, only when something changed), then an event log entry,
/// then posts a notice to the host. An `ID` below 1 adds a record and is set to its key.
///
/// Returns false when the row could not be written, after telling the user. Once the row is written the save counts:
/// a failure of a later step is reported, and the remaining steps still run.
bool saveWithHistory(HostScreen& screen, const RecordHistory& history, std::int32_t& ID,
                     const RecordSave& save);

}  // namespace tsln
