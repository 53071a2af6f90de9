// Stands in for the synchronization agent of roaming workstations. It is a separate program, started by the host:
//
//   tessaline-agent /Profile:"(default)" /Companies:"/path of the companies"
//
// It carries out the requests that the companies in the folder hold (see SyncRequests.h) and ends. Failures are written
// to standard error.
//
// TESSALINE_AGENT, a number of milliseconds (1000), sets how long each of the three steps of an initial synchronization
// takes.
//
// Exit codes: see Exit.

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <sstream>

#include "workbench/agent/SyncRequests.h"
#include "workbench/company/CommandLine.h"
#include "workbench/company/LoadPath.h"

namespace {

using namespace tsln::workbench;

enum Exit {
    Done = 0,
    BadCommandLine = 1,  ///< an option is unknown or missing
    Failed = 2,          ///< a request was taken back, or a company could not be written
};

std::chrono::milliseconds stepLength() {
    long milliseconds = 1000;
    if (const char* setting = std::getenv("TESSALINE_AGENT")) std::istringstream(setting) >> milliseconds;
    return std::chrono::milliseconds(std::max(milliseconds, 0L));
}

/// Returns the companies' folder, empty after a bad command line.
std::string readFolder(const std::vector<std::string>& words) {
    std::string profile, folder;
    for (std::size_t i = 1; i < words.size(); ++i) {
        if (const auto value = optionValue(words[i], "/Profile:")) {
            profile = *value;
        } else if (const auto path = optionValue(words[i], "/Companies:")) {
            folder = *path;
        } else {
            std::cerr << "The option '" << words[i] << "' is not known.\n";
            return {};
        }
    }
    if (!profile.empty() && !folder.empty()) return folder;
    std::cerr << "The options /Profile: and /Companies: are needed.\n";
    return {};
}

}  // namespace

int main(int count, char** arguments) {
    restrictLoadPath();
    const std::string folder = readFolder(commandLineWords(count, arguments));
    if (folder.empty()) return BadCommandLine;
    int result = Done;
    const std::vector<std::string> companies = companiesIn(folder);
    for (const std::string& path : companies) {
        try {
            if (!carryOutRequest(path, companies, stepLength())) result = Failed;
        } catch (const std::exception& error) {
            std::cerr << path << ": " << error.what() << std::endl;
            result = Failed;
        }
    }
    return result;
}
