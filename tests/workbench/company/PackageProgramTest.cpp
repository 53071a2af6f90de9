#include <array>
#include <chrono>
#include <fcntl.h>
#include <fstream>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "tests/workbench/company/CompanyFixture.h"
#include "workbench/company/PackageSource.h"

namespace tsln::workbench {

namespace {

class PackageProgramTest : public CompanyTest {
  protected:
    void SetUp() override { writePackageSource(psd_, {company_.path()}); }

    std::string psdOption() const { return "/PSD:" + psd_; }

    /// Starts the program with `input` as its standard input and files as its outputs.
    pid_t start(std::vector<std::string> arguments, const std::string& input = "") {
        std::ofstream(in_) << input;
        pid_t child = ::fork();
        if (child != 0) return child;
        ::dup2(::open(in_.c_str(), O_RDONLY), 0);
        ::dup2(::open(out_.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), 1);
        ::dup2(::open(err_.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), 2);
        arguments.insert(arguments.begin(), PACKAGE_PROGRAM);
        std::vector<char*> argv;
        for (std::string& argument : arguments)
            argv.push_back(argument.data());
        argv.push_back(nullptr);
        ::execv(PACKAGE_PROGRAM, argv.data());
        ::_exit(127);
    }
    int run(std::vector<std::string> arguments, const std::string& input = "") {
        pid_t child = start(std::move(arguments), input);
        int status = 0;
        ::waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    static std::string content(const std::string& path) {
        std::ifstream file(path);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::string output() const { return content(out_); }
    std::string errors() const { return content(err_); }

    std::string psd_ = folder_.file("host & own.psd"), in_ = folder_.file("in"), out_ = folder_.file("out"),
                err_ = folder_.file("err");
};

TEST_F(PackageProgramTest, ExistingTermsAreNotInstalledAgain) {
    EXPECT_EQ(run({"/Keys:TSLN50_Terms", "/PSD:\"" + psd_ + "\""}), 0) << errors();
    EXPECT_EQ(rows("SELECT COUNT(*) FROM Terms"), "13");
    EXPECT_EQ(
        rows("SELECT DueDays, Discount, DiscountDays, Exported FROM Terms WHERE Terms = '2% 10 Net 30'"),
        "30|0.02|10|0");
    EXPECT_NE(output().find("13 added, 0 already there."), std::string::npos) << output();
    EXPECT_EQ(errors(), "");

    // The user's record with one of the names is kept.
    company_.execute("UPDATE Terms SET Terms = 'NET 30', DueDays = 31 WHERE Terms = 'Net 30'");
    company_.execute("DELETE FROM Terms WHERE Terms = 'COD'");
    EXPECT_EQ(run({"/keys:tsln50_terms", psdOption()}), 0) << errors();
    EXPECT_EQ(rows("SELECT COUNT(*), SUM(CASE WHEN DueDays = 31 THEN 1 ELSE 0 END) FROM Terms"), "13|1");
    EXPECT_EQ(rows("SELECT TOP 1 EventText, EventType FROM EventLog ORDER BY ID DESC"),
              "Default terms installed (TSLN50_Terms): 1 added, 12 already there.|2");
}

TEST_F(PackageProgramTest, EverySetIsInstalled) {
    const std::pair<const char*, const char*> sets[] = {{"Terms", "Terms"},
                                                        {"PaymentMethods", "PaymentMethod"},
                                                        {"ShippingMethods", "ShippingMethod"},
                                                        {"JobTypes", "JobType"},
                                                        {"ReferralMethods", "ReferralMethod"},
                                                        {"DeliveryRanges", "Range"},
                                                        {"PhoneLabels", "Label"},
                                                        {"EmailLabels", "Label"},
                                                        {"MeasurementRooms", "Room"},
                                                        {"MeasurementItems", "ItemName"},
                                                        {"MeasurementMounts", "Mount"},
                                                        {"Accounts", "Account"},
                                                        {"SecurityRoles", "Name"}};
    std::string keys;
    for (auto [table, name] : sets) {
        company_.execute(std::string("DELETE FROM ") + table);
        keys += std::string(keys.empty() ? "" : keys.size() % 2 ? ";" : ", ") + "TSLN50_" + table;
    }
    EXPECT_EQ(run({"/Keys:" + keys, psdOption()}), 0) << errors();
    for (auto [table, name] : sets) {
        std::string distinct = std::string("SELECT COUNT(DISTINCT ") + name + ") - COUNT(*) FROM " + table;
        EXPECT_EQ(rows(distinct), "0") << table;
        EXPECT_NE(rows(std::string("SELECT COUNT(*) FROM ") + table), "0") << table;
    }
    EXPECT_EQ(rows("SELECT r.Name, COUNT(*), MAX(a.Access) FROM SecurityRoles r INNER JOIN SecurityRoleAccess a ON a.SecurityRoleID = r.ID WHERE r.Name IN ('Manager', 'Installer') GROUP BY r.Name ORDER BY r.Name"),
              "Installer|7|190;Manager|45|190");
}

TEST_F(PackageProgramTest, TheKeysAreReadFromStandardInput) {
    EXPECT_EQ(run({"/EnterKeys", psdOption()}, "TSLN50_JobTypes ; TSLN50_DeliveryRanges\n"), 0) << errors();
    EXPECT_NE(rows("SELECT COUNT(*) FROM DeliveryRanges"), "0");
    EXPECT_EQ(run({"/EnterKeys", psdOption()}, ""), 2);
    EXPECT_EQ(errors(), "There are no package keys to install.\n");
}

TEST_F(PackageProgramTest, EveryErrorIsReported) {
    std::ofstream(folder_.file("broken.psd")) << "<PackageSource company=";
    std::ofstream(folder_.file("nameless.psd")) << "<PackageSource/>";
    writePackageSource(folder_.file("gone.psd"), {folder_.file("gone.company")});
    writePackageSource(folder_.file("folder.psd"), {folder_.path()});
    auto psd = [&](const char* name) { return "/PSD:" + folder_.file(name); };
    const struct {
        std::vector<std::string> arguments;
        int code;
        const char* says;
    } cases[] = {
        {{}, 1, "/PSD:"},
        {{psdOption()}, 1, "/Keys:"},
        {{"/Keys:TSLN50_Terms", psdOption(), "/Quietly"}, 1, "/Quietly"},
        {{"/Keys:TSLN50_Terms", psdOption(), "/Delay:soon"}, 1, "/Delay:"},
        {{"/Keys:;,", psdOption()}, 2, "no package keys"},
        {{"/Keys:TSLN50_Terms;TSLN50_Nothing", psdOption()}, 3, "TSLN50_Nothing"},
        {{"/Keys:TSLN50_Terms", psd("missing.psd")}, 4, "does not exist"},
        {{"/Keys:TSLN50_Terms", psd("broken.psd")}, 4, "cannot be read"},
        {{"/Keys:TSLN50_Terms", psd("nameless.psd")}, 4, "names no company"},
        {{"/Keys:TSLN50_Terms", psd("gone.psd")}, 5, "gone.company"},
        {{"/Keys:TSLN50_Terms", psd("folder.psd")}, 5, "is a folder"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.says);
        EXPECT_EQ(run(c.arguments), c.code);
        EXPECT_NE(errors().find(c.says), std::string::npos) << errors();
    }
    EXPECT_FALSE(std::filesystem::exists(folder_.file("gone.company")));
    EXPECT_EQ(rows("SELECT COUNT(*) FROM Terms"), "0");
}

TEST_F(PackageProgramTest, ALockedCompanyIsAnError) {
    company_.transaction([&] {
        company_.execute("INSERT INTO Terms (Terms) VALUES ('mine')");
        EXPECT_EQ(run({"/Keys:TSLN50_Terms", psdOption()}), 6);
        EXPECT_NE(errors().find("in use by another program"), std::string::npos) << errors();
    });
    EXPECT_EQ(rows("SELECT Terms FROM Terms"), "mine");
}

TEST_F(PackageProgramTest, AKilledRunLeavesOnlyCompleteSets) {
    pid_t child = start({"/Keys:TSLN50_MeasurementMounts;TSLN50_Terms", psdOption(), "/Delay:60"});
    auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (output().find("  4 of 13") == std::string::npos && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status)) << output() << errors();
    EXPECT_EQ(rows("SELECT COUNT(*) FROM MeasurementMounts"), "6");
    EXPECT_EQ(rows("SELECT COUNT(*) FROM Terms"), "0");
    EXPECT_EQ(rows("SELECT COUNT(*) FROM EventLog WHERE Source = 'Package processor'"), "1");
    EXPECT_EQ(run({"/Keys:TSLN50_Terms", psdOption()}), 0) << errors();
    EXPECT_EQ(rows("SELECT COUNT(*) FROM Terms"), "13");
}

}  // namespace

}  // namespace tsln::workbench
