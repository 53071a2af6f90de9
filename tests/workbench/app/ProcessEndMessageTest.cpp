#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "workbench/app/ProcessEndMessage.h"

namespace tsln::workbench {
namespace {

TEST(ProcessEndMessage, TellsEveryEndButAGoodOne) {
    EXPECT_EQ(processEndMessage("program", {.started = true, .exitCode = 0}), std::nullopt);
    const std::pair<ProcessEnd, const char*> ends[] = {
        {{.started = false}, "The program could not be started."},
        {{.started = true, .exitCode = 6}, "The program ended with the code 6."},
        {{.started = true, .exitCode = -9}, "The program was ended by signal 9."},
    };
    for (const auto& [end, text] : ends) {
        const auto message = processEndMessage("program /Keys:X", end);
        ASSERT_TRUE(message) << text;
        EXPECT_EQ(message->text, text);
        EXPECT_EQ(message->detail, "program /Keys:X");
    }
}

}  // namespace
}  // namespace tsln::workbench
