#include <gtest/gtest.h>

#include "workbench/app/ProcessEndEvent.h"

namespace tsln::workbench {
namespace {

TEST(ProcessEndEvent, EveryEndExceptSuccessIsLogged) {
    EXPECT_EQ(processEndEvent("program", {.started = true, .exitCode = 0}), std::nullopt);
    const std::pair<ProcessEnd, const char*> ends[] = {
        {{.started = false}, "The program could not be started: program /Keys:X"},
        {{.started = true, .exitCode = 6}, "The program ended with the code 6: program /Keys:X"},
        {{.started = true, .exitCode = -9}, "The program was ended by signal 9: program /Keys:X"},
    };
    for (const auto& [end, text] : ends)
        EXPECT_EQ(processEndEvent("program /Keys:X", end), text);
}

}  // namespace
}  // namespace tsln::workbench
