#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doubles/TempFolder.h"
#include "tests/workbench/app/RunWorkbench.h"
#include "workbench/company/Company.h"

namespace tsln::workbench {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

class ProgramTest : public testing::Test {
  protected:
    std::string path(const std::string& name) const { return folder_.file(name); }

  private:
    const tsln::test::TempFolder folder_;
};

TEST_F(ProgramTest, AnInvalidCommandLineIsExplained) {
    const struct {
        const char* arguments;
        int exitCode;
        const char* says;
    } cases[] = {
        {"--help", 0, "--company"},
        {"--frobnicate", 2, "--frobnicate"},
        {"--company", 2, "--company"},
        {"--show NoSuchOperation", 2, "There is no operation NoSuchOperation."},
        {"--show RunPackageProcessor a b", 2, "There is no operation RunPackageProcessor."},
        {"--show ShowEditTerms", 2, "ShowEditTerms takes 1 argument(s), not 0."},
        {"--show ShowTerms --tour /tmp/x", 2, "--tour"},
        {"--make-42 /tmp/x.42 many", 2, "'many' is no number of customers."},
        {"--make-42 /tmp/x.42 -1", 2, "-1"},
        {"--migrate /tmp/x.42 --show ShowTerms", 2, "--migrate"},
    };
    for (const auto& c : cases) {
        const Ended ended = runWorkbench(c.arguments);
        EXPECT_EQ(ended.exitCode, c.exitCode) << c.arguments;
        EXPECT_THAT(ended.output, HasSubstr(c.says)) << c.arguments;
    }
}

TEST_F(ProgramTest, AnUnusableCompanyOrUserIsReportedAndTheFileIsUnchanged) {
    std::ofstream(path("text.company")) << "not a database in spite of its name";
    fs::create_directories(path("a folder"));
    // The digest of "top secret".
    Company(path("good.company"))
        .execute(
            "UPDATE Employees SET PasswordHash = '9d3b319476557b164750a707e93274a48268f689d9ffa41433e9e573a2b85d9f' WHERE Username = 'priya'");
    const auto before = fs::last_write_time(path("text.company"));

    const struct {
        std::string arguments;
        int exitCode;
        const char* password = "";
    } cases[] = {
        {"--company '" + path("text.company") + "'", 3},
        {"--company '" + path("a folder") + "'", 3},
        {"--company '" + path("no/such/folder/x.company") + "'", 3},
        {"--company '" + path("good.company") + "' --user nobody", 4},
        {"--company '" + path("good.company") + "' --user priya", 4, "Top secret"},
        {"--company '" + path("good.company") + "' --user priya", 5, "top secret"},
        {"--company '" + path("good.company") + "'", 5},  // correct, except that there is no display
    };
    for (const auto& c : cases) {
        setenv("TSLN_PASSWORD", c.password, 1);
        const Ended ended = runWorkbench(c.arguments);
        EXPECT_EQ(ended.exitCode, c.exitCode) << c.arguments;
        EXPECT_THAT(ended.output, testing::EndsWith(".\n"))
            << "the message is not a sentence: " << c.arguments;
    }
    EXPECT_EQ(fs::last_write_time(path("text.company")), before);
    EXPECT_FALSE(fs::exists(path("no")));
}

TEST_F(ProgramTest, ACompanyOfVersion42IsMadeAndMigratedWithoutADisplay) {
    const std::string old = "'" + path("old.42") + "'", company = "--company '" + path("new.company") + "' ";
    EXPECT_EQ(runWorkbench("--make-42 " + old + " 40").exitCode, 0);
    const Ended again = runWorkbench("--make-42 " + old);
    EXPECT_EQ(again.exitCode, 3);
    EXPECT_THAT(again.output, HasSubstr("The file exists."));

    const Ended ended = runWorkbench(company + "--migrate " + old);
    EXPECT_EQ(ended.exitCode, 0);
    for (const char* line : {"Customers: 40 records were imported, 40 of them are new.\n",
                             "  Customers                   60       100\n", "The migration succeeded.\n"})
        EXPECT_THAT(ended.output, HasSubstr(line));

    const Ended failed = runWorkbench(company + "--migrate '" + path("text") + "'");
    EXPECT_EQ(failed.exitCode, 1);
    EXPECT_THAT(failed.output, HasSubstr("The TSLN 4.2 company file cannot be opened.\n"));
    EXPECT_THAT(failed.output, HasSubstr("does not exist."));
}

}  // namespace
}  // namespace tsln::workbench
