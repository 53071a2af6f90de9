#include "benchmark/StartLines.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <map>
#include <memory>

#include <wx/app.h>
#include <wx/init.h>

#include "benchmark/Lines.h"
#include "benchmark/WatchedList.h"
#include "desktop/WxDesktop.h"
#include "entities/Entities.h"

namespace tsln::bench {
namespace {

constexpr int starts = 9;

}  // namespace

// Each start is a process of its own: what is loaded and made once is part of it.

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
    lists::plugIn(*library);
    entities::plugIn(*library);
    const auto created = WatchedList::Clock::now();
    library->Initialize(company.session().sharedCode());
    const auto initialized = WatchedList::Clock::now();
    const auto moments = WatchedList::open(*library, std::nullopt);
    const auto part = [&](const char* what, WatchedList::Clock::time_point from,
                          WatchedList::Clock::time_point to) {
        std::printf("%.9f %s\n", moments.seconds(from, to), what);
    };
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
    std::vector<std::string> order;
    std::map<std::string, std::vector<double>> parts;
    for (int i = 0; i < starts; ++i) {
        const std::unique_ptr<std::FILE, int (*)(std::FILE*)> output(popen(command.c_str(), "r"), pclose);
        char line[256];
        while (output && std::fgets(line, sizeof line, output.get())) {
            double seconds = 0;
            int length = 0;
            if (std::sscanf(line, "%lf %n", &seconds, &length) != 1) continue;
            line[std::strcspn(line, "\n")] = '\0';
            const std::string what = line + length;
            if (!parts.contains(what)) order.push_back(what);
            parts[what].push_back(seconds * 1000);
        }
    }
    for (const std::string& what : order)
        report.add(
            Line{.what = "start: " + what, .against = "", .value = spreadOf(parts[what]), .unit = "ms"});
}

}  // namespace tsln::bench
