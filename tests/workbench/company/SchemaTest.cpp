#include <SQLiteCpp/SQLiteCpp.h>

#include "tests/workbench/company/CompanyFixture.h"
#include "workbench/company/Schema.h"
#include "workbench/company/SqlFunctions.h"

namespace tsln::workbench {

namespace {

/// All that the file is made of, but for where a column stands in its table.
std::string partsOf(SQLite::Database& database) {
    std::string parts;
    for (const char* sql :
         {"SELECT type || ' ' || name FROM sqlite_schema ORDER BY 1",
          "SELECT t.name || '.' || c.name || ' ' || c.type || ifnull(c.dflt_value, '') FROM "
          "sqlite_schema t JOIN pragma_table_info(t.name) c WHERE t.type = 'table' ORDER BY 1"}) {
        SQLite::Statement statement(database, sql);
        while (statement.executeStep())
            parts += statement.getColumn(0).getString() + "\n";
    }
    return parts;
}

TEST_F(CompanyTest, AnOlderCompanyIsUpgradedAndKeepsItsRows) {
    SQLite::Database file(company_.path(), SQLite::OPEN_READWRITE);
    addSqlFunctions(file);
    const std::string now = partsOf(file);
    const std::string customers = rows("SELECT * FROM Customers ORDER BY ID");
    for (const char* sql :
         {"DROP VIEW vwScreen_Accounts", "DROP VIEW vwExporting_Accounts",
          "DROP VIEW vwExporting_AdditionalCharges", "DROP VIEW vwExporting_CustomerMeasurements",
          "DROP VIEW vwExporting_Terms", "CREATE VIEW vwExporting_Terms AS SELECT Terms FROM Terms",
          "DROP TABLE Accounts", "DROP TABLE AdditionalCharges", "DROP TABLE CustomerMeasurements",
          "ALTER TABLE Vendors DROP COLUMN Locked", "PRAGMA user_version = 1"}) {
        file.exec(sql);
    }
    ASSERT_NE(partsOf(file), now);

    // While it cannot be written, it stays as it is.
    {
        SQLite::Database other(company_.path(), SQLite::OPEN_READWRITE);
        other.exec("BEGIN IMMEDIATE");
        EXPECT_THROW(schema::upgrade(file), SQLite::Exception);
        EXPECT_EQ(file.execAndGet("PRAGMA user_version").getInt(), 1);
    }
    schema::upgrade(file);
    EXPECT_EQ(partsOf(file), now);
    EXPECT_EQ(file.execAndGet("PRAGMA user_version").getInt(), schema::version);
    EXPECT_EQ(rows("SELECT * FROM Customers ORDER BY ID"), customers);
    EXPECT_EQ(rows("SELECT COUNT(*) FROM Accounts"), "0");
    EXPECT_EQ(rows("SELECT DISTINCT Locked FROM Vendors"), "0");
    company_.execute("INSERT INTO Accounts (Account) VALUES ('Sales')");
    EXPECT_NE(company_.read("SELECT * FROM vwExporting_Accounts").find("Sales"), std::string::npos);

    schema::upgrade(file);
    EXPECT_EQ(rows("SELECT COUNT(*) FROM Accounts"), "1") << "one of this version is left alone";
}

}  // namespace

}  // namespace tsln::workbench
