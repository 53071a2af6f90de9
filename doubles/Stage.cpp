#include "doubles/Stage.h"

#include <regex>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "module/Module.h"

namespace tsln::test {
namespace {

/// Returns a writing statement without the written values: its table, columns and condition.
std::string shapeOf(const std::string& statement) {
    const std::size_t condition = statement.find(" WHERE ");
    const std::string written = statement.substr(0, condition);
    // `texts` matches quoted text, with doubled quotes in it; `values` matches numbers and NULL.
    static const std::regex texts("'(?:[^']|'')*'"), values("-?\\b(?:[0-9][0-9.]*|NULL)\\b");
    const std::string shape = std::regex_replace(std::regex_replace(written, texts, "?"), values, "?");
    return shape + (condition == std::string::npos ? "" : statement.substr(condition));
}

/// Returns the writing statements that were sent to the host, without their values.
std::set<std::string> writings(const RecordingHost& host) {
    std::set<std::string> shapes;
    for (const char* member :
         {"Database.ExecuteNonQuery", "Database.ExecuteNonQueryWithID", "CurrentCompanyConn.Execute"}) {
        for (const std::string& statement : host.callsOf(member)) {
            if (!statement.starts_with("SELECT")) shapes.insert(shapeOf(statement));
        }
    }
    return shapes;
}

}  // namespace

Stage::Stage() {
    plugInModule(*library);
    desktop.components = [this](std::string_view programId) { return host->component(programId); };
    library->Initialize(host->sharedCode());
}

void sweepFaults(const std::function<void(Stage&)>& scenario, const std::function<void(Stage&)>& check) {
    int calls = 0;
    std::set<std::string> clean;
    {
        Stage stage;
        scenario(stage);
        check(stage);
        calls = stage.host->callCount();
        clean = writings(*stage.host);
    }
    ASSERT_GT(calls, 0) << "the scenario does not call the host";
    using Fault = RecordingHost::Fault;
    for (const Fault fault : {Fault::Raise, Fault::False, Fault::Nothing, Fault::WrongType, Fault::Empty}) {
        for (int call = 0; call < calls; ++call) {
            SCOPED_TRACE("fault " + std::to_string(static_cast<int>(fault)) + " at call " +
                         std::to_string(call));
            Stage stage;
            stage.host->failCall(call, fault);
            EXPECT_NO_THROW(scenario(stage));
            check(stage);
            for (const std::string& writing : writings(*stage.host))
                EXPECT_TRUE(clean.contains(writing)) << "the clean run does not send " << writing;
            EXPECT_TRUE(stage.library->screens().empty()) << "a screen was left in its slot";
            stage.library->PreTerminate();
            EXPECT_EQ(stage.host->liveObjects(), 0) << "the module still references an object of the host";
        }
    }
}

}  // namespace tsln::test
