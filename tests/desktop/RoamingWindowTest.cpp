#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "bridge/Library.h"
#include "doubles/RecordingHost.h"
#include "roaming/InitialSync.h"
#include "tests/desktop/Robot.h"

namespace tsln::desktop::test {
namespace {

using roaming::InitialSync;

TEST(InitialSyncWindow, FollowsTheAgentByTicksOfARealTimerAndClosesByItself) {
    const auto host = tsln::test::RecordingHost::make();
    WxDesktop desktop{nullptr, ""};
    Library library{desktop};
    library.Initialize(host->sharedCode());
    int polls = 0;
    host->on("ShowMessageStyle1", Variant(6));
    host->on("Options.ExternalProgram", Variant("/bin/true"));  // the agent; the answers below are its work
    host->on("Common.GetFriendlySyncState",
             [](Arguments a) { return Variant("State " + std::to_string(a[0].toLong())); });
    host->on("Database.ExecuteScaler", [&](Arguments) {
        constexpr int states[] = {0, 1, 2, 3, 4};
        return Variant(states[std::min(polls++, 4)]);
    });
    InitialSync screen(library);
    screen.load();
    screen.initialize();
    screen.tmrWait.setInterval(150);
    Robot user(screen);
    user.until("the button has the focus", [&] { return user.focused() == &screen.cmdRequest; });
    user.key(WXK_RETURN).until("a state of the agent is shown", [&] {
        return screen.lblStatus.caption() == "Status: State 2";
    });
    user.show();  // until it closes
    EXPECT_FALSE(screen.Cancelled);
    EXPECT_EQ(polls, 5) << "no poll follows the last one";
    EXPECT_EQ(host->callsOf("RecordEvent").size(), 1U);
}

}  // namespace
}  // namespace tsln::desktop::test
