#include <algorithm>
#include <map>

#include "doubles/Stage.h"
#include "properties/DatabaseProperties.h"
#include "screens/Job.h"

namespace tsln::test {
namespace {

using properties::DatabaseProperties;
using properties::durationText;

constexpr auto frmProperties = "frmDatabaseProperties";
constexpr std::size_t allRows = 107;

/// The grid's rows in their order within the categories, as "Category/Sub-category/Caption=Value".
std::vector<std::string> rowsOf(const PropertyGrid& grid) {
    std::vector<std::string> rows;
    const auto& items = grid.items();
    for (const auto& item : items) {
        if (item.isCategory) continue;
        std::string path = item.caption + "=" + item.value;
        for (auto parent = item.parent; parent; parent = items[*parent].parent)
            path = items[*parent].caption + "/" + path;
        rows.push_back(std::move(path));
    }
    return rows;
}

/// The captions of the categories on the top level.
std::vector<std::string> categoriesOf(const PropertyGrid& grid) {
    std::vector<std::string> captions;
    for (const auto& item : grid.items()) {
        if (!item.parent) captions.push_back(item.caption);
    }
    return captions;
}

/// A host whose connection, folders and SQL engine answer. Each statement returns its own text.
struct PropertiesStage : Stage {
    PropertiesStage() { furnish(*this); }
    static void furnish(Stage& stage) {
        RecordingHost& host = *stage.host;
        host.on("CurrentCompanyConn.DefaultDatabase", Variant("Lantern"));
        host.on("CurrentCompanyConn.ConnectionTimeout", Variant("15"));
        host.on("CurrentCompanyConn.CommandTimeout", Variant(30.0));
        host.rows("EXEC sp_spaceused",
                  "<Records><Record><database_name>L</database_name><database_size>7.25 "
                  "MB</database_size></Record></Records>");
        host.on("Options.UserFileLocation", [](Arguments a) { return Variant("/of " + a[0].toText()); });
        host.on("TSLNSQL.ExecuteScaler", [](Arguments a) {
            EXPECT_EQ(a.count(), 1U);
            return a[0];
        });
    }
    /// Shows the screen and returns its rows.
    std::vector<std::string> show(const std::function<void(DatabaseProperties&)>& act = {}) {
        std::vector<std::string> rows;
        desktop.user<DatabaseProperties>(frmProperties, [&](DatabaseProperties& screen) {
            rows = rowsOf(screen.grdProperties);
            if (act) act(screen);
            screen.cmdClose.userPress();
            EXPECT_FALSE(screen.shown());
        });
        library->ShowDatabaseProperties();
        return rows;
    }
    std::size_t terminations() const { return host->callsOf("TSLNSQL.PreTerminate").size(); }
};

TEST(DatabaseProperties, ReadsEveryRowOnceInOrderAndThenReleasesTheEngine) {
    PropertiesStage stage;
    const std::vector<std::string> rows = stage.show([&](DatabaseProperties& screen) {
        EXPECT_THAT(categoriesOf(screen.grdProperties),
                    ElementsAre("Current Connection", "File Locations", "Company", "Employees", "Vendors",
                                "Pricing", "Customers", "Events", "Attachments", "Discount Groups",
                                "Discounts", "Products", "Lists", "Email"));
        EXPECT_EQ(screen.ProgressBar1.value(), static_cast<std::int32_t>(allRows));
        EXPECT_EQ(screen.ProgressBar1.maximum(), static_cast<std::int32_t>(allRows));
        EXPECT_FALSE(screen.ProgressBar1.visible());
        EXPECT_EQ(stage.terminations(), 1U) << "while the screen is still open";
        // The window comes to the front again.
        stage.host->forget();
        screen.activate();
        EXPECT_THAT(stage.host->calls, IsEmpty());
    });
    ASSERT_THAT(rows, SizeIs(allRows));
    const std::string count = "SELECT COUNT(*) AS Result FROM ";
    const std::string person =
        "dbo.BuildEmployeeName(Customers.FirstName, Customers.MiddleInitial, Customers.LastName)";
    const std::pair<std::size_t, std::string> telling[] = {
        {0, "Current Connection/Database=Lantern"},
        {1, "Current Connection/Connection Timeout=15"},
        {2, "Current Connection/Command Timeout=30"},
        {3, "Current Connection/Database Size=7.25 MB"},
        {4, "File Locations/Company Files=/of Companies"},
        {8, "File Locations/Portfolio Images=/of Companies"},
        {14, "Company/Unique ID=SELECT UniqueID AS MyResult FROM Company"},
        {18,
         "Employees/Newest Employees=SELECT TOP 1 "
         "dbo.BuildEmployeeName(Employees.FirstName,Employees.MiddleInitial,Employees.LastName)  + ' (' + "
         "CONVERT(varchar(10), CAST(AddedOn AS DATE), 101) + ')' AS Result FROM Employees ORDER BY AddedOn DESC"},
        {22, "Vendors/OOP Vendors=" + count + "Vendors WHERE LEN(OOP_VendorID) > 0"},
        {29, "Pricing/Additional Charges/Total Item Cost Adjustments=" + count +
                 "AdditionalCharges WHERE ChargeType = 256"},
        {33,
         "Pricing/Additional Charges/Oldest Customer (any type)=SELECT TOP 1 ChargeName + ' (' + "
         "CONVERT(varchar(10), CAST(AddedOn AS DATE), 101) + ')' AS Result FROM AdditionalCharges ORDER BY AddedOn "
         "ASC"},
        {43,
         "Customers/Customer Measurments/Oldest Measurement=SELECT TOP 1 CONCAT(" + person +
             ", ' ', Location, ' ', Room, ' (', CAST(CustomerMeasurements.AddedOn AS DATE), ')') AS Result FROM "
             "CustomerMeasurements INNER JOIN Customers ON Customers.ID=CustomerID ORDER BY "
             "CustomerMeasurements.AddedOn ASC"},
        {44, "Customers/Customer Groups/Total Groups=" + count + "Groups WHERE GroupType = 1"},
        {54,
         "Events/Most Recent Warning=SELECT TOP 1 CONVERT(varchar(10), CAST(EventDate AS DATE), 101) AS Result FROM "
         "EventLog WHERE EventType = 3 ORDER BY EventDate DESC"},
        {61,
         "Attachments/Newest Attachments=SELECT TOP 1 CONCAT(OriginalFileName, ' (', CAST(AddedOn AS DATE) ,')') AS "
         "Result FROM Attachments ORDER BY AddedOn DESC"},
        {69,
         "Discount Groups/Most recently updated=SELECT TOP 1 CONCAT(DiscountGroup, ' (', CAST(UpdatedOn AS DATE), "
         "')') AS Result FROM DiscountGroups ORDER BY UpdatedOn DESC"},
        {75,
         "Discounts/Tier-Level Discounts=SELECT COUNT(*) AS Result From Discounts WHERE NOT (TierLevel IS NULL OR "
         "TierLevel='')"},
        {98, "Lists/Customer Types=" + count + "CustomerTypes"},
        {105,
         "Email/Most recently sent=SELECT TOP 1 CONCAT(Subject, ' (', CAST(SentOn AS DATE), ')') AS Result FROM "
         "SentMessages ORDER BY SentOn DESC"},
    };
    for (const auto& [place, row] : telling)
        EXPECT_EQ(rows[place], row);
    EXPECT_THAT(rows.back(), testing::MatchesRegex("Current Connection/Loading Time=.+ sec"));
    EXPECT_THAT(stage.desktop.settings, Not(IsEmpty())) << "the window's place is stored";
}

TEST(DatabaseProperties, LeavesOutWhatTheHostHasNot) {
    struct Case {
        const char* missing;
        Variant instead;
        std::size_t rows, categories;
    };
    const Case cases[] = {
        {"CurrentCompanyConn", ObjectPtr(), allRows - 5, 14},
        {"TSLNSQL", ObjectPtr(), 14, 2},
        {"TSLNSQL", "text", 14, 2},
        {"TSLNSQL.ExecuteScaler", ObjectPtr(), 14, 14},
        {"TSLNSQL.ExecuteScaler", Null(), allRows, 14},
        {"TSLNSQL.ExecuteScaler", Variant(), allRows, 14},
        {"Options.UserFileLocation", ObjectPtr(), allRows - 9, 14},
        {"CurrentCompanyConn.ConnectionTimeout", "soon", allRows - 1, 14},
    };
    for (const auto& [missing, instead, rows, categories] : cases) {
        PropertiesStage stage;
        stage.host->on(missing, instead);
        EXPECT_THAT(stage.show([&](DatabaseProperties& screen) {
            EXPECT_THAT(categoriesOf(screen.grdProperties), SizeIs(categories)) << missing;
            EXPECT_EQ(screen.ProgressBar1.value(), static_cast<std::int32_t>(rows)) << "a step for each row";
        }),
                    SizeIs(rows))
            << missing;
        EXPECT_EQ(stage.terminations(), rows == 14 && categories == 2 ? 0U : 1U);
        EXPECT_FALSE(stage.told());
    }
}

TEST(DatabaseProperties, ClosingItWhileItFillsEndsItBetweenTwoRows) {
    PropertiesStage stage;
    DatabaseProperties screen(*stage.library);
    std::size_t statements = 0;
    stage.host->on("TSLNSQL.ExecuteScaler", [&](Arguments) {
        EXPECT_TRUE(screen.cmdClose.enabled());
        if (++statements == 7) screen.job()->userCancel();
        return Variant(1);
    });
    stage.desktop.user<DatabaseProperties>(frmProperties, [](DatabaseProperties&) {});
    screen.showModal();
    EXPECT_FALSE(screen.loaded());
    EXPECT_EQ(statements, 7U);
    EXPECT_EQ(stage.terminations(), 1U);
    EXPECT_FALSE(stage.told());
}

TEST(DatabaseProperties, SurvivesEveryFault) {
    sweepFaults(
        [](Stage& stage) {
            PropertiesStage::furnish(stage);
            stage.desktop.user<DatabaseProperties>(frmProperties, [](DatabaseProperties& screen) {
                // One failing call costs at most the rows that depend on it.
                EXPECT_THAT(categoriesOf(screen.grdProperties), Contains("File Locations"));
                EXPECT_GE(rowsOf(screen.grdProperties).size(), 13U);
                screen.cmdClose.userPress();
            });
            stage.library->ShowDatabaseProperties();
        },
        [](Stage& stage) {
            EXPECT_FALSE(stage.told());
            EXPECT_THAT(stage.desktop.shown, ElementsAre(frmProperties));
        });
}

TEST(DatabaseProperties, ShowsADurationWithoutLeadingUnits) {
    const std::pair<int, const char*> cases[] = {
        {0, "0 sec"},
        {59, "59 sec"},
        {60, "1 min 0 sec"},
        {3599, "59 min 59 sec"},
        {3600, "1 hr 0 min 0 sec"},
        {3725, "1 hr 2 min 5 sec"},
        {100 * 3600 + 61, "100 hr 1 min 1 sec"},
    };
    for (const auto& [seconds, text] : cases)
        EXPECT_EQ(durationText(std::chrono::seconds(seconds)), text);
}

}  // namespace
}  // namespace tsln::test
