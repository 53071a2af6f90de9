#include "roaming/SyncAgent.h"

#include <filesystem>

#include "automation/FilePath.h"
#include "shared/CommandWord.h"

namespace tsln::roaming {
namespace {

/// The name under which the host knows the agent's program.
constexpr std::string_view agentProgram = "RoamingSyncAgent";
constexpr std::string_view stopOption = "StopSync";

std::string argumentsOf(const Host& host) {
    const std::string profile = host.profiles().Profile();
    return "/Profile:" + commandWord(profile.empty() ? "(default)" : profile) +
           " /Companies:" + commandWord(host.options().UserFileLocation("Companies"));
}

}  // namespace

bool startSyncAgent(HostScreen& screen) {
    const Host host = screen.host();
    const std::string program = host.options().ExternalProgram(agentProgram);
    std::error_code ignored;
    if (program.empty() || !std::filesystem::exists(pathOf(program), ignored)) {
        screen.tell("The Roaming Workstation Sync Agent was not started because it could not be found.",
                    MessageIcon::Exclamation);
        return false;
    }
    const std::string arguments = argumentsOf(host);
    host.options().SetCompanyOption(stopOption, optionSection, 0);  // it would end at once
    if (!screen.desktop().shellOpen(program, arguments)) {
        screen.tell("The Roaming Workstation Sync Agent could not be started.", MessageIcon::Exclamation);
        return false;
    }
    try {
        host.RecordEvent("The Roaming Workstation Sync Agent was started with " + arguments);
    } catch (const std::exception&) {
        // The agent runs, whether or not that is recorded.
    }
    return true;
}

void stopSyncAgent(const Host& host) {
    host.options().SetCompanyOption(stopOption, optionSection, 1);
}

}  // namespace tsln::roaming
