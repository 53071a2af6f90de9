#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "bridge/HostScreen.h"

namespace tsln {

/// How the history, the event log and the notices speak of a kind of master record.
struct RecordHistory {
    std::string_view noun;  ///< "vendor", as messages call it
    using Write = void (Activity::*)(std::int32_t ID, std::string_view text) const;
    Write recordAdded;    ///< notes a new record
    Write recordUpdated;  ///< notes what changed
    std::int32_t addedNotice;
    std::int32_t updatedNotice;
};

/// "Vendor": the noun as captions and events begin with it.
std::string capitalized(std::string_view noun);

/// A master record that is about to be saved. A row that is there is captured before `statement` is called.
struct RecordSave {
    std::string_view table;
    std::string name;                        ///< of the record, as the messages name it
    std::function<std::string()> statement;  ///< builds the complete statement, of an INSERT or an UPDATE
    /// Saves what else belongs to the record, after its history entry, and tells its failures itself; may be empty.
    std::function<void()> further = {};
};

/// Writes the record and tells of it: the history gets an entry (of an update: what it changed, if anything), then the
/// event log, then the rest of the host a notice. An `ID` below 1 makes a new record and is set to its key.
///
/// False when the row could not be written, which has been told then. Once it is written the save counts: what cannot
/// be noted of it afterwards is reported, and the rest goes on.
bool saveWithHistory(HostScreen& screen, const RecordHistory& history, std::int32_t& ID, const RecordSave& save);

}  // namespace tsln
