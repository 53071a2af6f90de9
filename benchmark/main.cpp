#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <malloc.h>
#include <string_view>

#include <CLI/CLI.hpp>
#include <climits>
#include <wx/app.h>
#include <wx/init.h>

#include "benchmark/Lines.h"
#include "benchmark/ReportFiles.h"
#include "benchmark/StartLines.h"

namespace {

using namespace tsln::bench;

struct Options {
    Settings settings;
    std::string filter;
    std::string json;
    std::string plot;
};

bool startToolkit(int argc, char** argv) {
    if (!std::getenv("DISPLAY") && !std::getenv("WAYLAND_DISPLAY")) return false;
    wxApp::SetInstance(new wxApp);
    argc = 1;  // hides our options from the toolkit
    if (!wxEntryStart(argc, argv)) return false;
    wxTheApp->CallOnInit();
    wxTheApp->SetExitOnFrameDelete(false);
    return true;
}

void measure(const Options& options, bool onDisplay, Report& report) {
    for (const Group& group : groups) {
        if (group.name.find(options.filter) == group.name.npos) continue;
        if (group.onDisplay && !onDisplay) {
            std::fprintf(stderr, "%s: skipped, because there is no display\n",
                         std::string(group.name).c_str());
            continue;
        }
        std::fprintf(stderr, "%s\n", std::string(group.name).c_str());
        group.measure(options.settings, report);
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::string_view(argv[1]) == "--start-once") {
        startOnce(1, argv);
        return 0;
    }
    Options options;
    CLI::App line(
        "Compares the speed of the module with other implementations of the same work, and prints the ratios.",
        "bench");
    std::string names;
    for (const Group& group : groups)
        names += (names.empty() ? "" : ", ") + std::string(group.name);
    line.add_option("filter", options.filter,
                    "Measure only the groups whose name contains this text: " + names)
        ->type_name("FILTER");
    line.add_option("--rows", options.settings.rows, "Rows of the lists (default: 100000)")
        ->check(CLI::Range(1000, 1000000));
    line.add_option("--most-rows", options.settings.mostRows,
                    "Most rows of the growth curves (default: 1000000)")
        ->check(CLI::Range(3000, 1000000));
    line.add_flag("!--no-growth", options.settings.growth, "Do not measure growth");
    line.add_option("--json", options.json, "Also write the results to this file")->type_name("FILE");
    line.add_option("--plot", options.plot, "Plot growth to this file, an SVG picture")->type_name("FILE");
    try {
        line.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return line.exit(error) == 0 ? 0 : 2;
    }

    // Freed memory stays with the program; otherwise a contestant would pay for memory that another one returned.
    mallopt(M_TRIM_THRESHOLD, INT_MAX);
    mallopt(M_MMAP_MAX, 0);
    const bool onDisplay = startToolkit(argc, argv);
    int result = 0;
    try {
        Report report;
        measure(options, onDisplay, report);
        std::fputs(report.table().c_str(), stdout);
        if (!options.json.empty() && !(std::ofstream(options.json) << toJson(report))) {
            throw std::runtime_error("The results cannot be written to " + options.json + ".");
        }
        if (!options.plot.empty()) plot(report, options.plot);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        result = 1;
    }
    if (onDisplay) wxEntryCleanup();
    return result;
}
