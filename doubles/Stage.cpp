#include "doubles/Stage.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "module/Module.h"

namespace tsln::test {
namespace {

/// Returns the writing statements that were sent to the host, without their values.
std::set<std::string> writings(const RecordingHost& host) {
    std::set<std::string> shapes;
    for (const char* member : {"Database.ExecuteNonQuery", "Database.ExecuteNonQueryWithID",
                               "CurrentCompanyConn.Execute", "TSLNSQL.ExecuteNonQuery"}) {
        for (const std::string& statement : host.callsOf(member)) {
            if (!statement.starts_with("SELECT")) shapes.insert(shapeOf(statement));
        }
    }
    return shapes;
}

}  // namespace

std::string shapeOf(const std::string& statement) {
    const std::size_t condition = std::min(statement.find(" WHERE "), statement.size());
    const auto isWord = [](char c) {
        return std::isalnum(static_cast<unsigned char>(c)) || c == '_' || c == '.';
    };
    std::string shape;
    for (std::size_t at = 0; at < condition;) {
        std::size_t end = at + 1;
        if (statement[at] == '\'') {
            // A doubled quote ends one text and begins the next; both become part of one placeholder.
            end = std::min(statement.find('\'', at + 1), condition - 1) + 1;
            if (!shape.ends_with('?')) shape += '?';
        } else if (isWord(statement[at])) {
            while (end < condition && isWord(statement[end]))
                ++end;
            const std::string word = statement.substr(at, end - at);
            const bool value = word == "NULL" || std::isdigit(static_cast<unsigned char>(word.front()));
            if (value && shape.ends_with('-')) shape.pop_back();
            shape += value ? "?" : word;
        } else {
            shape += statement[at];
        }
        at = end;
    }
    return shape + statement.substr(condition);
}

Stage::Stage() {
    plugInModule(*library);
    desktop.components = [this](std::string_view programId) { return host->component(programId); };
    library->Initialize(host->sharedCode());
}

std::vector<std::string> Stage::texts() const {
    std::vector<std::string> all;
    for (const Box& box : desktop.boxes)
        all.push_back(box.text);
    return all;
}

std::vector<std::string> Stage::onConnection() const {
    std::vector<std::string> statements = host->callsOf("CurrentCompanyConn.Execute");
    std::erase_if(statements, [](const std::string& s) { return s.starts_with("SELECT"); });
    return statements;
}

std::string explained(std::string_view message) {
    return std::string(message) + ", {standard explanation}, the database's own words";
}

std::string explainedInFull(std::string_view message) {
    return std::string(message) + ", " + explanation + ", the database's own words";
}

RecordingHost::Answer raises(std::string text) {
    return [text](Arguments) -> Variant { throw HostError(code::fail, "Host", text); };
}

RecordingHost::Answer fills(std::vector<std::pair<std::string, std::int32_t>> entries) {
    return [entries](Arguments a) {
        for (const auto& [text, ID] : entries) {
            a[0].object().call("AddItem", text);
            a[0].object().put("ItemData", a[0].object().get("NewIndex"), ID);
        }
        return Variant();
    };
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
    for (const Fault fault : allFaults) {
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
