#include <algorithm>

#include <gmock/gmock.h>

#include "maintenance/ListKinds.h"
#include "tests/workbench/host/HostStage.h"

namespace tsln::workbench {
namespace {

using testing::HasSubstr;

/// A company with rows in every list, and equal rows in lists that allow them.
const std::string& filledCompany() {
    static const TestFolder folder;
    static const std::string path = [] {
        Company company(folder.file("filled.company"));
        for (
            const char* sql : {
                "INSERT INTO Terms (Terms,DueDays,Discount,DiscountDays,Exported) VALUES('Net 90', 90, 0.025, 10, 1)",
                "INSERT INTO Terms (Terms) VALUES('it''s <Bold>'), ('{0} <d> & \"q\"'), "
                "('two\r\nlines\tand a tab'), ('  blanks '), ('\xF0\x9F\xAA\x9F window')",
                "INSERT INTO MeasurementRooms (Room) VALUES('Sun room'), ('Kitchen')",
                "INSERT INTO MeasurementItems (ItemName) VALUES('Window'), ('Door')",
                "INSERT INTO MeasurementMounts (Mount) VALUES('Inside'), ('Outside')",
                "INSERT INTO FieldMeasureCriteria (Criteria) VALUES('Width over 96')",
                "INSERT INTO RequireDepositCriteria (Criteria, DepositPercent) VALUES('total OVER 500', 33.3)",
                "INSERT INTO EmailTemplates (TemplateType,TemplateName,GroupName,Subject) "
                "VALUES(4, 'Quote enclosed', 'Orders', 'Another'), (1, '', '', 'Without a name')",
                "INSERT INTO Discounts (DiscountGroupID,DiscountLevel,ProductID,Multiplier) VALUES(1, 1, 1, 0.5)",
            }) {
            company.execute(sql);
        }
        return company.path();
    }();
    return path;
}

struct RoundTripStage : HostStage {
    explicit RoundTripStage(const ListKind& listKind)
        : HostStage("admin", OpenMode::Create, filledCompany()), kind(listKind) {
        engine->call("Initialize", session->sharedCode());
    }

    const ListKind& kind;
    ObjectPtr engine = session->createObject("tslniee5.Engine");

    std::string table() const { return std::string(kind.listName); }
    bool exportTo(const std::string& name, bool simple) const {
        engine->put("SimpleExport", simple);
        engine->call("AddToExport", kind.listName, kind.exportQuery);
        const bool done = engine->call("DoExport", folder.file(name)).toBoolean();
        engine->call("PreTerminate");
        engine->call("Initialize", session->sharedCode());
        return done;
    }
    bool import(const std::string& name) const {
        return engine->call("ImportFile", folder.file(name), kind.listName).toBoolean();
    }
    /// Returns the rows of the list's table, sorted, without data that is specific to a company or a row.
    std::vector<std::string> rows(bool identities) const {
        const SqlResult result = session->company().run("SELECT * FROM " + table());
        std::vector<std::string> rows;
        for (const auto& values : result.rows) {
            std::string text;
            for (std::size_t i = 0; i < values.size(); ++i) {
                const std::string& column = result.columns[i];
                const bool own = column == "UniqueID" || column == "Exported";
                if (column == "ID" || column == "AddedOn" || column == "UpdatedOn" || (own && !identities))
                    continue;
                text += column + "=" + (values[i].isNull() ? "NULL" : values[i].toText()) + " ";
            }
            rows.push_back(text);
        }
        std::ranges::sort(rows);
        return rows;
    }
};

TEST(RoundTrip, AnImportedExportRestoresEveryList) {
    int kinds = 0;
    for (std::int16_t number = 1; number <= 36; ++number) {
        const ListKind kind = findListKind(number);
        if (kind.listName.empty()) continue;
        SCOPED_TRACE(kind.displayName);
        ++kinds;
        const RoundTripStage stage(kind);
        const auto before = stage.rows(true), plain = stage.rows(false);
        ASSERT_FALSE(before.empty());
        const std::string all = "DELETE FROM " + stage.table();
        ASSERT_TRUE(stage.exportTo("full.xml", false)) << stage.lastEvent();
        ASSERT_TRUE(stage.exportTo("simple.xml", true)) << stage.lastEvent();

        EXPECT_TRUE(stage.import("full.xml")) << stage.lastEvent();
        EXPECT_EQ(stage.rows(true), before) << "import into unchanged rows";
        EXPECT_TRUE(stage.import("simple.xml")) << stage.lastEvent();
        EXPECT_EQ(stage.rows(true), before) << "import of a simple export into unchanged rows";

        // An export of charges contains one type of them.
        const std::string some = kind.listName == "AdditionalCharges"
                                     ? kind.exportQuery.substr(kind.exportQuery.find(" WHERE"))
                                     : "";
        stage.run(all + some);
        ASSERT_NE(stage.rows(true), before);
        EXPECT_TRUE(stage.import("full.xml")) << stage.lastEvent();
        EXPECT_EQ(stage.rows(true), before) << "import into an empty list";
        stage.run(all + some);
        EXPECT_TRUE(stage.import("simple.xml")) << stage.lastEvent();
        EXPECT_EQ(stage.rows(false), plain) << "import of a simple export into an empty list";
    }
    EXPECT_EQ(kinds, 35);
}

TEST(RoundTrip, AMissingReferenceFailsTheImport) {
    const struct {
        std::int16_t kind;
        const char *spoil, *why;
    } cases[] = {
        {5, "DELETE FROM Products WHERE ID = 1", "There is no 'Aldermoor 2 inch wood blind' in Products."},
        {24, "DELETE FROM Accounts WHERE ID = 4", "There is no 'Installation Income' in Accounts."},
        {28, "UPDATE Customers SET AccountNumber = 'X' WHERE ID = 3", "in Customers."},
        {30, "UPDATE DiscountGroups SET DiscountGroupType = 1 WHERE ID = 1", "There is no 'Standard'"},
    };
    for (const auto& [number, spoil, why] : cases) {
        const ListKind kind = findListKind(number);
        const RoundTripStage stage(kind);
        ASSERT_TRUE(stage.exportTo("full.xml", false));
        stage.run("DELETE FROM " + stage.table());
        stage.run(spoil);
        EXPECT_FALSE(stage.import("full.xml"));
        EXPECT_THAT(stage.lastEvent(), HasSubstr(why));
        EXPECT_TRUE(stage.rows(true).empty()) << "a failed import adds no row";
    }
}

}  // namespace
}  // namespace tsln::workbench
