#include "roaming/Manager.h"

#include "automation/DateText.h"
#include "bridge/SyncState.h"
#include "roaming/SyncAgent.h"
#include "shared/modSharedSQL.h"

namespace tsln::roaming {
namespace {

using modSharedSQL::format;

constexpr std::string_view screenName = "frmRoamingWorkstationManager";

/// The longest time that an agent takes to notice a reset and to carry it out.
constexpr int resetMinutes = 5;

/// The notice that the management of the workstation was closed. It is about 1 when the company is to be closed
/// because its state was reset, else about 0.
constexpr std::int32_t closedNotice = 9001;

}  // namespace

Manager::Manager(Library& library) : HostScreen(library, std::string(screenName)) {
    setCaption("Manage Roaming Workstation");
    resizable = false;
    lblExplanation.setCaption(
        "<TextBlock TextWrapping='Wrap'>This Roaming Workstation exchanges its changes with the main system by the "
        "sync agent.</TextBlock>");
    cmdReset.onClick = [this] { cmdReset_Click(); };
    cmdStopSync.onClick = [this] { cmdStopSync_Click(); };
    cmdIdentity.onClick = [this] { cmdIdentity_Click(); };
    cmdClose.onClick = [this] { unload(); };
}

Layout Manager::layout() {
    using namespace tsln::layout;
    return column({item(lblExplanation), item(lblStatus),
                   row({item(cmdReset), item(cmdStopSync), item(cmdIdentity), spring()}),
                   row({spring(), item(cmdClose)})});
}

void Manager::Form_Load() {
    restoreWindowPosition(*this);
    setFocus(cmdReset);
}

void Manager::Form_Activate() {
    showStatus();
}

void Manager::Form_Unload() {
    saveWindowPosition(*this);
    host().messages().PostMessage(closedNotice, reset_ ? 1 : 0);
}

void Manager::showStatus() {
    const Variant state = host().database().ExecuteScaler("SELECT SyncState FROM Company");
    const bool hasRow = !state.isEmpty() && !state.isNull();
    lblStatus.setCaption("Status: " +
                         (hasRow ? host().common().GetFriendlySyncState(state.toLong()) : "No company"));
}

void Manager::cmdReset_Click() {
    if (!host().AskMessageStyle1(
            "Are you sure you want to reset the sync status for this Roaming Workstation?",
            "Resetting the sync status will cause any un-synced changes made on this Roaming Workstation up to this point in time to not be sent to the main system; Only changes made after this point will be sent.") ||
        !host().ConfirmMessageStyle1(
            "You are about to perform a sync reset",
            format(
                "This process may take up to {0} minutes. Click OK to proceed, at which time the company will be closed.",
                resetMinutes))) {
        return;
    }
    const bool reset = host().database().ExecuteNonQuery(
        format("UPDATE Company SET SyncState = {0}, ResetRequestedOn = '{1}'",
               static_cast<std::int32_t>(ResetRequested), host().FixDateForSQLInsert(dateText(now()))));
    if (!reset)
        return reportDatabaseFailure("The sync state for this Roaming Workstation could not be reset.");
    reset_ = true;
    handle([this] {
        host().ShowMessageStyle1(
            "The sync state for this Roaming Workstation has been reset.",
            format("Wait {0} minutes and then open the company.", resetMinutes) +
                "<LineBreak/>No changes up to this point in time will be sent to the main system; Only new changes will be sent.");
    });
    unload();
}

void Manager::cmdStopSync_Click() {
    stopSyncAgent(host());
    tell("The Roaming Workstation Sync Agent has been told to stop.", MessageIcon::Information);
}

void Manager::cmdIdentity_Click() {
    library().ShowRoamingWorkstationIdentity();
    showStatus();
}

void manageWorkstation(Library& library) {
    library.screens().show(
        screenName, [&] { return std::make_shared<Manager>(library); }, [](Manager&) {});
}

}  // namespace tsln::roaming
