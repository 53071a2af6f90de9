#include <SQLiteCpp/SQLiteCpp.h>
#include <gmock/gmock.h>

#include "tests/workbench/company/CompanyFixture.h"
#include "workbench/company/Schema.h"
#include "workbench/sql/SqlFunctions.h"

namespace tsln::workbench {

namespace {

/// Returns all parts of the database, apart from the order of columns.
std::string partsOf(SQLite::Database& database) {
    std::string parts;
    for (const char* sql :
         {"SELECT type || ' ' || name FROM sqlite_schema ORDER BY 1",
          "SELECT t.name || '.' || c.name || ' ' || c.type || ifnull(c.dflt_value, '') FROM sqlite_schema t "
          "JOIN pragma_table_info(t.name) c WHERE t.type = 'table' ORDER BY 1"}) {
        SQLite::Statement statement(database, sql);
        while (statement.executeStep())
            parts += statement.getColumn(0).getString() + "\n";
    }
    return parts;
}

/// Reduces the company to the parts of version 1.
void makeOlder(const std::string& path) {
    SQLite::Database file(path, SQLite::OPEN_READWRITE);
    addSqlFunctions(file);
    for (const char* sql :
         {"DROP VIEW vwScreen_Accounts", "DROP VIEW vwExporting_Accounts",
          "DROP VIEW vwExporting_AdditionalCharges", "DROP VIEW vwExporting_CustomerMeasurements",
          "DROP VIEW vwExporting_Terms", "CREATE VIEW vwExporting_Terms AS SELECT Terms FROM Terms",
          "DROP TABLE Accounts", "DROP TABLE AdditionalCharges", "DROP TABLE CustomerMeasurements",
          "ALTER TABLE Vendors DROP COLUMN Locked", "PRAGMA user_version = 1"}) {
        file.exec(sql);
    }
    for (const std::string table : {"Vendors", "Employees"}) {
        file.exec("ALTER TABLE " + table + " ADD COLUMN UpdatedOn TEXT NOT NULL DEFAULT 'then'");
        file.exec("CREATE TRIGGER " + table + "_Updated AFTER UPDATE ON " + table + " BEGIN UPDATE " + table +
                  " SET UpdatedOn = 'now' WHERE ID = NEW.ID; END");
    }
}

TEST(SchemaTest, OpeningAnOlderCompanyUpgradesItAndKeepsItsRows) {
    using Reason = CompanyFileError::Reason;
    TemporaryFolder folder;
    const std::string path = folder.file("older.company");
    const auto rows = [](Company& company, const char* sql) { return CompanyTest::rows(company, sql); };
    const auto refusal = [&](OpenMode access) {
        try {
            Company company(path, access);
            return std::string();
        } catch (const CompanyFileError& error) {
            EXPECT_EQ(error.reason(), access == OpenMode::ReadOnly ? Reason::OlderVersion : Reason::Locked);
            return std::string(error.what());
        }
    };
    std::string customers, employees;
    {
        Company company(path);
        customers = rows(company, "SELECT * FROM Customers ORDER BY ID");
        employees = rows(company, "SELECT * FROM Employees ORDER BY ID");
    }
    SQLite::Database file(path, SQLite::OPEN_READWRITE);
    const std::string now = partsOf(file);
    makeOlder(path);
    const std::string older = partsOf(file);
    ASSERT_NE(older, now);

    EXPECT_THAT(refusal(OpenMode::ReadOnly), testing::HasSubstr("older version of this program"));
    file.exec("BEGIN IMMEDIATE");
    EXPECT_THAT(refusal(OpenMode::ReadWrite), testing::HasSubstr("in use by another program"));
    file.exec("ROLLBACK");
    EXPECT_EQ(partsOf(file), older) << "a refused file is unchanged";
    EXPECT_EQ(file.execAndGet("PRAGMA user_version").getInt(), 1);

    {
        Company company(path, OpenMode::ReadWrite);
        EXPECT_EQ(partsOf(file), now);
        EXPECT_EQ(file.execAndGet("PRAGMA user_version").getInt(), schema::version);
        EXPECT_EQ(rows(company, "SELECT * FROM Customers ORDER BY ID"), customers);
        company.execute("UPDATE Employees SET Exported = Exported");
        EXPECT_EQ(rows(company, "SELECT * FROM Employees ORDER BY ID"), employees);
        EXPECT_EQ(rows(company, "SELECT COUNT(*) FROM Accounts"), "0");
        EXPECT_EQ(rows(company, "SELECT DISTINCT Locked FROM Vendors"), "0");
        company.execute("INSERT INTO Accounts (Account) VALUES ('Sales')");
    }
    Company company(path, OpenMode::ReadOnly);
    EXPECT_EQ(rows(company, "SELECT Account FROM vwExporting_Accounts"), "Sales")
        << "a file of the current version is unchanged";
}

TEST(SchemaTest, AnUpgradeThatFailsHalfwayLeavesTheFileUnchanged) {
    TemporaryFolder folder;
    const std::string path = folder.file("older.company");
    { Company company(path); }
    makeOlder(path);
    SQLite::Database file(path, SQLite::OPEN_READWRITE);
    // The upgrade drops the column, but SQLite drops no column with an index.
    file.exec("CREATE INDEX Held ON Vendors (UpdatedOn)");
    const std::string before = partsOf(file);
    EXPECT_THROW(Company company(path), CompanyFileError);
    EXPECT_EQ(partsOf(file), before);
    EXPECT_EQ(file.execAndGet("PRAGMA user_version").getInt(), 1);
}

}  // namespace

}  // namespace tsln::workbench
