#include <csignal>
#include <cstdlib>
#include <fstream>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>
#include <wx/utils.h>

#include "doubles/TempFolder.h"
#include "workbench/app/AgentStart.h"
#include "workbench/company/Company.h"
#include "workbench/company/CompanyFile.h"

namespace tsln::workbench {
namespace {

/// A folder with a main company, the copy of a roaming workstation whose request waits, and files that are no companies.
class AgentProgramTest : public testing::Test {
  protected:
    AgentProgramTest() {
        {
            // As a copy looks before its initial synchronization: a row of the company, and nothing else.
            const auto copy = openCompanyFile(copyPath, OpenMode::Create);
            SQLite::Transaction transaction(*copy);
            SQLite::Statement tables(
                *copy, "SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE 'sqlite%'");
            while (tables.executeStep())
                copy->exec("DELETE FROM \"" + tables.getColumn(0).getString() + "\"");
            copy->exec(
                "INSERT INTO Company (Name, UniqueID, CompanyType, SyncState) VALUES "
                "('Roaming', '0F8FAD5B-D9CB-469F-A165-70867728950E', 2, 1)");
            transaction.commit();
        }
        Company(mainPath).execute(
            "UPDATE RoamingWorkstations SET UniqueID = "
            "'0f8fad5b-d9cb-469f-a165-70867728950e' WHERE ReferenceCode = 20");
        std::ofstream(folder.file("notes.txt")) << "no company";
        std::filesystem::create_directory(folder.file("Products"));
    }
    int run(const std::string& before = "TESSALINE_AGENT=0", const std::string& after = "") const {
        const std::string command = before +
                                    " '" AGENT_PROGRAM "' '/Profile:(default)' '/Companies:" + folder.path() +
                                    "' 2>/dev/null" + after;
        const int status = std::system(command.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    static std::string value(const std::string& path, const std::string& sql) {
        return Company(path, OpenMode::ReadOnly).scalar(sql).toText();
    }
    std::string state() const { return value(copyPath, "SELECT SyncState FROM Company"); }
    std::string lastEvent() const {
        return value(copyPath, "SELECT TOP 1 EventText FROM EventLog ORDER BY ID DESC");
    }

    const test::TempFolder folder;
    const std::string mainPath = folder.file("Main company.company");
    const std::string copyPath = folder.file("A copy.company");
};

TEST_F(AgentProgramTest, TheInitialSyncFillsTheCopyAndIsNotedInTheMainCompany) {
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(state(), "4");
    EXPECT_EQ(value(copyPath, "SELECT MainUniqueID FROM Company"),
              value(mainPath, "SELECT UniqueID FROM Company"));
    for (const char* table : {"Employees", "DiscountGroups", "OrderStatusCodes", "SecurityRoleAccess"}) {
        const std::string count = std::string("SELECT COUNT(*) FROM ") + table;
        EXPECT_EQ(value(copyPath, count), value(mainPath, count)) << table;
    }
    EXPECT_EQ(value(mainPath,
                    "SELECT COUNT(*) FROM RoamingWorkstations WHERE ReferenceCode = 20 AND SyncState = 4 "
                    "AND LastSentTo IS NOT NULL AND LastKnownAppVersion <> ''"),
              "1");
    EXPECT_EQ(lastEvent(), "The initial sync was completed.");
    EXPECT_EQ(value(mainPath, "SELECT SyncState FROM Company"), "4")
        << "a company without a request is left alone";
}

TEST_F(AgentProgramTest, AKilledAgentsWorkIsTakenUpByTheNext) {
    const std::string pid = folder.file("pid");
    run("TESSALINE_AGENT=1000", " & echo $! >'" + pid + "'");
    SQLite::Database copy(copyPath, SQLite::OPEN_READONLY, 1000);
    for (int i = 0; i < 1000 && copy.execAndGet("SELECT SyncState FROM Company").getInt() != 2; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    pid_t agent = 0;
    std::ifstream(pid) >> agent;
    ASSERT_GT(agent, 0);
    ASSERT_EQ(kill(agent, SIGKILL), 0);
    EXPECT_EQ(state(), "2");
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(state(), "4");
}

TEST_F(AgentProgramTest, AnUnknownIdentityCodeIsRefused) {
    Company(copyPath).execute("UPDATE Company SET UniqueID = '11111111-2222-3333-4444-555555555555'");
    EXPECT_EQ(run(), 2);
    EXPECT_EQ(state(), "0");
    EXPECT_EQ(lastEvent().substr(0, 77),
              "No main company knows the identity code 11111111-2222-3333-4444-555555555555.");
    EXPECT_EQ(value(copyPath, "SELECT COUNT(*) FROM Employees"), "0");
}

TEST_F(AgentProgramTest, StopsWhenToldAndCarriesOutAReset) {
    const auto execute = [&](const char* sql) { Company(copyPath).execute(sql); };
    execute(
        "INSERT INTO CompanyOptions (Section, OptionName, OptionValue) "
        "VALUES ('Roaming Workstations', 'StopSync', '1')");
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(state(), "1");
    execute("UPDATE CompanyOptions SET OptionValue = '0'");
    execute("UPDATE Company SET SyncState = 5, ResetRequestedOn = '2024-01-01T00:00:00'");
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(
        value(copyPath, "SELECT COUNT(*) FROM Company WHERE SyncState = 4 AND ResetRequestedOn IS NULL"),
        "1");
    execute("DELETE FROM Company");
    EXPECT_EQ(run(), 0) << "a company without its row has no request";
}

TEST_F(AgentProgramTest, AnInvalidCommandLineIsRefused) {
    for (const char* arguments : {"", "/Profile:x", "/Companies:/tmp", "/Profile:x /Companies:/tmp /Fast"}) {
        const int status =
            std::system(("'" AGENT_PROGRAM "' " + std::string(arguments) + " 2>/dev/null").c_str());
        EXPECT_EQ(WEXITSTATUS(status), 1) << arguments;
    }
    EXPECT_EQ(state(), "1");
}

/// No message is expected.
class SilentUi : public HostUi {
    Reply showMessage(const Message& message) override {
        ADD_FAILURE() << message.text;
        return {};
    }
};

TEST_F(AgentProgramTest, StartsWithTheProgramOnTheResponsibleComputerOnly) {
    const std::string program = folder.file("agent"), note = folder.file("note");
    std::ofstream(program) << "#!/bin/sh\necho \"$1|$2\" > '" << note << ".new'\nmv '" << note << ".new' '"
                           << note << "'\n";
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    SilentUi ui;
    CompanySession session(mainPath, "admin", ui);
    const ObjectPtr options = session.sharedCode()->get("Options").toObject();
    const auto start = [&](const std::string& computer, const char* wanted) {
        options->call("SetCompanyOption", "SyncComputerName", "Roaming Workstations", computer);
        options->call("SetCompanyOption", "StartAgent", "Roaming Workstations", wanted);
        startAgentIfWanted(session);
    };
    const std::string here = wxGetHostName().utf8_string();
    start(here, "1");  // there is no program yet
    session.registerProgram("RoamingSyncAgent", program);
    start("another-" + here, "1");
    start(here, "0");
    usleep(200'000);
    EXPECT_FALSE(std::filesystem::exists(note));
    start(here, "1");
    for (int i = 0; i < 100 && !std::filesystem::exists(note); ++i)
        usleep(50'000);
    std::string line;
    std::getline(std::ifstream(note), line);
    EXPECT_EQ(line, "/Profile:(default)|/Companies:" + folder.path());
}

}  // namespace
}  // namespace tsln::workbench
