// Roaming workstations, called through COM over a real company, with the agent as a program of its own.

#include <filesystem>

#include <gmock/gmock.h>

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

TEST_F(RoamingTest, AWorkstationIsSavedAndListed) {
    LONG key = 4;
    LONG saved = 0;
    {
        const User user([](WindowDriver& at) {
            constexpr const char* title = "Edit Roaming Workstation";
            EXPECT_EQ("Installation van", at.read(title, 0));
            at.fill(title, 0, "Second van");
            at.press(title, "OK");
        });
        ASSERT_EQ(S_OK, library->ShowEditRoamingWorkstation(&key, &saved));
    }
    EXPECT_EQ(4, saved);
    EXPECT_EQ("Second van", value("SELECT Name FROM RoamingWorkstations WHERE ID = 4"));
    EXPECT_THAT(ui.told,
                ::testing::ElementsAre("A identity code has been assigned to this Roaming Workstation."));
    const User user([](WindowDriver& at) { at.press("Roaming Workstations", "&Close"); });
    EXPECT_EQ(S_OK, library->ShowRoamingWorkstations());
}

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

TEST_F(RoamingTest, AResetClosesTheScreenAndTellsTheHost) {
    {
        const User user(
            [](WindowDriver& at) { at.press("Manage Roaming Workstation", "&Reset Sync State..."); });
        ASSERT_EQ(S_OK, library->ShowRoamingWorkstationManager());
    }
    EXPECT_EQ("5", value("SELECT SyncState FROM Company"));
    ASSERT_EQ(1U, session.notices().size());
    EXPECT_EQ("1", session.notices()[0].about);
}

}  // namespace
}  // namespace tsln::test
