#include <fstream>
#include <functional>
#include <iterator>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <SQLiteCpp/SQLiteCpp.h>

#include "tests/workbench/company/CompanyFixture.h"
#include "workbench/company/Company.h"

namespace tsln::workbench {

namespace {

using Reason = CompanyFileError::Reason;

std::string bytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Returns why opening fails. The message must name the file.
std::optional<Reason> refusal(const std::string& path, OpenMode access = OpenMode::Create) {
    try {
        Company company(path, access);
        return std::nullopt;
    } catch (const CompanyFileError& error) {
        EXPECT_NE(std::string(error.what()).find(path), std::string::npos) << error.what();
        return error.reason();
    }
}

TEST_F(CompanyTest, ANewCompanyHoldsTheDemonstrationData) {
    const std::pair<const char*, const char*> cases[] = {
        {"SELECT COUNT(*) AS theCount FROM Company", "1"},
        {"SELECT SyncState FROM Company", "4"},
        {"SELECT COUNT(*) FROM Employees", "8"},
        {"SELECT COUNT(*) FROM Customers", "60"},
        {"SELECT COUNT(*) FROM Orders", "40"},
        {"SELECT COUNT(*) FROM MeasurementRooms", "0"},
        {"SELECT COUNT(*) FROM Customers WHERE TermsID > 0", "60"},
        {"SELECT DiscountGroup FROM DiscountGroups WHERE ID <= 3", "Standard;Vendor;Customer"},
        {"SELECT FirstName, LastName FROM Employees WHERE Username = 'ADMIN' AND CanLogin <> 0",
         "Dana|Whitfield"},
        {"SELECT MIN(Access & 60) FROM SecurityRoleAccess WHERE SecurityRoleID = 1", "60"},
        {"SELECT DISTINCT Access FROM SecurityRoleAccess a "
         "INNER JOIN EmployeeSecurityRoles e ON e.SecurityRoleID = a.SecurityRoleID "
         "INNER JOIN Employees u ON u.ID = e.EmployeeID WHERE u.Username = 'viewer'",
         "4"},
        {"SELECT COUNT(*) FROM Orders o LEFT JOIN Customers c ON c.ID = o.CustomerID WHERE c.ID IS NULL",
         "0"},
        {"SELECT COUNT(DISTINCT UniqueID) FROM Customers WHERE LEN(UniqueID) = 36", "60"},
        {"SELECT COUNT(DISTINCT CustomerName) FROM Customers", "60"},
    };
    for (auto [sql, expected] : cases)
        EXPECT_EQ(rows(sql), expected) << sql;
    EXPECT_FALSE(company_.readOnly());
    EXPECT_EQ(folder_.size(), 1u);  // no temporary file is left
}

TEST_F(CompanyTest, TextIsStoredUnchanged) {
    const std::string texts[] = {"O'Brien & <Sons>", "𝄞 𠀋 ü", std::string(60'000, 'w') + "é",
                                 " blanks ",         "]]>",    "&#13;"};
    for (const std::string& text : texts) {
        std::string doubled;
        for (char c : text)
            doubled.append(c == '\'' ? 2 : 1, c);
        company_.execute("INSERT INTO ReferralMethods (ReferralMethod) VALUES ('" + doubled + "')");
        std::string id = std::to_string(company_.lastInsertId());
        EXPECT_EQ(company_.scalar("SELECT ReferralMethod FROM ReferralMethods WHERE ID = " + id),
                  Variant(text));
        EXPECT_EQ(rows("SELECT ReferralMethod FROM ReferralMethods WHERE ID = " + id), text);
    }
}

TEST_F(CompanyTest, RowsAreReturnedAsADocument) {
    company_.execute(
        "INSERT INTO Jobs (JobName, Notes, Created) VALUES ('a<b', 'one\r\ntwo\x01\xFF\tend', '2011-03-04T10:20:30')");
    EXPECT_EQ(
        company_.read("SELECT JobName, Notes, Created, CustomerID FROM Jobs WHERE JobName = 'A<B'"),
        "<Records><Record><JobName>a&lt;b</JobName><Notes>one&amp;#13;&amp;#10;two\uFFFD\uFFFD\tend</Notes>"
        "<Created>2011-03-04T10:20:30</Created></Record></Records>");
    EXPECT_EQ(company_.read("SELECT 1 AS A, 2 AS A, '' AS [b c], 0.5 AS [_x0020_], 3 AS [9]"),
              "<Records><Record><A>1</A><A>2</A><b_x0020_c></b_x0020_c><_x005F_x0020_>0.5</_x005F_x0020_>"
              "<_x0039_>3</_x0039_></Record></Records>");
    EXPECT_EQ(
        company_.read("SELECT COUNT(*) FROM Terms"),
        "<Records><Record><COUNT_x0028__x002A__x0029_>0</COUNT_x0028__x002A__x0029_></Record></Records>");
    EXPECT_EQ(company_.read("SELECT * FROM Terms"), "<Records></Records>");
    // A view may join a text with bytes, which are hexadecimal in the document.
    SQLite::Database(company_.path(), SQLite::OPEN_READWRITE)
        .exec("CREATE VIEW Bytes AS SELECT x'00ff' AS B");
    EXPECT_EQ(company_.read("SELECT B FROM Bytes"), "<Records><Record><B>00FF</B></Record></Records>");
}

TEST_F(CompanyTest, ScalarsHaveTheirTypes) {
    EXPECT_EQ(company_.scalar("SELECT COUNT(*) FROM Customers"), Variant(std::int32_t(60)));
    EXPECT_EQ(company_.scalar("SELECT 5000000000"), Variant(std::int64_t(5000000000)));
    EXPECT_EQ(company_.scalar("SELECT 0.5, 2"), Variant(0.5));
    EXPECT_EQ(company_.scalar("SELECT TermsID FROM Vendors WHERE ID = 1"), Variant(Null{}));
    EXPECT_EQ(company_.scalar("SELECT ID FROM Terms"), Variant());
    EXPECT_THROW(company_.scalar("DELETE FROM Customers"), SqlError);
    EXPECT_THROW(company_.read("UPDATE Customers SET Active = 0"), SqlError);
    EXPECT_EQ(rows("SELECT COUNT(*) FROM Customers WHERE Active <> 0"), "57");
}

TEST_F(CompanyTest, LastInsertAndNumberOfChangesAreKnown) {
    company_.execute("INSERT INTO Terms (Terms) VALUES ('a'), ('b')");
    EXPECT_EQ(company_.lastInsertId(), 2);
    EXPECT_EQ(company_.execute("DELETE FROM Terms"), 2);
    company_.execute("INSERT INTO Terms (Terms) VALUES ('c')");
    EXPECT_EQ(company_.lastInsertId(), 3);  // a key is never reused
    EXPECT_THROW(company_.execute("INSERT INTO Terms (Missing) VALUES ('c')"), SqlError);
    EXPECT_EQ(company_.lastInsertId(), 3);
    company_.execute("UPDATE Terms SET AddedOn = '2000-01-01T00:00:00', UpdatedOn = '2000-01-01T00:00:00'");
    EXPECT_EQ(company_.execute("UPDATE Terms SET DueDays = 5"), 1);
    EXPECT_EQ(rows("SELECT YEAR(AddedOn) FROM Terms WHERE YEAR(UpdatedOn) > 2020"), "2000");
}

TEST_F(CompanyTest, ATransactionIsCompleteOrUndone) {
    auto fill = [&](bool fail) {
        company_.execute("INSERT INTO Terms (Terms) VALUES ('one')");
        if (fail) throw std::runtime_error("enough");
        company_.execute("INSERT INTO Terms (Terms) VALUES ('two')");
    };
    EXPECT_THROW(company_.transaction([&] { fill(true); }), std::runtime_error);
    EXPECT_EQ(rows("SELECT COUNT(*) FROM Terms"), "0");
    company_.transaction([&] { fill(false); });
    EXPECT_EQ(rows("SELECT COUNT(*) FROM Terms"), "2");

    // A reader on another connection prevents the commit: no change may remain.
    SQLite::Database other(company_.path(), SQLite::OPEN_READONLY);
    SQLite::Statement reading(other, "SELECT ID FROM Customers");
    reading.executeStep();
    EXPECT_THROW(company_.transaction([&] { fill(false); }), SqlError);
    reading.reset();
    EXPECT_EQ(rows("SELECT COUNT(*) FROM Terms"), "2");
    company_.transaction([&] { fill(false); });
    EXPECT_EQ(rows("SELECT COUNT(*) FROM Terms"), "4");
}

TEST_F(CompanyTest, ALockedCompanyFailsAfterAWait) {
    SQLite::Database other(company_.path(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN EXCLUSIVE");
    EXPECT_EQ(failure("INSERT INTO Terms (Terms) VALUES ('a')"), "The company is in use by another program.");
    EXPECT_EQ(refusal(company_.path()), Reason::Locked);
    other.exec("ROLLBACK");
    EXPECT_EQ(refusal(company_.path()), std::nullopt);
}

TEST_F(CompanyTest, WorkThatWasCutOffIsUndoneWhereTheFileCanBeWritten) {
    const std::string before = rows("SELECT SUM(ID), MAX(Phone1) FROM Customers"),
                      cut = folder_.file("cut.company");
    SQLite::Database writer(company_.path(), SQLite::OPEN_READWRITE);
    writer.exec("PRAGMA cache_size = 1; BEGIN; UPDATE Customers SET Phone1 = 'changed'");
    std::filesystem::copy_file(company_.path(), cut);
    std::filesystem::copy_file(company_.path() + "-journal", cut + "-journal");
    writer.exec("ROLLBACK");

    try {
        Company company(cut, OpenMode::ReadOnly);
        ADD_FAILURE() << "opened half written";
    } catch (const CompanyFileError& error) {
        EXPECT_EQ(
            std::string(error.what()),
            "The company file '" + cut +
                "' was not closed properly: work in it was cut off and must be undone. Open it once where it can be written.");
    }
    Company company(cut, OpenMode::ReadWrite);
    EXPECT_EQ(rows(company, "SELECT SUM(ID), MAX(Phone1) FROM Customers"), before);
    EXPECT_FALSE(std::filesystem::exists(cut + "-journal"));
}

TEST(CompanyFileTest, AFileThatIsNoCompanyIsRefusedAndUnchanged) {
    TemporaryFolder folder;
    auto database = [&](const char* name, const char* sql) {
        SQLite::Database(folder.file(name), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE).exec(sql);
    };
    std::ofstream(folder.file("text")) << std::string(5000, 'x');
    std::ofstream(folder.file("empty"));
    database("other", "CREATE TABLE Customers (ID)");
    Company(folder.file("good"));
    database("newer", "");
    std::filesystem::copy_file(folder.file("good"), folder.file("newer"),
                               std::filesystem::copy_options::overwrite_existing);
    database("newer", "PRAGMA user_version = 999");
    std::string good = bytesOf(folder.file("good"));
    std::ofstream(folder.file("half"), std::ios::binary) << good.substr(0, 60);
    std::filesystem::create_directory(folder.file("folder"));
    ASSERT_EQ(::mkfifo(folder.file("pipe").c_str(), 0600), 0);
    std::filesystem::create_symlink(folder.file("nowhere/at all"), folder.file("dangling"));

    const std::pair<const char*, Reason> cases[] = {
        {"text", Reason::NotACompany},   {"empty", Reason::NotACompany},  {"other", Reason::NotACompany},
        {"newer", Reason::NewerVersion}, {"half", Reason::NotACompany},   {"folder", Reason::CannotOpen},
        {"pipe", Reason::NotACompany},   {"dangling", Reason::CannotOpen}};
    std::size_t files = folder.size();
    for (auto [name, reason] : cases) {
        SCOPED_TRACE(name);
        bool file = std::filesystem::is_regular_file(folder.file(name));
        std::string before = file ? bytesOf(folder.file(name)) : "";
        EXPECT_EQ(refusal(folder.file(name)), reason);
        EXPECT_EQ(refusal(folder.file(name), OpenMode::ReadOnly), reason);
        EXPECT_EQ(file ? bytesOf(folder.file(name)) : "", before);
    }
    EXPECT_EQ(folder.size(), files);

    for (OpenMode access : {OpenMode::ReadWrite, OpenMode::ReadOnly}) {
        EXPECT_EQ(refusal(folder.file("missing"), access), Reason::CannotOpen);
    }
    EXPECT_EQ(refusal(folder.file("no folder/new")), Reason::CannotCreate);
    EXPECT_EQ(refusal(folder.file("text/new")), Reason::CannotCreate);
    EXPECT_EQ(refusal(folder.file(std::string(300, 'n'))), Reason::CannotOpen);
    EXPECT_EQ(refusal(""), Reason::CannotOpen);
    EXPECT_EQ(folder.size(), files);
}

TEST(CompanyFileTest, ADamagedCompanyFailsOnlyWhereItIsRead) {
    TemporaryFolder folder;
    Company(folder.file("c"));
    std::string bytes = bytesOf(folder.file("c"));
    for (std::size_t i = 4096; i < bytes.size(); ++i)
        bytes[i] = char(0xA5);
    std::ofstream(folder.file("c"), std::ios::binary) << bytes;
    try {
        Company company(folder.file("c"));
        EXPECT_THROW(company.read("SELECT * FROM Customers"), SqlError);
    } catch (const CompanyFileError& error) {
        EXPECT_EQ(error.reason(), Reason::NotACompany);
    }
}

TEST(CompanyFileTest, AReadOnlyCompanyCanBeReadButNotWritten) {
    TemporaryFolder folder;
    Company(folder.file("c"));
    Company company(folder.file("c"), OpenMode::ReadOnly);
    EXPECT_TRUE(company.readOnly());
    EXPECT_EQ(company.scalar("SELECT COUNT(*) FROM Customers"), Variant(std::int32_t(60)));
    EXPECT_THROW(company.execute("DELETE FROM Customers"), SqlError);
    EXPECT_THROW(company.transaction([&] { company.execute("DELETE FROM Vendors"); }), SqlError);
    EXPECT_EQ(company.scalar("SELECT COUNT(*) FROM Customers"), Variant(std::int32_t(60)));
}

/// Runs the check in a child process without the administrator's rights, which file permissions do not limit. The
/// result is the child's exit code.
int asNobody(const std::function<bool()>& check) {
    pid_t child = ::fork();
    if (child == 0) {
        if (::geteuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0)) ::_exit(3);
        bool passed = false;
        try {
            passed = check();
        } catch (const std::exception& error) {
            std::fprintf(stderr, "%s\n", error.what());
        }
        ::_exit(passed ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(CompanyFileTest, ThePermissionsOfFileAndFolderAreRespected) {
    TemporaryFolder folder;
    std::string path = folder.file("c");
    Company(path, OpenMode::Create);
    ::chmod(folder.path().c_str(), 0555);
    ::chmod(path.c_str(), 0444);
    EXPECT_EQ(asNobody([&] {
                  Company company(path);
                  bool refused = false;
                  try {
                      company.execute("DELETE FROM Customers");
                  } catch (const SqlError&) {
                      refused = true;
                  }
                  return company.readOnly() && refused &&
                         company.scalar("SELECT COUNT(*) FROM Customers") == Variant(std::int32_t(60));
              }),
              0);
    EXPECT_EQ(asNobody([&] { return refusal(folder.file("new")) == Reason::CannotCreate; }), 0);
    ::chmod(path.c_str(), 0000);
    EXPECT_EQ(asNobody([&] { return refusal(path) == Reason::CannotOpen; }), 0);
    // A writable file in a read-only folder cannot be written, because its journal cannot be created.
    ::chmod(path.c_str(), 0666);
    EXPECT_EQ(asNobody([&] {
                  Company company(path);
                  try {
                      company.execute("DELETE FROM Customers");
                      return false;
                  } catch (const SqlError&) {
                      return company.scalar("SELECT COUNT(*) FROM Customers") == Variant(std::int32_t(60));
                  }
              }),
              0);
    ::chmod(folder.path().c_str(), 0755);
}

TEST(CompanyFileTest, ProcessesThatCreateTheSameFileShareIt) {
    TemporaryFolder folder;
    std::string path = folder.file("shared");
    std::vector<pid_t> children;
    for (int i = 0; i < 4; ++i) {
        pid_t child = ::fork();
        if (child == 0) {
            try {
                Company(path).execute("INSERT INTO Terms (Terms) VALUES ('" + std::to_string(i) + "')");
                ::_exit(0);
            } catch (const std::exception& error) {
                std::fprintf(stderr, "%s\n", error.what());
                ::_exit(1);
            }
        }
        children.push_back(child);
    }
    for (pid_t child : children) {
        int status = 0;
        ::waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(Company(path).scalar("SELECT COUNT(*) FROM Terms WHERE LEN(Terms) = 1"),
              Variant(std::int32_t(4)));
    EXPECT_EQ(folder.size(), 1u);
}

}  // namespace

}  // namespace tsln::workbench
