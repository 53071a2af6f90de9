// A component of the host that is created by its name, over a real company.

#include <gtest/gtest.h>

#include "tests/com/server/OfferedComponent.h"
#include "tests/com/server/OverCompany.h"

namespace tsln::test {
namespace {

using OptionsTest = OverCompany;

TEST_F(OptionsTest, AScanReadsTheProductFilesByTheHostsComponent) {
    const OfferedComponent engine(session, "catalog5engine.Engine");
    const std::string before = value("SELECT COUNT(*) FROM OptionDetailSettings");
    ASSERT_EQ(S_OK, library->ScanForOptionDetailSettings());  // its window closes by itself
    EXPECT_GT(std::stoi(value("SELECT COUNT(*) FROM OptionDetailSettings")), std::stoi(before) + 30);
    EXPECT_EQ(
        "Wand for battery",
        value("SELECT Prefix FROM OptionDetailSettings WHERE OptionName = 'Battery Wand' AND Location = 0"));
    EXPECT_EQ("1",
              value("SELECT COUNT(*) FROM EventLog WHERE EventText LIKE '%you don''t have permission%'"));
}

}  // namespace
}  // namespace tsln::test
