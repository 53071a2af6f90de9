#pragma once

#include <cstdint>

namespace tsln {

/// How far a company database is with the exchange of changes, as `SyncState` stores it. The host names the states with
/// "GetFriendlySyncState".
enum SyncState : std::int32_t {
    NotSetUp = 0,
    InitialSyncRequested = 1,  ///< by the roaming workstation, for its agent to see
    InitialSyncSent = 2,       ///< the main system sends the company
    InitialSyncReceived = 3,   ///< the roaming workstation takes the company in
    InSync = 4,                ///< the initial sync is complete; changes are exchanged
    ResetRequested = 5,        ///< by the user, for the agent to see
};

}  // namespace tsln
