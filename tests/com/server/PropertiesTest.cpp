// The properties of the database, called through COM over a real company.

#include <set>

#include <gmock/gmock.h>

#include "tests/com/server/OverCompany.h"

namespace tsln::test {
namespace {

using ::testing::IsEmpty;

using PropertiesTest = OverCompany;

TEST_F(PropertiesTest, AreShownAndClosedAndTheHostsEngineIsTerminated) {
    const auto calls = std::make_shared<std::multiset<std::string>>();
    session.tracer()->observe([calls](const workbench::TraceEntry& call) { calls->insert(call.member); });
    {
        const User user([](WindowDriver& at) {
            at.waitForProgress("Database Properties");
            at.press("Database Properties", "&Close");
        });
        EXPECT_EQ(S_OK, library->ShowDatabaseProperties());
    }
    EXPECT_GT(calls->count("TSLNSQL.ExecuteScaler"), 0U);
    EXPECT_EQ(1U, calls->count("TSLNSQL.PreTerminate"));
    EXPECT_THAT(ui.told, IsEmpty());
}

}  // namespace
}  // namespace tsln::test
