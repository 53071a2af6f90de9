#include <gmock/gmock.h>

#include "tests/workbench/host/HostStage.h"
#include "workbench/host/Trace.h"

namespace tsln::workbench {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(Trace, StatementResultAndDurationAreRecorded) {
    ModuleStage stage;
    std::vector<TraceEntry> entries;
    stage.session->tracer()->observe([&](const TraceEntry& entry) { entries.push_back(entry); });

    stage.part("Database")->call("ExecuteScaler", "SELECT COUNT(*) FROM Terms", "", "0");
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].member, "Database");
    EXPECT_TRUE(entries[0].fetch);
    EXPECT_EQ(entries[1].member, "Database.ExecuteScaler");
    EXPECT_EQ(entries[1].statement, "SELECT COUNT(*) FROM Terms");
    EXPECT_EQ(entries[1].arguments, "\"SELECT COUNT(*) FROM Terms\", \"\", \"0\"");
    EXPECT_EQ(entries[1].result, "0");
    EXPECT_FALSE(entries[1].failed);
    EXPECT_GT(entries[1].duration.count(), 0);
    EXPECT_LT(entries[0].number, entries[1].number);

    entries.clear();
    const std::string longText(90'000, 'x');
    EXPECT_THROW(
        stage.part("Database")->call("ExecuteRead", "SELECT * FROM Nowhere WHERE a = '" + longText + "'"),
        HostError);
    EXPECT_TRUE(entries.back().failed);
    EXPECT_THAT(entries.back().result, HasSubstr("Nowhere"));
    EXPECT_LT(entries.back().arguments.size(), 200U);
    EXPECT_GT(entries.back().statement.size(), 90'000U);

    entries.clear();
    EXPECT_THROW(stage.shared().call("NoSuchMember"), HostError);
    EXPECT_EQ(entries.back().member, "NoSuchMember");
    EXPECT_EQ(entries.back().depth, 0) << "a failed call must not leave the depth raised";
}

TEST(Trace, NestedCallsAreRecordedWithTheirDepth) {
    ModuleStage stage;
    std::vector<std::string> calls;
    stage.session->tracer()->observe([&](const TraceEntry& entry) {
        if (!entry.fetch)
            calls.push_back(std::string(static_cast<std::size_t>(entry.depth), ' ') + entry.member);
    });
    stage.session->tracer()->observe([](const TraceEntry&) { throw std::runtime_error("a bad observer"); });
    const ObjectPtr engine = stage.session->createObject("TSLNIEE5.engine");
    engine->call("Initialize", stage.session->sharedCode());
    engine->put("Verbose", true);
    EXPECT_FALSE(engine->call("ImportFile", stage.folder.file("missing.xml"), "Terms").toBoolean());
    EXPECT_THAT(calls, ElementsAre("TSLNIEE5.engine.Initialize", "TSLNIEE5.engine.Verbose", " RecordEvent",
                                   "TSLNIEE5.engine.ImportFile"));
    EXPECT_THROW(stage.session->createObject("tslnnone5.Library"), HostError);
}

}  // namespace
}  // namespace tsln::workbench
