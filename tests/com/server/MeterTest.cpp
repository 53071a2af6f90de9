// Measurements typed by the laser meter's program into a screen of the module, over a real company.

#include <filesystem>

#include <gmock/gmock.h>

#include "automation/FilePath.h"
#include "tests/com/server/OverCompany.h"

namespace tsln::test {
namespace {

constexpr const char* title = "New Customer Measurement";

/// Returns once the boxes of width and height have not changed for three seconds.
void waitForLastShot(WindowDriver& at) {
    std::string before;
    for (int unchanged = 0; unchanged < 30;) {
        Sleep(100);
        const std::string now = at.read(title, 4) + " by " + at.read(title, 5);
        unchanged = now == before ? unchanged + 1 : 0;
        before = now;
    }
}

using MeterTest = OverCompany;

TEST_F(MeterTest, EveryShotReachesItsFieldAndEveryMeasurementIsStored) {
    SetEnvironmentVariableW(L"TESSALINE_METER", L"20 250");  // measurements, milliseconds between two shots
    const auto program = std::filesystem::path(serverFile()).parent_path() / "tessaline-meter.exe";
    session.registerProgram("DistoTransfer", utf8Of(program));
    LONG key = 0;
    LONG customer = 1;
    com::OwnedVariant list;
    LONG saved = 0;
    {
        const User user([](WindowDriver& at) {
            at.bringToFront(title);
            at.fill(title, 0, "Lake house");
            at.tick(title, "&Add another measurement");
            at.click(title, "Laser Me&ter");
            waitForLastShot(at);
            at.press(title, "Cancel");
        });
        ASSERT_EQ(S_OK, library->ShowEditCustomerMeasurement(&key, &customer, list.get(), &saved));
    }
    const auto rows =
        session.company()
            .run("SELECT Width, Length FROM CustomerMeasurements WHERE Location = 'Lake house' ORDER BY ID")
            .rows;
    ASSERT_EQ(rows.size(), 20U);
    EXPECT_EQ(rows.front()[0].toText(), "24");
    EXPECT_EQ(rows.back()[0].toText(), "43 3/8");
    EXPECT_EQ(rows.back()[1].toText(), "79 3/8");
}

}  // namespace
}  // namespace tsln::test
