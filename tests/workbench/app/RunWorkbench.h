#pragma once

#include <array>
#include <cstdio>
#include <string>
#include <sys/wait.h>

namespace tsln::workbench {

/// How a program ended.
struct Ended {
    int exitCode = -1;
    std::string output;  ///< standard output and errors
};

/// Runs the workbench program without a display.
inline Ended runWorkbench(const std::string& arguments) {
    const std::string command =
        "env -u DISPLAY -u WAYLAND_DISPLAY '" WORKBENCH_PROGRAM "' " + arguments + " 2>&1";
    FILE* pipe = popen(command.c_str(), "r");
    Ended ended;
    std::array<char, 4096> buffer;
    while (const auto count = std::fread(buffer.data(), 1, buffer.size(), pipe)) {
        ended.output.append(buffer.data(), count);
    }
    const int status = pclose(pipe);
    if (WIFEXITED(status)) ended.exitCode = WEXITSTATUS(status);
    return ended;
}

}  // namespace tsln::workbench
