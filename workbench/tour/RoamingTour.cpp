#include "workbench/tour/RoamingTour.h"

#include <memory>

#include <wx/defs.h>

#include "workbench/tour/TourSteps.h"
#include "workbench/tour/VirtualUser.h"

namespace tsln::workbench {
namespace {

constexpr std::chrono::seconds timeToSync{40};

bool finds(Company& company, const std::string& from) {
    return company.scalar("SELECT COUNT(*) FROM " + from).toLong() == 1;
}

Script registerWorkstation(ObjectPtr library, Company& company, std::shared_ptr<Album> album) {
    co_await untilActive("Tessaline Workbench");
    open(library, "ShowRoamingWorkstations");
    co_await untilActive("Roaming Workstations");
    co_await settled();
    press(WXK_INSERT);
    co_await untilActive("New Roaming Workstation");
    co_await settled();
    type("Owen's laptop");
    press('r', wxMOD_ALT);
    type("77");
    co_await settled();
    album->take("workstation", "a new roaming workstation with its reference code");
    press(WXK_RETURN);
    co_await untilActive("Tessaline");
    co_await settled();
    album->take("identity-code", "its identity code is on the clipboard");
    press(WXK_RETURN);
    co_await untilActive("Roaming Workstations");
    co_await settled();
    album->take("workstations", "the list with status and dates, and the options below it");
    press(WXK_ESCAPE);
    co_await untilActive("Tessaline Workbench");
    expect(finds(company, "RoamingWorkstations WHERE Name = 'Owen''s laptop' AND ReferenceCode = 77"),
           "the workstation was added");
}

Script enterIdentity(ObjectPtr library, Company& company) {
    open(library, "ShowRoamingWorkstationIdentity");
    co_await untilActive("Roaming Workstation Identity");
    co_await settled();
    press('V', wxMOD_CONTROL);
    co_await settled();
    press(WXK_RETURN);
    co_await untilActive("Tessaline Workbench");
    expect(
        finds(company,
              "Company WHERE UniqueID = (SELECT UniqueID FROM RoamingWorkstations WHERE ReferenceCode = 77)"),
        "the company has the identity code of the clipboard");
}

Script synchronize(ObjectPtr library, Company& company, std::shared_ptr<Album> album) {
    open(library, "ShowRoamingWorkstationInitial");
    co_await untilActive("Initial Sync");
    co_await settled();
    press('r', wxMOD_ALT);
    co_await untilActive("Tessaline");
    co_await settled();
    album->take("request", "the question before the initial synchronization");
    press(WXK_RETURN);
    co_await untilActive("Initial Sync");
    co_await until("the agent has begun",
                   [&company] { return finds(company, "Company WHERE SyncState BETWEEN 2 AND 3"); });
    co_await pause(std::chrono::milliseconds(1200));
    album->take("waiting", "the screen waits for the agent, a program of its own");
    co_await until(
        "the screen has closed by itself", [] { return activeWindowTitle() == "Tessaline Workbench"; },
        timeToSync);
    expect(finds(company, "Company WHERE SyncState = 4 AND MainUniqueID IS NOT NULL"),
           "the initial synchronization is complete");
    expect(finds(company, "RoamingWorkstations WHERE ReferenceCode = 77 AND SyncState = 4"),
           "the main system knows it");
}

Script reset(ObjectPtr library, Company& company, std::shared_ptr<Album> album) {
    open(library, "ShowRoamingWorkstationManager");
    co_await untilActive("Manage Roaming Workstation");
    co_await settled();
    album->take("manager", "the management of the workstation");
    press('r', wxMOD_ALT);
    for (const char* shows :
         {"the question before a reset", "the warning before a reset", "the reset is requested"}) {
        co_await untilActive("Tessaline");
        co_await settled();
        album->take("reset", shows);
        press(WXK_RETURN);
        co_await settled();
    }
    co_await untilActive("Tessaline Workbench");
    expect(finds(company, "Company WHERE SyncState = 5 AND ResetRequestedOn IS NOT NULL"),
           "the reset is requested");
}

}  // namespace

Script roamingTour(const ObjectPtr& library, Company& company, const std::string& folder) {
    const auto album = std::make_shared<Album>(folder, "roaming-");
    return inSequence(registerWorkstation(library, company, album), enterIdentity(library, company),
                      synchronize(library, company, album), reset(library, company, album));
}

}  // namespace tsln::workbench
