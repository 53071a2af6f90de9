#include "workbench/app/AgentStart.h"

#include <wx/utils.h>

#include "desktop/Process.h"
#include "shared/CommandWord.h"

namespace tsln::workbench {

void startAgentIfWanted(CompanySession& session) {
    const ObjectPtr options = session.sharedCode()->get("Options").toObject();
    const auto option = [&](const char* name) {
        return options->call("GetCompanyOption", name, "Roaming Workstations", "").toText();
    };
    if (option("StartAgent") != "1" || option("SyncComputerName") != wxGetHostName().utf8_string()) return;
    const std::string program = options->call("ExternalProgram", "RoamingSyncAgent").toText();
    if (program.empty()) return;
    const std::string folder = options->call("UserFileLocation", "Companies").toText();
    if (desktop::openDetached(program, "/Profile:\"(default)\" /Companies:" + commandWord(folder))) return;
    session.eventLog().record(EventLog::Error, "The sync agent " + program + " could not be started.");
}

}  // namespace tsln::workbench
