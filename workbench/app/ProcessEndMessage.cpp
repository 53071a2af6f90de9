#include "workbench/app/ProcessEndMessage.h"

namespace tsln::workbench {

std::optional<Message> processEndMessage(std::string_view commandLine, ProcessEnd end) {
    if (end.started && end.exitCode == 0) return std::nullopt;
    std::string how = "could not be started.";
    if (end.started) {
        how = end.exitCode < 0 ? "was ended by signal " + std::to_string(-end.exitCode) + "."
                               : "ended with the code " + std::to_string(end.exitCode) + ".";
    }
    return Message{.style = MessageStyle::LoggedError,
                   .text = "The program " + how,
                   .advice = "What it had not finished has not been done.",
                   .detail = std::string(commandLine)};
}

}  // namespace tsln::workbench
