#include <SQLiteCpp/SQLiteCpp.h>

#include "tests/workbench/company/CompanyFixture.h"
#include "workbench/company/Schema.h"
#include "workbench/sql/SqlFunctions.h"

namespace tsln::workbench {
namespace {

TEST_F(CompanyTest, AnUpgradeDropsTheColumnOfVendorsAndEmployees) {
    SQLite::Database file(company_.path(), SQLite::OPEN_READWRITE);
    addSqlFunctions(file);
    for (const std::string table : {"Vendors", "Employees"}) {
        const std::string all = "SELECT * FROM " + table + " ORDER BY ID";
        const std::string before = rows(all);
        file.exec("ALTER TABLE " + table + " ADD COLUMN UpdatedOn TEXT NOT NULL DEFAULT 'then'");
        file.exec("CREATE TRIGGER " + table + "_Updated AFTER UPDATE ON " + table + " BEGIN UPDATE " + table +
                  " SET UpdatedOn = 'now' WHERE ID = NEW.ID; END");
        file.exec("PRAGMA user_version = 2");
        schema::upgrade(file);
        company_.execute("UPDATE " + table + " SET Exported = Exported");
        const std::string column =
            "SELECT COUNT(*) FROM pragma_table_info('" + table + "') WHERE name = 'UpdatedOn'";
        EXPECT_EQ(file.execAndGet(column).getInt(), 0);
        EXPECT_EQ(rows(all), before);
    }
}

}  // namespace
}  // namespace tsln::workbench
