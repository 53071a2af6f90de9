#include <algorithm>
#include <fstream>

#include "doubles/Stage.h"
#include "doubles/TempDirectory.h"
#include "migration/MigrateScreen.h"
#include "migration/QuerySet.h"
#include "resources/TextResources.h"
#include "screens/Job.h"

namespace tsln::test {
namespace {

namespace fs = std::filesystem;
using migration::MigrateScreen;
using migration::Query;
using migration::readQuerySet;

constexpr auto base = "MIGRATEQUERIES42_BASEDATA";
constexpr auto people = "MIGRATEQUERIES42_EMPCUST";
constexpr auto readTerms = "SELECT Terms FROM Terms";
constexpr auto readTypes = "SELECT Name AS JobType FROM JobTypes";
constexpr auto readCustomers = "SELECT Name AS CustomerName FROM Customers";
constexpr auto readCodes = "SELECT * FROM SalesTaxCodes";
constexpr auto terms = "<Record><Terms>Net 30 &amp; more</Terms></Record>";

Box code(const char* text) {
    return {text, MessageButtons::Ok, MessageIcon::None, ""};
}

/// An old company with a few rows, small query sets, and the documents that the import engine was given.
struct MigrationStage {
    Stage stage;
    std::vector<std::string> documents;
    std::vector<std::string> temporary;  ///< the temporary files during the last import
    TempDirectory temp;

    MigrationStage() { furnish(stage); }
    void furnish(Stage& at) {
        at.desktop.textResources = {
            {base, std::string("Terms|") + readTerms + "\r\n\r\nJobTypes|" + readTypes + "\r\n"},
            {people, std::string("Customers|") + readCustomers}};
        at.host->rows(readTerms,
                      std::string("<Records>") + terms + "<Record><Terms>COD</Terms></Record></Records>");
        at.host->rows(readCustomers, "<Records><Record><CustomerName>A</CustomerName></Record></Records>");
        at.host->rows(
            readCodes,
            "<Records><Record><ID>3</ID><Code>O'Hare</Code></Record><Record><ID>4</ID><Code>WI</Code></Record></Records>");
        at.host->on("Database.ExecuteScaler", [](Arguments a) {
            return Variant(a[0].toText().find("'WI'") != std::string::npos ? 1 : 0);
        });
        at.host->on("Database.ExecuteNonQueryWithID", Variant(12));
        at.host->on("Database.ExecuteNonQuery", Variant(true));
        at.host->on("Options.UserFileLocation", Variant("/no such folder"));
        at.host->on("tslniee5.Engine.ImportFile", [this](Arguments a) {
            std::ifstream file(pathOf(a[0].toText()), std::ios::binary);
            documents.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
            temporary = temp.files();
            return Variant(true);
        });
    }
    bool migrate(int kind = 2) { return stage.library->Perform42Migration("/old/main.company", kind); }
};

TEST(Migration, ExportsImportsAndMakesTaxGroupsInTheirOrder) {
    MigrationStage at;
    at.stage.desktop.onYield = [&] { EXPECT_THAT(at.stage.desktop.shown, ElementsAre("frmMigrate42")); };
    EXPECT_FALSE(at.migrate(2));
    EXPECT_THAT(at.stage.desktop.boxes, IsEmpty());
    EXPECT_THAT(at.documents,
                ElementsAre(std::string("<Sections source=\"42upgrade\"><Terms>") + terms +
                                "<Record><Terms>COD</Terms></Record></Terms></Sections>\r\n",
                            "<Sections source=\"42upgrade\"><Customers><Record><CustomerName>A</CustomerName>"
                            "</Record></Customers></Sections>\r\n"));
    EXPECT_THAT(at.temporary, ElementsAre(EndsWith(".xml")));
    EXPECT_THAT(at.temp.files(), IsEmpty());
    std::vector<std::string> calls = at.stage.host->calls;
    for (std::string& call : calls) {
        if (call.starts_with("tslniee5.Engine.ImportFile")) call = "import";
    }
    EXPECT_THAT(
        calls,
        ElementsAre(
            "tslncmgr5.Library.PSD.Load(/old/main.company, sa, tsln)",
            "tslncmgr5.Library.PSD.ConnectionString()", "tslncmgr5.Library.CanOpenCompany2(the old company)",
            "tslniee5.Engine.Initialize(object)", "tslniee5.Engine.Is42Upgrade=(True)",
            "tslniee5.Engine.Verbose=(True)", "tslniee5.Engine.ProgressLabel=(object)",
            "tslniee5.Engine.ProgressBar=(object)", "tslnsql5.Engine.Initialize(the old company)",
            std::string("tslnsql5.Engine.ExecuteRead(") + readTerms + ")",
            std::string("tslnsql5.Engine.ExecuteRead(") + readTypes + ")", "tslnsql5.Engine.PreTerminate()",
            "import", std::string("Database.ExecuteRead(") + readCodes + ")",
            "Database.ExecuteScaler(SELECT COUNT(*) AS theCount FROM SalesTaxGroups WHERE SalesTaxGroup = 'O''Hare')",
            "Database.ExecuteNonQueryWithID(INSERT INTO SalesTaxGroups (SalesTaxGroup) VALUES('O''Hare'))",
            "Database.ExecuteNonQuery(INSERT INTO SalesTaxGroupCodes (SalesTaxGroupID, SalesTaxCodeID) VALUES(12,3))",
            "Database.ExecuteScaler(SELECT COUNT(*) AS theCount FROM SalesTaxGroups WHERE SalesTaxGroup = 'WI')",
            "Options.UserFileLocation(Reports)", "tslnsql5.Engine.Initialize(the old company)",
            std::string("tslnsql5.Engine.ExecuteRead(") + readCustomers + ")",
            "tslnsql5.Engine.PreTerminate()", "import", "tslniee5.Engine.PreTerminate()",
            "tslncmgr5.Library.PreTerminate()"));

    MigrationStage baseOnly;
    EXPECT_FALSE(baseOnly.migrate(1));
    EXPECT_EQ(baseOnly.documents.size(), 1U);
    EXPECT_TRUE(baseOnly.migrate(3)) << "there is no such kind";
    EXPECT_EQ(baseOnly.documents.size(), 1U);
}

TEST(Migration, TellsEachFailureByItsCode) {
    const auto answer = [](const char* path, Variant value) {
        return [=](MigrationStage& at) { at.stage.host->on(path, value); };
    };
    const auto raise = [](const char* path) {
        return [=](MigrationStage& at) { at.stage.host->on(path, raises("broken")); };
    };
    const auto without = [](const char* component) {
        return [=](MigrationStage& at) {
            at.stage.desktop.components = [host = at.stage.host, component](std::string_view id) {
                return id == component ? nullptr : host->component(id);
            };
        };
    };
    const Box cannotOpen{"The TSLN 4.2 company file cannot be opened.", MessageButtons::Ok,
                         MessageIcon::Critical, ""};
    const struct {
        const char* what;
        std::function<void(MigrationStage&)> arrange;
        std::vector<Box> boxes;
        std::size_t imports = 0;
    } cases[] = {
        {"no company manager", without("tslncmgr5.Library"), {}},
        {"refused", answer("tslncmgr5.Library.PSD.Load", false), {}},
        {"cannot be opened", answer("tslncmgr5.Library.CanOpenCompany2", false), {cannotOpen}},
        {"cannot be checked", raise("tslncmgr5.Library.CanOpenCompany2"), {cannotOpen}},
        {"no import engine", without("tslniee5.Engine"), {}},
        {"no SQL engine", without("tslnsql5.Engine"), {code("Error 30")}},
        {"not connected", answer("tslnsql5.Engine.Initialize", false), {code("Error 31")}},
        {"connecting raises", raise("tslnsql5.Engine.Initialize"), {code("Error 31")}},
        {"reading raises", raise("tslnsql5.Engine.ExecuteRead"), {code("Error 21")}},
        {"no document", answer("tslnsql5.Engine.ExecuteRead", ObjectPtr()), {code("Error 21")}},
        {"damaged rows",
         answer("tslnsql5.Engine.ExecuteRead", makeDocument("<Records><Record><Terms>x</Record>")),
         {code("Error 21")}},
        {"no rows", answer("tslnsql5.Engine.ExecuteRead", makeDocument("<Records/>")), {code("Errror 25")}},
        {"no queries",
         [](MigrationStage& at) { at.stage.desktop.textResources[base] = ""; },
         {code("Errror 25")}},
        {"no temporary folder",
         [](MigrationStage& at) { at.temp.replace("/no such folder"); },
         {code("Errror 20")}},
        {"import fails", answer("tslniee5.Engine.ImportFile", false), {code("Error 50")}},
        {"import raises", raise("tslniee5.Engine.ImportFile"), {code("Error 50")}},
        {"no customers",
         [](MigrationStage& at) { at.stage.host->rows(readCustomers, ""); },
         {code("Errror 25")},
         1},
        {"no tax codes to read", raise("Database.ExecuteRead"), {}, 1},
        {"a tax group fails", answer("Database.ExecuteNonQueryWithID", 0), {}, 1},
        {"tax groups cannot be counted", answer("Database.ExecuteScaler", Variant()), {}, 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        MigrationStage at;
        c.arrange(at);
        EXPECT_TRUE(at.migrate(2));
        EXPECT_EQ(at.stage.desktop.boxes, c.boxes);
        EXPECT_EQ(at.documents.size(), c.imports);
        EXPECT_THAT(at.temp.files(), IsEmpty());
        EXPECT_TRUE(at.stage.library->screens().empty());
    }
    // What only shows the progress, and the reports' pictures, are not needed.
    for (const char* path :
         {"tslniee5.Engine.ProgressBar", "tslniee5.Engine.Verbose", "Options.UserFileLocation"}) {
        MigrationStage at;
        raise(path)(at);
        EXPECT_FALSE(at.migrate(2)) << path;
    }
}

TEST(Migration, IsCancelledBetweenRecordsAndDuringTheImport) {
    const auto cancelWhen = [](MigrationStage& at, std::function<bool(MigrateScreen&)> isTime) {
        at.stage.desktop.onYield = [&at, isTime] {
            auto screen = std::static_pointer_cast<MigrateScreen>(at.stage.library->screens().instance(
                "frmMigrate42", [] { return std::shared_ptr<MigrateScreen>(); }));
            if (screen && screen->job() && isTime(*screen)) screen->job()->userCancel();
        };
    };
    {
        MigrationStage at;
        cancelWhen(at, [](MigrateScreen&) { return true; });
        EXPECT_TRUE(at.migrate());
        EXPECT_THAT(at.stage.host->callsOf("tslnsql5.Engine.ExecuteRead"), IsEmpty());
        EXPECT_THAT(at.stage.desktop.boxes, IsEmpty());
    }
    {
        MigrationStage at;
        std::string rows;
        for (int i = 0; i < 200'000; ++i)
            rows += terms;
        at.stage.host->rows(readTerms, "<Records>" + rows + "</Records>");
        cancelWhen(at, [](MigrateScreen& screen) { return screen.ProgressBar1.value() > 0; });
        EXPECT_TRUE(at.migrate());
        EXPECT_THAT(at.stage.host->callsOf("tslnsql5.Engine.ExecuteRead"), ElementsAre(readTerms));
        EXPECT_THAT(at.documents, IsEmpty());
        EXPECT_THAT(at.temp.files(), IsEmpty());
    }
    // The engine advances the bar, which keeps the screen alive; a cancelled import is no failure.
    for (const bool answersTrue : {true, false}) {
        MigrationStage at;
        ObjectPtr bar, label;
        at.stage.host->on("tslniee5.Engine.ProgressBar",
                          [&](Arguments a) { return bar = a[0].toObject(), Variant(); });
        at.stage.host->on("tslniee5.Engine.ProgressLabel",
                          [&](Arguments a) { return label = a[0].toObject(), Variant(); });
        at.stage.host->on("tslniee5.Engine.ImportFile", [&](Arguments) {
            label->put("Caption", "Importing: Terms");
            for (int i = 0; i < 100'000'000; ++i) {
                bar->put("Value", i % 100);
                if (!at.stage.host->callsOf("tslniee5.Engine.RequestCancel").empty()) break;
            }
            return Variant(answersTrue);
        });
        cancelWhen(at,
                   [](MigrateScreen& screen) { return screen.lblStatus.caption() == "Importing: Terms"; });
        EXPECT_TRUE(at.migrate());
        EXPECT_THAT(at.stage.host->calls, Contains("tslniee5.Engine.RequestCancel()").Times(1));
        EXPECT_THAT(at.stage.desktop.boxes, IsEmpty());
        EXPECT_THAT(at.stage.read(), IsEmpty()) << "no further step";
        EXPECT_THROW(bar->put("Value", 1), HostError) << "the engine kept a bar that is gone";
    }
}

TEST(Migration, CopiesTheReportFilesOfACompaniesFolder) {
    const struct {
        const char *company, *reports;
        bool copied;
    } cases[] = {
        {"/old/companies", "/old/reports", true},       {"/old/Companies", "/old/Reports", true},
        {"/old\\companies", "/oldreports", true},       {"/old/companies", "/oldReports", true},
        {"/old/companies/main", "/old/reports", false}, {"/oldcompanies", "/old/reports", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.company);
        const TempFolder folder;
        const std::string reports = folder.path() + c.reports, now = folder.file("now");
        fs::create_directories(pathOf(folder.path() + "/old/companies"));
        fs::create_directories(pathOf(now));
        fs::create_directories(pathOf(reports) / "a folder.txt");
        for (const char* name : {"logo.jpg", "small.PNG", "note.txt", "terms.rtf", "program.exe", "jpg"})
            std::ofstream(pathOf(reports) / name) << "old";
        std::ofstream(pathOf(now) / "note.txt") << "new";
        MigrationStage at;
        at.stage.host->on("Options.UserFileLocation", Variant(now));
        EXPECT_FALSE(at.stage.library->Perform42Migration(folder.path() + c.company, 1));
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(pathOf(now)))
            names.push_back(entry.path().filename().string());
        std::ranges::sort(names);
        EXPECT_EQ(names, c.copied
                             ? std::vector<std::string>({"logo.jpg", "note.txt", "small.PNG", "terms.rtf"})
                             : std::vector<std::string>({"note.txt"}));
        EXPECT_EQ(fs::file_size(pathOf(now) / "note.txt"), 3U);
    }
}

TEST(Migration, FaultsOfTheHostLeaveNoFileScreenOrObject) {
    std::unique_ptr<MigrationStage> at;
    bool cancelled = false;
    sweepFaults(
        [&](Stage& stage) {
            at.reset();  // the folders for temporary files are nested
            at = std::make_unique<MigrationStage>();
            at->furnish(stage);
            cancelled = stage.library->Perform42Migration("/old/companies", 2);
        },
        [&](Stage& stage) {
            EXPECT_THAT(at->temp.files(), IsEmpty());
            EXPECT_TRUE(cancelled || at->documents.size() == 2) << "a failure was taken for a success";
            EXPECT_THAT(stage.desktop.shown, ElementsAre("frmMigrate42"));
        });
}

TEST(MigrationQueries, NameTheirSectionsInOrderInLinesOfPlainText) {
    const auto sections = [](const char* name) {
        const std::string_view text = resources::text(name).value_or("");
        EXPECT_TRUE(std::ranges::all_of(
            text, [](char c) { return c == '\r' || c == '\n' || (c >= ' ' && c <= '~'); }));
        EXPECT_EQ(std::ranges::count(text, '\r'), std::ranges::count(text, '\n'));
        std::vector<std::string> names;
        for (const Query& query : readQuerySet(text)) {
            names.emplace_back(query.section);
            EXPECT_THAT(query.statement, StartsWith("SELECT "));
        }
        return names;
    };
    EXPECT_THAT(sections("MIGRATEQUERIES42_BASEDATA"),
                ElementsAre("ShippingMethods", "Terms", "Accounts", "DiscountGroups", "Groups", "JobTypes",
                            "ReferralMethods", "ProductTypes", "Manufacturers", "PaymentMethods", "Locations",
                            "CustomerTypes", "SalesTaxCodes", "Company"));
    EXPECT_THAT(sections("MIGRATEQUERIES42_EMPCUST"),
                ElementsAre("Employees", "Customers", "GroupedCustomers"));
    EXPECT_THAT(readQuerySet("A|SELECT 'x|y'\r\n\r\nno bar\nB|C"),
                ElementsAre(Query{"A", "SELECT 'x|y'"}, Query{"B", "C"}));
    EXPECT_FALSE(resources::text("MIGRATEQUERIES42"));
}

}  // namespace
}  // namespace tsln::test
