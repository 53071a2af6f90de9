// The migration over real companies: one of version 4.2, and the one that receives it.

#include <algorithm>
#include <csignal>

#include <gmock/gmock.h>

#include "doubles/TempDirectory.h"
#include "migration/MigrateScreen.h"
#include "screens/Job.h"
#include "tests/workbench/host/HostStage.h"
#include "workbench/company/CompanyFile.h"

#ifndef _WIN32
#include <sys/resource.h>
#endif

namespace tsln::workbench {
namespace {

using migration::MigrateScreen;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct MigrationStage : ModuleStage {
    test::TempDirectory temp;
    std::string old = folder.file("old.company");

    bool migrate(std::int32_t kind = 2) { return library->Perform42Migration(old, kind); }
    void runOld(const std::string& sql) const { SQLite::Database(old, SQLite::OPEN_READWRITE).exec(sql); }
    /// The first value of a query over both companies; the tables of the old one have the prefix "old.".
    std::string both(const std::string& sql) const {
        SQLite::Database database(folder.file("test.company"), SQLite::OPEN_READWRITE);
        database.exec("ATTACH '" + old + "' AS old");
        return database.execAndGet(sql).getString();
    }
    std::string events() const { return rowsOf("SELECT EventText FROM EventLog ORDER BY ID"); }
    std::string rowsOf(const std::string& sql) const { return CompanyTest::rows(session->company(), sql); }
    std::vector<std::string> boxes() const {
        std::vector<std::string> texts;
        for (const auto& box : desktop.boxes)
            texts.push_back(box.text);
        return texts;
    }
};

/// The number of hours by which the queries shift local times.
constexpr const char* hours = "round((julianday('now') - julianday('now', 'localtime')) * 24)";

TEST(MigrationOnCompany, TenThousandCustomersComeOverRowByRow) {
    MigrationStage stage;
    makeCompany42(stage.old, 10'000);
    ASSERT_FALSE(stage.migrate()) << stage.events();
    EXPECT_THAT(stage.desktop.boxes, IsEmpty());
    EXPECT_THAT(stage.temp.files(), IsEmpty());

    const std::string date =
        std::string("strftime('%Y-%m-%dT%H:%M:%S', LastUpdated, ") + hours + " || ' hours')";
    /// Each pair of queries has the same rows: what the old company holds, and what has become of it.
    const struct {
        const char* what;
        std::string old, now;
        bool all = true;  ///< the second has no other rows
    } pairs[] = {
        {"customers",
         "SELECT Name, AccountNumber, CompanyName, Contact, FirstName, LastName, MiddleInitial, Phone1, Phone2, Fax, Email, BillToAddress1, BillToCity, BillToState, BillToZip, BillToCountry, ResaleNumber, TaxExNumber, CreditHold, CreditLimit, Notes, Active, UniqueID, 'Home', 'Work', 'Fax', 'Personal', " +
             date + ", " + date + " FROM old.Customers",
         "SELECT CustomerName, AccountNumber, CompanyName, Contact, FirstName, LastName, MiddleInitial, Phone1, Phone2, Phone3, Email1, BillToAddress1, BillToCity, BillToState, BillToZip, BillToCountry, ResaleNumber, TaxExNumber, CreditHold, CreditLimit, Notes, Active, UniqueID, Phone1Label, Phone2Label, Phone3Label, Email1Label, AddedOn, UpdatedOn FROM main.Customers WHERE ID > 60"},
        {"what customers refer to",
         "SELECT c.UniqueID, y.Name, t.Terms, s.Method, g.DiscountGroup, r.ReferralMethod, x.Code, e.LastName FROM old.Customers c LEFT JOIN old.CustomerTypes y ON y.ID = c.CustomerTypeID LEFT JOIN old.Terms t ON t.ID = c.TermsID LEFT JOIN old.ShippingMethods s ON s.ID = c.ShippingMethodID LEFT JOIN old.DiscountGroups g ON g.ID = c.DiscountGroupID LEFT JOIN old.ReferralMethods r ON r.ID = c.ReferralMethodID LEFT JOIN old.SalesTaxCodes x ON x.ID = c.SalesTaxCodeID LEFT JOIN old.Employees e ON e.ID = c.SalesRepID AND e.ID > 2",
         "SELECT c.UniqueID, y.Name, t.Terms, s.ShippingMethod, g.DiscountGroup, r.ReferralMethod, x.SalesTaxGroup, e.LastName FROM main.Customers c LEFT JOIN main.CustomerTypes y ON y.ID = c.CustomerTypeID LEFT JOIN main.Terms t ON t.ID = c.TermsID LEFT JOIN main.ShippingMethods s ON s.ID = c.ShippingMethodID LEFT JOIN main.DiscountGroups g ON g.ID = c.DiscountGroupID LEFT JOIN main.ReferralMethods r ON r.ID = c.ReferralMethodID LEFT JOIN main.SalesTaxGroups x ON x.ID = c.SalesTaxGroupID LEFT JOIN main.Employees e ON e.ID = c.SalesRepID WHERE c.ID > 60"},
        {"groups of customers",
         "SELECT c.UniqueID, g.Name FROM old.GroupedCustomers m JOIN old.Groups g ON g.ID = m.GroupID JOIN old.Customers c ON c.ID = m.CustomerID WHERE g.Type = 0",
         "SELECT c.UniqueID, g.GroupName FROM main.GroupedCustomers m JOIN main.Groups g ON g.ID = m.GroupID JOIN main.Customers c ON c.ID = m.CustomerID WHERE c.ID > 60"},
        {"employees",
         "SELECT FirstName, MiddleInitial, LastName, Phone1, Fax, Email, 'Home', 'Mobile', 'Fax', 'Persona', SalesRep, Installer, Designer, Active, Notes, UniqueID, " +
             date + " FROM old.Employees WHERE ID > 2",
         "SELECT FirstName, MiddleInitial, LastName, Phone1, Phone3, Email1, Phone1Label, Phone2Label, Phone3Label, Email1Label, SalesRep, Installer, Designer, Active, Notes, UniqueID, AddedOn FROM main.Employees WHERE ID > 8"},
        {"company",
         "SELECT Name, Phone1, Phone2, Fax1, Fax2, 'Main', 'Other', 'Fax', 'Other', SmallLogoFile, TagLine1 FROM old.Company",
         "SELECT Name, Phone1, Phone2, Phone3, Phone4, Phone1Label, Phone2Label, Phone3Label, Phone4Label, SmallLogoFile, TagLine1 FROM main.Company"},
        {"locations",
         "SELECT 'Store' || StoreNumber, Phone1, Fax1, Address1, MarketName, UniqueID FROM old.Origins",
         "SELECT LocationName, Phone1, Phone3, ShipToAddress1, MarketName, UniqueID FROM main.Locations WHERE ID > 3"},
        {"accounts", "SELECT Account, substr(Description, 1, 255), AccountType FROM old.Accounts",
         "SELECT Account, Description, AccountType FROM main.Accounts", false},
        {"terms", "SELECT Terms, DueDays, DiscountPercent, DiscountDays, Exported FROM old.Terms",
         "SELECT Terms, DueDays, Discount, DiscountDays, Exported FROM main.Terms"},
        {"shipping methods", "SELECT Method, 1 FROM old.ShippingMethods",
         "SELECT ShippingMethod, TaskType FROM main.ShippingMethods", false},
        {"groups", "SELECT Name, Description, 1 FROM old.Groups WHERE Type = 0",
         "SELECT GroupName, Description, GroupType FROM main.Groups", false},
        {"payment methods", "SELECT Method, Type FROM old.PaymentMethods",
         "SELECT PaymentMethod, PaymentType FROM main.PaymentMethods", false},
        {"names",
         "SELECT Name FROM old.JobTypes UNION ALL SELECT Name FROM old.Manufacturers UNION ALL SELECT ProductType FROM old.ProductTypes UNION ALL SELECT Code FROM old.SalesTaxCodes",
         "SELECT JobType FROM main.JobTypes UNION ALL SELECT Manufacturer FROM main.Manufacturers UNION ALL SELECT ProductType FROM main.ProductTypes UNION ALL SELECT Code FROM main.SalesTaxCodes",
         false},
        {"tax groups", "SELECT Code, Code FROM old.SalesTaxCodes",
         "SELECT g.SalesTaxGroup, c.Code FROM main.SalesTaxGroups g JOIN main.SalesTaxGroupCodes m ON m.SalesTaxGroupID = g.ID JOIN main.SalesTaxCodes c ON c.ID = m.SalesTaxCodeID",
         false},
    };
    for (const auto& pair : pairs) {
        const auto lacking = [&](const std::string& a, const std::string& b) {
            return stage.both("SELECT COUNT(*) FROM (SELECT * FROM (" + a + ") EXCEPT SELECT * FROM (" + b +
                              "))");
        };
        const auto count = [&](const std::string& sql) {
            return stage.both("SELECT COUNT(*) FROM (" + sql + ")");
        };
        EXPECT_EQ(lacking(pair.old, pair.now), "0") << pair.what << " are missing or differ";
        if (!pair.all) continue;
        EXPECT_EQ(lacking(pair.now, pair.old), "0") << pair.what << " have come from nowhere";
        EXPECT_EQ(count(pair.now), count(pair.old)) << pair.what;
    }
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM Customers"), "10060");
    EXPECT_THAT(stage.events(), HasSubstr("Customers: 10000 records were imported, 10000 of them are new."));
}

TEST(MigrationOnCompany, ASecondMigrationUpdatesWhatTheFirstOneAdded) {
    MigrationStage stage;
    makeCompany42(stage.old, 60);
    ASSERT_FALSE(stage.migrate());
    const auto counts = [&] {
        return stage.rowsOf(
            "SELECT (SELECT COUNT(*) FROM Customers) AS a, (SELECT COUNT(*) FROM Employees) AS b, (SELECT COUNT(*) FROM GroupedCustomers) AS c, (SELECT COUNT(*) FROM JobTypes) AS d, (SELECT COUNT(*) FROM SalesTaxGroups) AS e");
    };
    const std::string before = counts();
    // Two customers exchange their names, a third takes the name of one, another has none any more.
    stage.runOld(
        "UPDATE Customers SET Name = CASE ID WHEN 1 THEN 'Two' WHEN 2 THEN 'One' WHEN 3 THEN 'One' END WHERE ID < 5;UPDATE JobTypes SET Name = 'Show home' WHERE Name = 'Model home'");
    stage.run(
        "UPDATE Customers SET CustomerName = CASE ID WHEN 61 THEN 'One' ELSE 'Two' END WHERE ID IN (61, 62)");
    ASSERT_FALSE(stage.migrate()) << stage.events();
    EXPECT_EQ(counts(), before);
    EXPECT_EQ(stage.rowsOf("SELECT CustomerName FROM Customers WHERE ID BETWEEN 61 AND 63 ORDER BY ID"),
              "Two;One;One");
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM JobTypes WHERE JobType = 'Show home'"), "1");
    EXPECT_THAT(stage.lastEvent(), HasSubstr("0 of them are new"));
}

TEST(MigrationOnCompany, CancelledInTheMiddleItKeepsWhatItHasWritten) {
    MigrationStage stage;
    makeCompany42(stage.old, 4'000);
    stage.desktop.onYield = [&] {
        auto screen = std::static_pointer_cast<MigrateScreen>(stage.library->screens().instance(
            "frmMigrate42", [] { return std::shared_ptr<MigrateScreen>(); }));
        const bool importing = screen && screen->lblStatus.caption() == "Importing: Customers";
        if (importing && screen->ProgressBar1.value() > 0) screen->job()->userCancel();
    };
    EXPECT_TRUE(stage.migrate());
    EXPECT_THAT(stage.desktop.boxes, IsEmpty());
    EXPECT_THAT(stage.temp.files(), IsEmpty());
    const int written = std::stoi(stage.value("SELECT COUNT(*) - 60 FROM Customers"));
    EXPECT_GT(written, 0);
    EXPECT_LT(written, 4'000);
    EXPECT_THAT(stage.lastEvent(), HasSubstr("It was cancelled. Customers: " + std::to_string(written) +
                                             " records were imported"));
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM Employees WHERE LastName = 'O''Toole'"), "1");
}

TEST(MigrationOnCompany, AnImportThatStopsHalfWayTellsWhatStays) {
    MigrationStage stage;
    makeCompany42(stage.old, 10);
    stage.desktop.textResources["MIGRATEQUERIES42_EMPCUST"] =
        "Customers|SELECT Name AS CustomerName, UniqueID, CASE WHEN ID = 7 THEN 'many' ELSE '5' END AS CreditLimit FROM Customers";
    EXPECT_TRUE(stage.migrate());
    EXPECT_THAT(stage.boxes(), ElementsAre("Error 50"));
    EXPECT_EQ(stage.value("SELECT COUNT(*) - 60 FROM Customers"), "6");
    EXPECT_THAT(stage.lastEvent(),
                testing::AllOf(HasSubstr("Record 7 of the list Customers"), HasSubstr("stays")));
}

TEST(MigrationOnCompany, EachBadSourceIsAnsweredAndLeavesTheCompanyAsItWas) {
    const std::string cannotOpen = "The TSLN 4.2 company file cannot be opened.";
    const struct {
        const char* what;
        std::function<void(MigrationStage&)> make;
        std::string box;
        const char* event;
    } cases[] = {
        {"missing", [](MigrationStage&) {}, cannotOpen, "does not exist"},
        {"no path", [](MigrationStage& at) { at.old = ""; }, "", ""},
        {"a folder", [](MigrationStage& at) { std::filesystem::create_directories(pathOf(at.old)); },
         cannotOpen, "is a folder"},
        {"no database",
         [](MigrationStage& at) {
             at.folder.write(
                 "old.company",
                 "not a database in spite of its name, which is long enough to be one of those that hold a header of a hundred bytes and more");
         },
         cannotOpen, "is not a company file"},
        {"an empty file", [](MigrationStage& at) { at.folder.write("old.company", ""); }, cannotOpen,
         "not a company of version 4.2"},
        {"a company of this version", [](MigrationStage& at) { Company(at.old, OpenMode::Create); },
         cannotOpen, "not a company of version 4.2"},
        {"a lacking table",
         [](MigrationStage& at) {
             makeCompany42(at.old, 3);
             at.runOld("DROP TABLE Origins");
         },
         "Error 21", "Origins"},
        {"no rows",
         [](MigrationStage& at) {
             makeCompany42(at.old, 0);
             at.runOld(
                 "DELETE FROM ShippingMethods; DELETE FROM Terms; DELETE FROM Accounts; DELETE FROM DiscountGroups; DELETE FROM Groups; DELETE FROM JobTypes; DELETE FROM ReferralMethods; DELETE FROM ProductTypes; DELETE FROM Manufacturers; DELETE FROM PaymentMethods; DELETE FROM Origins; DELETE FROM CustomerTypes; DELETE FROM SalesTaxCodes; DELETE FROM Company");
         },
         "Errror 25", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        MigrationStage stage;
        c.make(stage);
        const std::string before =
            stage.rowsOf("SELECT Terms FROM Terms UNION ALL SELECT ShippingMethod FROM ShippingMethods");
        EXPECT_TRUE(stage.migrate());
        EXPECT_EQ(stage.boxes(), c.box.empty() ? std::vector<std::string>() : std::vector{c.box});
        EXPECT_THAT(stage.events(), HasSubstr(c.event));
        EXPECT_EQ(
            stage.rowsOf("SELECT Terms FROM Terms UNION ALL SELECT ShippingMethod FROM ShippingMethods"),
            before);
        EXPECT_THAT(stage.temp.files(), IsEmpty());
    }
    MigrationStage stage;
    makeCompany42(stage.old, 3);
    SQLite::Database other(stage.old, SQLite::OPEN_READWRITE);
    other.exec("BEGIN EXCLUSIVE");
    EXPECT_TRUE(stage.migrate());
    EXPECT_THAT(stage.boxes(), ElementsAre(cannotOpen));
    EXPECT_THAT(stage.events(), HasSubstr("in use by another program"));
}

#ifndef _WIN32
TEST(MigrationOnCompany, AFullDiskForTheTemporaryFileIsTold) {
    MigrationStage stage;
    makeCompany42(stage.old, 4'000);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{.rlim_cur = 1'500'000, .rlim_max = before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    const bool cancelled = stage.migrate();
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_TRUE(cancelled);
    EXPECT_THAT(stage.boxes(), ElementsAre("Errror 25"));
    EXPECT_THAT(stage.lastEvent(), HasSubstr("cannot be written: File too large"));
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM Customers"), "60");
    EXPECT_THAT(stage.temp.files(), IsEmpty());
}
#endif

TEST(MigrationOnCompany, AFolderWithOneCompanyIsMigratedWithItsReportFiles) {
    MigrationStage stage;
    const std::filesystem::path root = pathOf(stage.folder.file("TSLN42"));
    std::filesystem::create_directories(root / "Companies");
    std::filesystem::create_directories(root / "Reports");
    std::ofstream(root / "Reports" / "Lanternlight 1998.jpg") << "a picture";
    makeCompany42(utf8Of(root / "Companies" / "Main.company"), 5);
    stage.folder.write("TSLN42/Companies/notes.txt", "no company");
    stage.old = utf8Of(root / "Companies");
    EXPECT_FALSE(stage.migrate(1)) << stage.events();
    const std::string logo = stage.value("SELECT SmallLogoFile FROM Company");
    EXPECT_EQ(textOfFile(stage.folder.file("Reports/" + logo)), "a picture");
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM Customers"), "60");
}

}  // namespace
}  // namespace tsln::workbench
