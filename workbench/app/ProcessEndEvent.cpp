#include "workbench/app/ProcessEndEvent.h"

namespace tsln::workbench {

std::optional<std::string> processEndEvent(std::string_view commandLine, ProcessEnd end) {
    if (end.started && end.exitCode == 0) return std::nullopt;
    std::string how = "could not be started";
    if (end.started) {
        how = end.exitCode < 0 ? "was ended by signal " + std::to_string(-end.exitCode)
                               : "ended with the code " + std::to_string(end.exitCode);
    }
    return "The program " + how + ": " + std::string(commandLine);
}

}  // namespace tsln::workbench
