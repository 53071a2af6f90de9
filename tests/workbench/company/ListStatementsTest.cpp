#include <string>
#include <vector>

#include "tests/workbench/company/CompanyFixture.h"

namespace tsln::workbench {

namespace {

/// Replaces each placeholder of a statement by a number.
std::string filled(std::string statement) {
    for (std::size_t at = 0; (at = statement.find_first_of("<{", at)) != std::string::npos; ++at) {
        const std::size_t end = statement.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789", at + 1);
        if (end == at + 1 || end == std::string::npos || (statement[end] != '>' && statement[end] != '}')) {
            continue;
        }
        statement.replace(at, end + 1 - at, statement[at + 1] == '1' ? "2" : "1");
    }
    return statement;
}

class ListStatementsTest : public CompanyTest {
  protected:
    /// Runs the statement and undoes it. Returns the database's error text, or an empty text.
    std::string refusal(const std::string& statement) {
        struct TakeBack {};
        std::string text;
        try {
            company_.transaction([&] {
                try {
                    company_.execute(filled(statement));
                } catch (const SqlError& error) {
                    text = error.what();
                }
                throw TakeBack();
            });
        } catch (const TakeBack&) {
        }
        return text;
    }
};

/// The statements of the list screens, literally.
const char* const statements[] = {
    "SELECT * FROM Terms ORDER BY Terms",
    "INSERT INTO Terms (Terms,DueDays,Discount,DiscountDays,Exported) VALUES('<t>', <dd>, <dis>, <d>, <ex>)",
    "UPDATE Terms SET Terms = '<t>', DueDays = <dd>, Discount = <dis>, DiscountDays = <d>, Exported = <ex> WHERE ID = <id>",
    "SELECT * FROM PaymentMethods ORDER BY PaymentMethod",
    "INSERT INTO PaymentMethods (PaymentMethod,PaymentType,Exported) VALUES('<sm>', <t>, <ex>)",
    "UPDATE PaymentMethods SET PaymentMethod = '<sm>', PaymentType = <t>, Exported = <ex> WHERE ID = <id>",
    "SELECT * FROM ShippingMethods ORDER BY ShippingMethod",
    "INSERT INTO ShippingMethods (ShippingMethod,TaskType) VALUES('<sm>', <t>)",
    "UPDATE ShippingMethods SET ShippingMethod = '<sm>', TaskType = <t> WHERE ID = <id>",
    "SELECT * FROM ReferralMethods ORDER BY ReferralMethod",
    "INSERT INTO ReferralMethods (ReferralMethod) VALUES('<m>')",
    "UPDATE ReferralMethods SET ReferralMethod = '<m>' WHERE ID = <id>",
    "SELECT * FROM JobTypes ORDER BY JobType",
    "INSERT INTO JobTypes (JobType) VALUES('<m>')",
    "UPDATE JobTypes SET JobType = '<m>' WHERE ID = <id>",
    "SELECT * FROM OrderTypes ORDER BY OrderType",
    "INSERT INTO OrderTypes (OrderType) VALUES('<m>')",
    "UPDATE OrderTypes SET OrderType = '<m>' WHERE ID = <id>",
    "SELECT * FROM ProductTypes ORDER BY ProductType",
    "INSERT INTO ProductTypes (ProductType,EstDeliveryDays) VALUES('<c>', <d>)",
    "UPDATE ProductTypes SET ProductType = '<c>', EstDeliveryDays = <d> WHERE ID = <id>",
    "SELECT * FROM Manufacturers ORDER BY Manufacturer",
    "INSERT INTO Manufacturers (Manufacturer) VALUES('<m>')",
    "UPDATE Manufacturers SET Manufacturer = '<m>' WHERE ID = <id>",
    "SELECT * FROM Groups ORDER BY GroupName",
    "INSERT INTO Groups (GroupName,Description) VALUES('<m>', '<d>')",
    "UPDATE Groups SET GroupName = '<m>', Description = '<d>' WHERE ID = <id>",
    "SELECT * FROM CustomerTypes ORDER BY Name",
    "INSERT INTO CustomerTypes (Name,RoundUnitPrice,RoundUnitPriceTo,RoundUnitPriceDirection,OptionDiscountMethod,DiscountMethod) "
    "VALUES('<n>', '<rup>', '<rupt>', '<rupd>', '<odm>', '<dm>')",
    "UPDATE CustomerTypes SET Name = '<n>', RoundUnitPrice = '<rup>', RoundUnitPriceTo =  <rupt>, "
    "RoundUnitPriceDirection = '<rupd>', OptionDiscountMethod = '<odm>', DiscountMethod = '<dm>' WHERE ID = <id>",
    "SELECT COUNT(*) AS MyCount FROM CustomerTypes",
    "SELECT * FROM DeliveryRanges ORDER BY Range",
    "INSERT INTO DeliveryRanges (Range) VALUES('<m>')",
    "UPDATE DeliveryRanges SET Range = '<m>' WHERE ID = <id>",
    "SELECT * FROM PhoneLabels ORDER BY Label",
    "INSERT INTO PhoneLabels (Label) VALUES('<m>')",
    "UPDATE PhoneLabels SET Label = '<m>' WHERE ID = <id>",
    "SELECT * FROM EmailLabels ORDER BY Label",
    "INSERT INTO EmailLabels (Label) VALUES('<m>')",
    "UPDATE EmailLabels SET Label = '<m>' WHERE ID = <id>",
    "SELECT * FROM MeasurementRooms ORDER BY Room",
    "INSERT INTO MeasurementRooms (Room) VALUES('<r>')",
    "UPDATE MeasurementRooms SET Room = '<r>' WHERE ID = <id>",
    "SELECT * FROM MeasurementItems ORDER BY ItemName",
    "INSERT INTO MeasurementItems (ItemName) VALUES('<r>')",
    "UPDATE MeasurementItems SET ItemName = '<r>' WHERE ID = <id>",
    "SELECT * FROM MeasurementMounts ORDER BY Mount",
    "INSERT INTO MeasurementMounts (Mount) VALUES('<r>')",
    "UPDATE MeasurementMounts SET Mount = '<r>' WHERE ID = <id>",
    "SELECT * FROM Locations ORDER BY LocationName",
    "SELECT * FROM Locations WHERE ID = 1",
    "SELECT TOP 1 BillToAddress1, BillToAddress2, BillToCity, BillToState, BillToZip, BillToCountry FROM Company",
    "UPDATE Locations SET LocationName = '<name>', Email = '<email>', WebSite = '<web>', "
    "Phone1Label = '<p1l>', Phone1 = '<p1>', Phone2Label = '<p2l>', Phone2 = '<p2>', Phone3Label = '<p3l>', "
    "Phone3 = '<p3>', Phone4Label = '<p4l>', Phone4 = '<p4>', ShipToAddress1 = '<sa1>', "
    "ShipToAddress2 = '<sa2>', ShipToCity = '<sy>', ShipToState = '<ss>', ShipToZip = '<sz>', "
    "ShipToCountry = '<sc>', StoreNumber = '<sno>', MarketNumber = '<mno>' , MarketName = '<mname>' , "
    "Region = '<reg>'  WHERE ID = <id>",
    "SELECT * FROM ProductTags WHERE ProductID = {0} ORDER BY Tag",
    "SELECT DISTINCT Tag FROM ProductTags ORDER BY Tag",
    "SELECT Tag FROM ProductTags WHERE ProductID = {0}",
    "SELECT COUNT(*) AS MyCount FROM ProductTags WHERE ProductID = {0} AND Tag = '{1}'",
    "INSERT INTO ProductTags (ProductID, Tag) VALUES(<id>,'<t>')",
    "SELECT PortfolioTags.ID, PortfolioTags.Tag, Portfolio.FileName FROM PortfolioTags "
    "INNER JOIN Portfolio ON PortfolioTags.PortfolioID = Portfolio.ID ORDER BY PortfolioTags.Tag, Portfolio.FileName",
    "UPDATE PortfolioTags SET Tag = '<new>' WHERE Tag = '<old>'",
    "DELETE FROM PortfolioTags WHERE ID = {0}",
    "SELECT * FROM FieldMeasureCriteria ORDER BY Criteria",
    "INSERT INTO FieldMeasureCriteria (Criteria) VALUES('<m>')",
    "UPDATE FieldMeasureCriteria SET Criteria = '<m>' WHERE ID = <id>",
    "SELECT * FROM QuoteApproval ORDER BY Criteria",
    "INSERT INTO QuoteApproval (Criteria) VALUES('<c>')",
    "UPDATE QuoteApproval SET Criteria = '<c>' WHERE ID = <id>",
    "SELECT * FROM RequireDepositCriteria ORDER BY DepositPercent",
    "INSERT INTO RequireDepositCriteria (Criteria,DepositPercent) VALUES('<c>', <d>)",
    "UPDATE RequireDepositCriteria SET Criteria = '<c>', DepositPercent = <d> WHERE ID = <id>",
    // discount groups
    "SELECT * FROM DiscountGroups ORDER BY DiscountGroup",
    "SELECT * FROM DiscountGroups WHERE ID <> 1",
    "SELECT DiscountGroup, DiscountGroupType FROM DiscountGroups WHERE ID = {0}",
    "SELECT COUNT(*) AS MyCount FROM DiscountGroups WHERE DiscountGroupType = {0}",
    "INSERT INTO DiscountGroups (DiscountGroup,DiscountGroupType) VALUES('<sm>', <t>)",
    "UPDATE DiscountGroups SET DiscountGroup = '<sm>', DiscountGroupType = <t> WHERE ID = <id>",
    "DELETE FROM Discounts WHERE DiscountGroupID = 1",
    "DELETE FROM DiscountGroups WHERE ID = 1",
    // sales tax
    "SELECT * FROM SalesTaxCodes ORDER BY Code",
    "INSERT INTO SalesTaxCodes (Code,Rate,Vendor,Exported) VALUES('<c>', <r>, '<v>',<ex>)",
    "UPDATE SalesTaxCodes SET Code = '<c>', Rate = <r>, Vendor = '<v>', Exported = <ex> WHERE ID = <id>",
    "SELECT COUNT(*) AS MyCount FROM SalesTaxCodes",
    "SELECT ID, Code, Rate, Vendor FROM SalesTaxCodes",
    "SELECT * FROM SalesTaxGroups ORDER BY SalesTaxGroup",
    "INSERT INTO SalesTaxGroups (SalesTaxGroup,Description,Exported) VALUES('<n>', '<d>',<ex>)",
    "UPDATE SalesTaxGroups SET SalesTaxGroup = '<n>', Description = '<d>', Exported = <ex> WHERE ID = <id>",
    "SELECT SalesTaxCodeID FROM SalesTaxGroupCodes WHERE SalesTaxGroupID = 1",
    "SELECT SalesTaxCodes.Code, SalesTaxCodes.Rate, SalesTaxCodes.Vendor FROM SalesTaxGroupCodes "
    "INNER JOIN SalesTaxCodes ON SalesTaxGroupCodes.SalesTaxCodeID = SalesTaxCodes.ID "
    "WHERE (SalesTaxGroupCodes.SalesTaxGroupID = 1)",
    "DELETE FROM SalesTaxGroupCodes WHERE SalesTaxGroupID = 1",
    "INSERT INTO SalesTaxGroupCodes (SalesTaxGroupID, SalesTaxCodeID) VALUES(<g>,<c>)",
    // accounts
    "SELECT * FROM vwScreen_Accounts ORDER BY Account",
    "SELECT * FROM vwScreen_Accounts WHERE ID = {0}",
    "INSERT INTO Accounts (Account,AccountType,Exported) VALUES('<a>', <t>, <ex>)",
    "UPDATE Accounts SET Account = '<a>', AccountType = <t>, Exported = <ex> WHERE ID = <id>",
};

/// Each list, its name column, and the references to it: table, column. Empty where no references are counted or
/// moved.
const struct {
    const char *list, *name;
    std::vector<std::pair<const char*, const char*>> references;
} lists[] = {
    {"ShippingMethods",
     "ShippingMethod",
     {{"Customers", "ShippingMethodID"},
      {"Orders", "ShippingMethodID"},
      {"PurchaseOrders", "ShippingMethodID"}}},
    {"ReferralMethods",
     "ReferralMethod",
     {{"Customers", "ReferralMethodID"}, {"Orders", "ReferralMethodID"}}},
    {"ProductTypes",
     "ProductType",
     {{"Products", "ProductTypeID"}, {"ProductRefreshHistory", "ProductTypeID"}}},
    {"Manufacturers",
     "Manufacturer",
     {{"Products", "ManufacturerID"}, {"ProductRefreshHistory", "ManufacturerID"}}},
    {"JobTypes", "JobType", {{"Jobs", "JobTypeID"}}},
    {"OrderTypes", "OrderType", {{"Orders", "OrderTypeID"}}},
    {"DeliveryRanges", "Range", {{"Orders", "DeliveryRangeID"}}},
    {"PaymentMethods", "PaymentMethod", {{"Payments", "PaymentMethodID"}}},
    {"Terms", "[Terms]", {{"Customers", "TermsID"}, {"Vendors", "TermsID"}, {"Orders", "TermsID"}}},
    {"CustomerTypes", "Name", {{"Customers", "CustomerTypeID"}}},
    {"DiscountGroups",
     "DiscountGroup",
     {{"Customers", "DiscountGroupID"},
      {"Customers", "CustomerDiscountGroupID"},
      {"ProductVendors", "DiscountGroupID"}}},
    {"SalesTaxGroups",
     "SalesTaxGroup",
     {{"Customers", "SalesTaxGroupID"},
      {"Orders", "SalesTaxGroupID"},
      {"SalesTaxGroupCodes", "SalesTaxGroupID"}}},
    {"Groups", "GroupName", {{"GroupedCustomers", "GroupID"}}},
    {"Accounts",
     "Account",
     {{"Products", "SalesAccountID"},
      {"Products", "PurchaseAccountID"},
      {"AdditionalCharges", "SalesAccountID"},
      {"AdditionalCharges", "PurchaseAccountID"}}},
    {"SalesTaxCodes", "Code", {{"SalesTaxGroupCodes", "SalesTaxCodeID"}}},
    {"Locations", "LocationName", {{"Customers", "LocationID"}, {"Orders", "LocationID"}}},
};

TEST_F(ListStatementsTest, TheDatabaseAcceptsEveryStatement) {
    for (const char* statement : statements)
        EXPECT_EQ(refusal(statement), "") << statement;
    for (const auto& [list, name, references] : lists) {
        const std::string table(list), column(name);
        for (const std::string& statement :
             {"SELECT * FROM " + table + " WHERE ID = {0}", "DELETE FROM " + table + " WHERE ID = {0}",
              "SELECT " + column + " FROM " + table + " WHERE ID = {0}",
              "SELECT ID, " + column + " FROM " + table + " WHERE ID <> {0}"}) {
            EXPECT_EQ(refusal(statement), "") << statement;
        }
        for (const auto& [from, key] : references) {
            const std::string referrer(from), by(key);
            for (const std::string& statement :
                 {"SELECT COUNT(*) AS MyCount FROM " + referrer + " WHERE " + by + " = {0}",
                  "UPDATE " + referrer + " SET " + by + " = {0} WHERE " + by + " = {1}"}) {
                EXPECT_EQ(refusal(statement), "") << statement;
            }
        }
    }
}

TEST_F(ListStatementsTest, AStatementThatTheServerRefusesFailsWithTheServersMessage) {
    EXPECT_EQ(
        refusal(
            "INSERT INTO Locations (LocationName,Email,WebSite,Phone1Label,Phone1,Phone2Label,Phone2,Phone3Label,"
            "Phone3,Phone4Label,Phone4,ShipToAddress1,ShipToAddress2,ShipToCity,ShipToState,ShipToZip,ShipToCountry,"
            "ValidateAddresses,StoreNumber,MarketName,MarketName,Region) "
            "VALUES('<name>','<email>','<web>','<p1l>','<p1>','<p2l>','<p2>','<p3l>','<p3>','<p4l>','<p4>','<sa1>',"
            "'<sa2>','<sy>','<ss>','<sz>','<sc>',<validateaddresses>,'<sno>','<mno>','<mname>','<reg>')"),
        "The column name 'MarketName' is specified more than once in the SET clause or column list of an INSERT. A column cannot be assigned more than one value in the same clause.");
}

TEST_F(ListStatementsTest, TheDemonstrationCompanyUsesItsLists) {
    Company demonstration(folder_.file("demonstration.company"));
    const auto found = [&](const std::string& sql) { return rows(demonstration, sql); };
    for (const auto& [list, name, references] : lists) {
        for (const auto& [from, key] : references) {
            const std::string table(from), column(key);
            const std::string used = found("SELECT COUNT(*) FROM " + table + " INNER JOIN " + list + " ON " +
                                           list + ".ID = " + table + "." + column);
            EXPECT_NE(used, "0") << table << "." << column;
            const std::string dangling = found(
                "SELECT COUNT(*) FROM " + table + " LEFT JOIN " + list + " ON " + list + ".ID = " + table +
                "." + column + " WHERE NOT " + table + "." + column + " IS NULL AND " + list + ".ID IS NULL");
            EXPECT_EQ(dangling, "0") << table << "." << column;
        }
    }
    // each list that refuses to delete used rows has a row that can be deleted
    for (const char* list : {"ProductTypes", "Manufacturers", "ShippingMethods", "JobTypes", "CustomerTypes",
                             "PaymentMethods", "ReferralMethods", "Locations", "Accounts", "Terms"}) {
        for (const auto& row : lists) {
            if (std::string(row.list) != list) continue;
            std::string free = std::string("SELECT COUNT(*) FROM ") + list + " WHERE NOT ID IS NULL";
            for (const auto& [from, key] : row.references) {
                free += std::string(" AND NOT EXISTS (SELECT ID FROM ") + from + " WHERE " + key + " = " +
                        list + ".ID)";
            }
            EXPECT_NE(found(free), "0") << list;
        }
    }
    EXPECT_EQ(found("SELECT FriendlyAccountType FROM vwScreen_Accounts WHERE ID IN (1, 7)"),
              "Sales;Purchase");
}

}  // namespace

}  // namespace tsln::workbench
