#include "benchmark/StartLines.h"

#include <cstdio>
#include <filesystem>
#include <memory>

#include <wx/app.h>
#include <wx/init.h>

#include "benchmark/Lines.h"
#include "benchmark/WatchedList.h"
#include "benchmark/contest/BenchCompany.h"
#include "benchmark/contest/StartParts.h"
#include "desktop/WxDesktop.h"
#include "module/Module.h"

namespace tsln::bench {
void startOnce(int argc, char** argv) {
    BenchCompany company(100, 0);
    const auto begin = WatchedList::Clock::now();
    wxApp::SetInstance(new wxApp);
    if (!wxEntryStart(argc, argv)) return;
    wxTheApp->CallOnInit();
    wxTheApp->SetExitOnFrameDelete(false);
    const auto toolkit = WatchedList::Clock::now();
    desktop::WxDesktop desktop(nullptr, "");
    const auto library = std::make_shared<Library>(desktop);
    plugInModule(*library);
    const auto created = WatchedList::Clock::now();
    library->Initialize(company.session().sharedCode());
    const auto initialized = WatchedList::Clock::now();
    const auto moments = WatchedList::open(*library, std::nullopt);
    const auto part = StartParts::print;
    part("the toolkit, which the host may have started already", begin, toolkit);
    part("library created, screens plugged in", toolkit, created);
    part("initialized with the host", created, initialized);
    part("screen made, its window begun", moments.started, moments.building);
    part("window built and shown", moments.building, moments.built);
    part("window activated", moments.built, moments.activated);
    part("waiting messages dealt with", moments.activated, moments.loading);
    part("100 rows read into the list", moments.loading, moments.loaded);
    part("rows drawn", moments.loaded, moments.drawn);
    part("library created to first screen shown", toolkit, moments.drawn);
}

void measureStart(const Settings&, Report& report) {
    const std::string command =
        "'" + std::filesystem::read_symlink("/proc/self/exe").string() + "' --start-once";
    StartParts parts;
    for (int i = 0; i < StartParts::starts; ++i) {
        const std::unique_ptr<std::FILE, int (*)(std::FILE*)> output(popen(command.c_str(), "r"), pclose);
        parts.read(output.get());
    }
    parts.addTo(report, "start: ");
}

}  // namespace tsln::bench
