#include "roaming/InitialSync.h"

#include <cstdio>

#include "automation/NumericText.h"
#include "bridge/Component.h"
#include "bridge/SyncState.h"
#include "roaming/SyncAgent.h"
#include "shared/modSharedSQL.h"

namespace tsln::roaming {
namespace {

using modSharedSQL::format;

constexpr std::string_view screenName = "frmRoamingWorkstationInitial";

/// The agent may hold the company file for a while. Its user is told of a failing poll only when this many fail in a row.
constexpr int patience = 5;

bool isPending(std::int32_t state) {
    return state >= InitialSyncRequested && state < InSync;
}

}  // namespace

std::string elapsedText(std::chrono::seconds time) {
    const std::chrono::hh_mm_ss parts(time);
    const auto number = [](auto part) { return static_cast<int>(part.count()); };
    char text[32];
    if (parts.hours().count() > 0) {
        std::snprintf(text, sizeof text, "%d:%02d:%02d", number(parts.hours()), number(parts.minutes()),
                      number(parts.seconds()));
    } else {
        std::snprintf(text, sizeof text, "%d:%02d", number(parts.minutes()), number(parts.seconds()));
    }
    return text;
}

InitialSync::InitialSync(Library& library) : HostScreen(library, std::string(screenName)) {
    setCaption("Initial Sync");
    resizable = false;
    lblExplanation.setCaption(
        "<TextBlock TextWrapping='Wrap'>This Roaming Workstation receives the company from the main system by an "
        "initial sync.</TextBlock>");
    cmdRequest.onClick = [this] { request(); };
    cmdFileManager.onClick = [this] { callFileManager("ShowFileManager"); };
    cmdMoveFiles.onClick = [this] { callFileManager("ShowMoveFileLocations"); };
    cmdClose.onClick = [this] { unload(); };
    tmrWait.onTick = [this] { tick(); };
}

Layout InitialSync::layout() {
    using namespace tsln::layout;
    return column({item(lblExplanation), item(lblStatus), item(lblFrequency), item(lblElapsed),
                   row({item(cmdFileManager), item(cmdMoveFiles), spring()}),
                   row({spring(), item(cmdRequest), item(cmdClose)})});
}

void InitialSync::Form_Load() {
    restoreWindowPosition(*this);
}

void InitialSync::Form_Unload() {
    saveWindowPosition(*this);
}

void InitialSync::initialize() {
    handle([this] {
        const std::string minutes =
            host().options().GetCompanyOption("SyncFrequency", optionSection, "").toText();
        const bool known = parseNumber(minutes).value_or(0) > 0;
        lblFrequency.setVisible(known);
        if (known)
            lblFrequency.setCaption(format("The agent looks for requests every {0} minutes.", minutes));
        const auto state = readState();
        if (!state) return;
        showState(*state);
        if (isPending(*state)) wait();
    });
    setFocus(cmdRequest);
}

std::optional<std::int32_t> InitialSync::readState() const {
    const Variant state = host().database().ExecuteScaler("SELECT SyncState FROM Company");
    if (state.isEmpty() || state.isNull()) return std::nullopt;
    return state.toLong();
}

void InitialSync::showState(std::int32_t state) {
    if (shownState_ == state) return;
    shownState_ = state;
    lblStatus.setCaption("Status: " + host().common().GetFriendlySyncState(state));
}

void InitialSync::request() {
    if (!host().AskMessageStyle1(
            "Are you ready to request an initial sync?",
            "Once the initial sync has been completed this dialog will close and you can begin using the software."))
        return;
    stopWaiting();
    if (!host().database().ExecuteNonQuery(
            "UPDATE Company SET SyncState = 1, NextSequenceToMain = 0, NextSequenceFromMain = 0, LastAuditID = 0, MainUniqueID = NULL")) {
        return reportDatabaseFailure("An initial sync could not be started.");
    }
    if (!startSyncAgent(*this)) return;
    requested_ = std::chrono::steady_clock::now();
    wait();
    tick();
}

// Waiting ---------------------------------------------------------------------------------------------

void InitialSync::wait() {
    failedPolls_ = 0;
    tmrWait.start();
}

void InitialSync::stopWaiting() {
    tmrWait.stop();
    requested_.reset();
    lblElapsed.setCaption("");
}

void InitialSync::tick() {
    if (requested_) {
        const auto elapsed = std::chrono::steady_clock::now() - *requested_;
        lblElapsed.setCaption(format("Time since request was started: {0}",
                                     elapsedText(std::chrono::duration_cast<std::chrono::seconds>(elapsed))));
    }
    std::optional<std::int32_t> state;
    try {
        state = readState();
        failedPolls_ = 0;
    } catch (const std::exception&) {
        if (++failedPolls_ < patience) return;
        stopWaiting();
        throw;
    }
    if (!state) {
        stopWaiting();
        return tell("The company's record does not exist any more. Enter the identity code again.",
                    MessageIcon::Exclamation);
    }
    if (*state == InSync) {
        Cancelled = false;
        stopWaiting();
        return unload();
    }
    if (!isPending(*state)) {
        // The agent has taken the request back.
        stopWaiting();
        tell("An initial sync could not be started.", MessageIcon::Exclamation);
    }
    showState(*state);
}

bool InitialSync::Form_QueryUnload(bool) {
    return !tmrWait.running() ||
           ask("This company is still waiting for the initial sync to be completed. Are you sure you want to cancel the process?");
}

void InitialSync::callFileManager(std::string_view member) {
    const Component fileManager(desktop().createObject("tslnfm5.Library"), host());
    fileManager->call(member);
}

bool requestInitialSync(Library& library) {
    return library.screens()
        .show(
            screenName, [&] { return std::make_shared<InitialSync>(library); },
            [](InitialSync& screen) { screen.initialize(); })
        ->Cancelled;
}

}  // namespace tsln::roaming
