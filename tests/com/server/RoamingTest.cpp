// Roaming workstations, called through COM over a real company, with the agent as a program of its own.

#include <filesystem>

#include <gtest/gtest.h>

#include "automation/FilePath.h"
#include "tests/com/server/OverCompany.h"

namespace tsln::test {
namespace {

class RoamingTest : public OverCompany {
  protected:
    void SetUp() override {
        SetEnvironmentVariableW(L"TESSALINE_AGENT", L"300");  // milliseconds a step
        const auto program = std::filesystem::path(serverFile()).parent_path() / "tessaline-agent.exe";
        session.registerProgram("RoamingSyncAgent", utf8Of(program));
        OverCompany::SetUp();
    }
};

TEST_F(RoamingTest, TheAgentCompletesTheInitialSyncAndTheScreenClosesByItself) {
    const std::string code = value("SELECT UniqueID FROM RoamingWorkstations WHERE ReferenceCode = 20");
    LONG entered = 0;
    {
        const User user([&](WindowDriver& at) {
            at.fill("Roaming Workstation Identity", 0, code);
            at.press("Roaming Workstation Identity", "OK");
        });
        ASSERT_EQ(S_OK, library->ShowRoamingWorkstationIdentity(&entered));
    }
    EXPECT_EQ(1, entered);
    VARIANT_BOOL cancelled = VARIANT_TRUE;
    {
        const User user([](WindowDriver& at) {
            at.click("Initial Sync", "&Request Initial Sync...");
            EXPECT_TRUE(at.gone("Initial Sync"));
        });
        ASSERT_EQ(S_OK, library->ShowRoamingWorkstationInitial(&cancelled));
    }
    EXPECT_EQ(VARIANT_FALSE, cancelled);
    EXPECT_EQ("4", value("SELECT SyncState FROM Company"));
    EXPECT_EQ("4", value("SELECT SyncState FROM RoamingWorkstations WHERE ReferenceCode = 20"));
}

}  // namespace
}  // namespace tsln::test
