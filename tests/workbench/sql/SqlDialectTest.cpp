
#include "tests/workbench/company/CompanyFixture.h"
#include "workbench/sql/SqlDialect.h"

namespace tsln::workbench {

namespace {

struct Case {
    const char* sql;
    const char* rows;
};

class SqlDialectTest : public CompanyTest {
  protected:
    void SetUp() override {
        company_.execute(
            "INSERT INTO Terms (Terms, DueDays, Discount) VALUES ('Net 30', 30, 0), ('net 60', 60, 0.025), ('Österreich''s terms', 7, 0.5)");
        company_.execute("UPDATE Terms SET AddedOn = '2011-03-04T10:20:30'");
        company_.execute("UPDATE Terms SET AddedOn = '2012-12-31T23:05:00' WHERE DueDays = 60");
    }
    void check(std::initializer_list<Case> cases) {
        for (const Case& c : cases) {
            SCOPED_TRACE(c.sql);
            EXPECT_EQ(rows(c.sql), c.rows) << translateSql(c.sql).sql;
        }
    }
};

TEST_F(SqlDialectTest, SelectsReadTables) {
    check({
        {"SELECT TOP 1 Terms FROM Terms ORDER BY DueDays DESC", "net 60"},
        {"select top (2) DueDays from dbo.Terms order by DueDays", "7;30"},
        {"SELECT [Terms] FROM [dbo].[Terms] AS [t] WHERE [t].[DueDays] = 30;", "Net 30"},
        {"SELECT \"Terms\" FROM Terms -- with a comment\nWHERE /* and /* another */ */ DueDays = 60",
         "net 60"},
        {"SELECT t.DueDays FROM (SELECT TOP 2 DueDays FROM Terms ORDER BY DueDays DESC) t ORDER BY t.DueDays",
         "30;60"},
        {"SELECT DueDays FROM Terms WHERE DueDays IN (SELECT TOP 1 DueDays FROM Terms ORDER BY DueDays)",
         "7"},
        {"SELECT TOP 1 DueDays FROM Terms WHERE DueDays > 7 UNION ALL SELECT TOP 1 9 FROM Terms", "30;9"},
        {"SELECT DISTINCT TOP 2 LEN(Terms) FROM Terms", "6;18"},
        {"SELECT COUNT(*), MIN(Terms), MAX(DueDays), SUM(DueDays), AVG(DueDays) FROM Terms",
         "3|Net 30|60|97|32"},
        {"SELECT Total = COUNT(DISTINCT Discount) FROM Terms", "3"},
        {"SELECT LEN(Terms) AS L, COUNT(*) FROM Terms GROUP BY LEN(Terms) HAVING COUNT(*) > 1", "6|2"},
        {"SELECT c.ID, v.ID FROM Customers c LEFT JOIN Vendors v ON v.ID = c.ID WHERE c.ID BETWEEN 12 AND 14",
         "12|12;13|13;14"},
        {"SELECT COUNT(*) FROM (Customers INNER JOIN Orders ON Orders.CustomerID = Customers.ID)", "40"},
        {"SELECT e.Username FROM Employees e WHERE EXISTS (SELECT * FROM EmployeeSecurityRoles r "
         "WHERE r.EmployeeID = e.ID AND r.SecurityRoleID = 1)",
         "admin"},
        {"SELECT Range FROM DeliveryRanges WHERE ID = 1 AND NOT ID IS NULL", "Next available"},
        {"SELECT COUNT(*) AS Result FROM Groups WHERE GroupType = 1", "4"},
        {"SELECT PortfolioTags.Tag, Portfolio.FileName FROM PortfolioTags "
         "INNER JOIN Portfolio ON PortfolioTags.PortfolioID = Portfolio.ID WHERE (Portfolio.ID = 2) "
         "ORDER BY PortfolioTags.Tag, Portfolio.FileName",
         "Kitchen|kitchen-roman.jpg"},
    });
}

TEST_F(SqlDialectTest, TextComparesWithoutCaseAndTrailingBlanks) {
    check({
        {"SELECT DueDays FROM Terms WHERE Terms = 'NET 30  '", "30"},
        {"SELECT DueDays FROM Terms WHERE terms = N'öSTERREICH''S TERMS'", "7"},
        {"SELECT DueDays FROM Terms WHERE Terms LIKE 'NET [3-5]_' OR Terms LIKE 'ö%'", "30;7"},
        {"SELECT DueDays FROM Terms WHERE Terms NOT LIKE '%[^a-z]0'", "7"},
        {"SELECT DueDays FROM Terms WHERE Terms IN ('NET 60', 'net 31')", "60"},
        {"SELECT DueDays FROM Terms WHERE LEFT(Terms, 3) = 'NET' ORDER BY Terms", "30;60"},
        {"SELECT CASE 'a' WHEN 'A' THEN 'same' ELSE 'other' END", "same"},
        {"SELECT CASE WHEN '100%' LIKE '1%!%' ESCAPE '!' THEN 1 END", "1"},
        {"SELECT NULLIF('x', 'X'), ISNULL(NULL, 'then')", "then"},
        {"SELECT DISTINCT UPPER(Terms) FROM Terms WHERE DueDays = 30 UNION SELECT 'net 31'", "NET 30;net 31"},
        {"SELECT COUNT(*) FROM (SELECT 'a' AS T UNION SELECT 'A ') u", "1"},
    });
}

TEST_F(SqlDialectTest, PlusAddsNumbersAndJoinsTexts) {
    check({
        {"SELECT 1 + 2, '1' + '2', 'a' + NULL, 1.5 + 2, '3' + 4", "3|12|3.5|7"},
        {"SELECT Terms + ' (' + CONVERT(varchar(10), DueDays) + ')' FROM Terms WHERE DueDays = 30",
         "Net 30 (30)"},
        {"SELECT 1 + 2 - 4 + 10, 7 / 2, 7.0 / 2, 7 % 4, -7 / 2, 2 * (3 + 4)", "9|3|3.5|3|-3|14"},
        {"SELECT 6 & 3 - 1, 4 | 1, - -1", "1|5|1"},
        {"SELECT COUNT(*) FROM Terms WHERE 1 = 1 AND NOT (DueDays + 1 > 31 OR DueDays - 1 < 7)", "1"},
    });
    EXPECT_EQ(failure("SELECT ' (' + DueDays FROM Terms"),
              "Conversion failed when converting the text ' (' to number.");
    EXPECT_EQ(failure("SELECT 1 / (DueDays - 30) FROM Terms"), "Divide by zero error encountered.");
}

TEST_F(SqlDialectTest, ConversionsAndFunctionsCompute) {
    check({
        {"SELECT CONVERT(varchar(10), CAST(AddedOn AS DATE), 101) FROM Terms WHERE DueDays = 30",
         "03/04/2011"},
        {"SELECT CONVERT(varchar, AddedOn), CONVERT(varchar(30), AddedOn, 120) FROM Terms WHERE DueDays = 30",
         "Mar  4 2011 10:20AM|2011-03-04 10:20:30"},
        {"SELECT CONCAT('(', CAST(AddedOn AS DATE), ')', NULL, 5) FROM Terms WHERE DueDays = 60",
         "(2012-12-31)5"},
        {"SELECT CAST('3/4/2011 1:05 PM' AS DATETIME), CAST('20110304' AS DATE)",
         "2011-03-04T13:05:00|2011-03-04"},
        {"SELECT CAST(2.9 AS INT), CAST(' 12 ' AS INT), CAST(1.005 AS DECIMAL(9,2)), CAST('0.5' AS FLOAT), CAST(7 AS BIT)",
         "2|12|1.01|0.5|1"},
        {"SELECT CAST('abcdef' AS VARCHAR(3)), CAST(12345 AS NVARCHAR(3)), CAST('ab' AS CHAR(4)) + '.'",
         "abc|*|ab  ."},
        {"SELECT DATEADD(month, 1, '2012-01-31'), DATEADD(hh, -11, '2011-03-04T10:20:30')",
         "2012-02-29|2011-03-03T23:20:30"},
        {"SELECT DATEDIFF(day, '2011-03-04T23:59:00', '2011-03-05'), DATEDIFF(yy, '2011-12-31', '2012-01-01'), DATEDIFF(wk, '2011-03-05', '2011-03-06')",
         "1|1|1"},
        {"SELECT YEAR(AddedOn), MONTH(AddedOn), DATEPART(minute, AddedOn) FROM Terms WHERE DueDays = 60",
         "2012|12|5"},
        {"SELECT LEN('ab  '), LEFT('Größe', 4), RIGHT('𝄞x', 1), SUBSTRING('abcdef', 0, 3), CHARINDEX('C', 'abc')",
         "2|Größ|x|ab|3"},
        {"SELECT REPLACE('aXbx', 'x', '-'), LTRIM('  a'), UPPER('b'), ROUND(2.345, 2), FLOOR(-1.5), CEILING(1.2)",
         "a-b-|a|B|2.35|-2|2"},
        {"SELECT dbo.BuildEmployeeName('Ann', 'B', 'Lee'), dbo.BuildEmployeeName('Ann', NULL, 'Lee')",
         "Ann B Lee|Ann Lee"},
        {"SELECT COUNT(*) FROM Terms WHERE AddedOn >= '2011-03-04T00:00:00' AND AddedOn < GETDATE()", "3"},
        {"SELECT IIF(1 > 2, 'yes', 'no'), COALESCE(NULL, NULL, 3), LEN(NEWID())", "no|3|36"},
    });
    EXPECT_EQ(failure("SELECT CAST(Terms AS INT) FROM Terms WHERE DueDays = 30"),
              "Conversion failed when converting the text 'Net 30' to INT.");
    EXPECT_EQ(failure("SELECT CAST('2011-02-30' AS DATE)"),
              "Conversion failed when converting the text '2011-02-30' to date.");
}

TEST_F(SqlDialectTest, StatementsChangeRows) {
    EXPECT_EQ(
        company_.execute("UPDATE Terms SET Terms = 'Net 90', DueDays = DueDays + 60 WHERE Terms = 'NET 30'"),
        1);
    EXPECT_EQ(rows("SELECT Terms, DueDays FROM Terms WHERE DueDays = 90"), "Net 90|90");
    EXPECT_EQ(company_.execute("DELETE Terms WHERE DueDays > 50"), 2);
    // As a role is copied.
    company_.execute(
        "INSERT INTO SecurityRoles (Name, Description) SELECT 'Viewer Copy', Description from SecurityRoles where ID = 2");
    int copy = company_.lastInsertId();
    EXPECT_GT(copy, 3);
    EXPECT_GT(company_.execute("INSERT INTO SecurityRoleAccess (SecurityRoleID,Activity,Access) SELECT " +
                               std::to_string(copy) +
                               ",Activity,Access FROM SecurityRoleAccess WHERE SecurityRoleID = 2 "),
              40);
    // A quoted number is accepted for a number column; other text is refused.
    company_.execute(
        "INSERT INTO CustomerTypes (Name,RoundUnitPrice,RoundUnitPriceTo) VALUES('n', '1', '0.25')");
    EXPECT_EQ(rows("SELECT RoundUnitPrice, RoundUnitPriceTo FROM CustomerTypes WHERE Name = 'N'"), "1|0.25");
    EXPECT_NE(failure("UPDATE Terms SET DueDays = 'soon'"), "no failure");
}

TEST_F(SqlDialectTest, ProceduresOfTheDatabaseRun) {
    company_.execute("INSERT INTO Customers (CustomerName, BillToCity) VALUES ('New', 'Nowhere')");
    std::string id = std::to_string(company_.lastInsertId());
    for (int i = 0; i < 2; ++i)
        company_.execute("EXEC EnsureCustomerDefaultAddress " + id);
    EXPECT_EQ(rows("SELECT City, isDefault FROM CustomerAddresses WHERE CustomerID = " + id), "Nowhere|1");
    company_.execute("UPDATE CustomerAddresses SET isDefault = 0 WHERE CustomerID = 7");
    company_.execute("EXEC EnsureCustomerDefaultAddress 7");
    EXPECT_EQ(rows("SELECT isDefault FROM CustomerAddresses WHERE CustomerID = 7"), "1");
    EXPECT_NE(company_.read("EXEC sp_spaceused").find("<database_size>0."), std::string::npos);
}

TEST_F(SqlDialectTest, UnknownConstructsAreNamed) {
    auto uses = [](std::string what) {
        return "The statement uses " + what + ", which this database does not know.";
    };
    const std::pair<const char*, std::string> cases[] = {
        {"SELECT * FROM Terms OUTER APPLY Vendors", uses("APPLY")},
        {"SELECT * FROM Terms CROSS APPLY Vendors", uses("APPLY")},
        {"SELECT * FROM Terms WITH (NOLOCK)", uses("WITH")},
        {"SELECT COUNT(*) OVER (ORDER BY ID) FROM Terms", uses("OVER")},
        {"SELECT ID FROM Terms ORDER BY ID OFFSET 5 ROWS", uses("OFFSET")},
        {"SELECT * FROM Terms FOR XML AUTO", uses("FOR")},
        {"SELECT * INTO Copy FROM Terms", uses("INTO")},
        {"SELECT TOP 5 PERCENT * FROM Terms", uses("TOP ... PERCENT")},
        {"SELECT TOP 5 WITH TIES * FROM Terms ORDER BY ID", uses("TOP ... WITH TIES")},
        {"SELECT ID FROM Terms EXCEPT SELECT 1", uses("EXCEPT")},
        {"SELECT STUFF(Terms, 1, 1, 'x') FROM Terms", uses("STUFF()")},
        {"SELECT dbo.Secret(1)", uses("dbo.Secret()")},
        {"SELECT BuildEmployeeName('a', 'b', 'c')", uses("BUILDEMPLOYEENAME()")},
        {"SELECT CONVERT(varchar(10), AddedOn, 999) FROM Terms", uses("CONVERT to VARCHAR in style 999")},
        {"SELECT CAST(1 AS HIERARCHYID)", uses("the type HIERARCHYID")},
        {"SELECT DATEADD(fortnight, 1, GETDATE())", uses("the date part fortnight")},
        {"SELECT * FROM Sales.dbo.Terms", uses("the database or schema Sales")},
        {"SELECT * FROM STRING_SPLIT('a', ',')", uses("the table function STRING_SPLIT()")},
        {"SELECT ID FROM Terms WHERE DueDays > ALL (SELECT 1)", uses("ALL")},
        {"SELECT @x", uses("@x")},
        {"INSERT INTO Terms (Terms) OUTPUT inserted.ID VALUES ('a')", uses("OUTPUT")},
        {"INSERT INTO Terms (Terms) VALUES (DEFAULT)", uses("DEFAULT")},
        {"UPDATE Terms SET DueDays = 1 FROM Terms", uses("UPDATE ... FROM")},
        {"UPDATE TOP (1) Terms SET DueDays = 1", uses("TOP")},
        {"MERGE Terms USING Vendors ON 1 = 1", uses("MERGE")},
        {"DROP TABLE Terms", uses("DROP")},
        {"BEGIN TRANSACTION", uses("BEGIN")},
        {"EXEC xp_cmdshell 'dir'", uses("the procedure xp_cmdshell")},
        {"DELETE FROM Terms; DELETE FROM Vendors",
         "The text holds more than one statement: DELETE begins a second one, and this database runs one at a time."},
        {"SELECT 1 DROP TABLE Terms",
         "The text holds more than one statement: DROP begins a second one, and this database runs one at a time."},
        {"", "The statement is empty."},
        {" -- nothing", "The statement is empty."},
        {"SELECT ID FROM Terms WHERE", "The statement ends too early."},
        {"UPDATE Orders SET SalesRepID = 1 WHERE CustomerID = 5  Active <> 0 ",
         "Incorrect syntax near 'Active'."},
        {"SELECT ID FROM Terms WHERE DueDays",
         "The statement has a value near 'DueDays' where a condition is expected."},
        {"SELECT 1 WHERE (1 = 1) + 2 = 3",
         "The statement has a condition near '+' where a value is expected."},
        {"SELECT 'open FROM Terms", "Unclosed quotation mark before 'open FROM Terms'."},
        {"SELECT 1 /* open", "A comment that begins with /* is not closed."},
        {"SELECT 1 ? 2", "Incorrect syntax near '?'."},
        {"SELECT 1 - 29e FROM Terms", "Incorrect syntax near '29e'."},
        {"SELECT * FROM sqlite_schema", "Invalid object name 'sqlite_schema'."},
        {"SELECT LEN()", "The function LEN() does not take 0 arguments."},
        {"INSERT INTO Locations (LocationName,MarketName,MarketName) VALUES('a','b','c')",
         "The column name 'MarketName' is specified more than once in the SET clause or column list of an INSERT. A column cannot be assigned more than one value in the same clause."},
    };
    for (const auto& [sql, text] : cases) {
        SCOPED_TRACE(sql);
        EXPECT_EQ(failure(sql), text);
    }
    EXPECT_EQ(failure(std::string("SELECT 'a\0b'", 12)), "The statement holds a null character.");
    // Errors found by SQLite itself, with names that it must not read as texts.
    EXPECT_EQ(failure("SELECT ID FROM Merchants WHERE VendorName = 'x'"), "no such table: Merchants");
    EXPECT_EQ(failure("SELECT Missing FROM Terms"), "no such column: Missing");
    EXPECT_EQ(rows("SELECT COUNT(*) FROM Terms"), "3");
}

TEST_F(SqlDialectTest, DeepNestingIsRefused) {
    auto nested = [](int depth) {
        return "SELECT " + std::string(depth, '(') + "1" + std::string(depth, ')');
    };
    EXPECT_EQ(rows(nested(40)), "1");
    EXPECT_EQ(failure(nested(100'000)), "The statement is nested too deeply.");
    EXPECT_EQ(failure("SELECT " + std::string(100'000, '~') + "1").find("no failure"), std::string::npos);
}

TEST_F(SqlDialectTest, StatementsOfAMegabyteAreTranslated) {
    std::string list = "SELECT ID FROM Terms WHERE ID IN (0", sum = "SELECT 1",
                comparisons = "SELECT 1 WHERE 1 = 1";
    while (list.size() < 1'000'000)
        list += ", 123456";
    while (sum.size() < 1'000'000)
        sum += " + 1 - 2 / 3";
    while (comparisons.size() < 1'000'000)
        comparisons += " AND 'a' LIKE 'b' + 'c'";
    for (const std::string& sql :
         {list + ")", sum, comparisons, "SELECT '" + std::string(1'000'000, 'x') + "'"}) {
        EXPECT_GT(translateSql(sql).sql.size(), sql.size() / 2);
    }
    EXPECT_EQ(rows("SELECT LEN('" + std::string(60'000, 'x') + "')"), "60000");
}

}  // namespace

}  // namespace tsln::workbench
