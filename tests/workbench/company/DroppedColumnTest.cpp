#include <SQLiteCpp/SQLiteCpp.h>

#include "tests/workbench/company/CompanyFixture.h"
#include "workbench/company/Schema.h"
#include "workbench/sql/SqlFunctions.h"

namespace tsln::workbench {
namespace {

TEST_F(CompanyTest, AnUpgradeDropsTheColumnOfVendors) {
    SQLite::Database file(company_.path(), SQLite::OPEN_READWRITE);
    addSqlFunctions(file);
    const std::string vendors = rows("SELECT * FROM Vendors ORDER BY ID");
    file.exec("ALTER TABLE Vendors ADD COLUMN UpdatedOn TEXT NOT NULL DEFAULT 'then'");
    file.exec(
        "CREATE TRIGGER \"Vendors_Updated\" AFTER UPDATE ON \"Vendors\" BEGIN UPDATE \"Vendors\" SET UpdatedOn = 'now' "
        "WHERE ID = NEW.ID; END");
    file.exec("PRAGMA user_version = 2");
    schema::upgrade(file);
    company_.execute("UPDATE Vendors SET Margin = Margin");
    const auto column = "SELECT COUNT(*) FROM pragma_table_info('Vendors') WHERE name = 'UpdatedOn'";
    EXPECT_EQ(file.execAndGet(column).getInt(), 0);
    EXPECT_EQ(rows("SELECT * FROM Vendors ORDER BY ID"), vendors);
}

}  // namespace
}  // namespace tsln::workbench
