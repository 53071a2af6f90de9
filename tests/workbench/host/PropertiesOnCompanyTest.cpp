#include <map>

#include <gmock/gmock.h>

#include "properties/DatabaseProperties.h"
#include "tests/workbench/host/HostStage.h"

namespace tsln::workbench {
namespace {

using properties::DatabaseProperties;
using testing::IsEmpty;
using testing::MatchesRegex;

/// Shows the screen and returns its values by caption; captions that occur twice have the category before them.
std::map<std::string, std::string> valuesOf(ModuleStage& stage) {
    std::map<std::string, std::string> values;
    stage.desktop.user<DatabaseProperties>("frmDatabaseProperties", [&](DatabaseProperties& screen) {
        const auto& items = screen.grdProperties.items();
        for (const auto& item : items) {
            if (item.isCategory) continue;
            values[items[*item.parent].caption + "/" + item.caption] = item.value;
        }
        EXPECT_EQ(screen.ProgressBar1.value(), screen.ProgressBar1.maximum()) << "a row could not be read";
    });
    stage.library->ShowDatabaseProperties();
    return values;
}

TEST(PropertiesOnCompany, EveryRowHasAValueThatAgreesWithTheTables) {
    ModuleStage stage;
    stage.run(
        "INSERT INTO EventLog (EventDate, EventType) VALUES ('2024-05-06T07:08:09', 1), ('2023-01-02T03:04:05', 3)");
    stage.run(
        "INSERT INTO Groups (GroupName, GroupType, AddedOn) VALUES ('Not of customers', 2, '2030-01-01T00:00:00')");
    stage.run(
        "INSERT INTO Vendors (VendorName, AddedOn, Active) VALUES ('Zu''ber & <So>', '2031-12-24T10:00:00', 0)");
    stage.run(
        "INSERT INTO Attachments (OriginalFileName, EmployeeID, AddedOn) VALUES ('Plan \xC3\xA9.pdf', 1, '2032-02-29T23:59:59')");
    const auto values = valuesOf(stage);
    EXPECT_EQ(values.size(), 107U);
    for (const auto& [caption, value] : values)
        EXPECT_FALSE(value.empty()) << caption;
    const std::pair<const char*, const char*> counted[] = {
        {"Employees/Disabled Employees", "SELECT COUNT(*) FROM Employees WHERE Active = 0"},
        {"Vendors/OOP Vendors", "SELECT COUNT(*) FROM Vendors WHERE OOP_VendorID <> ''"},
        {"Additional Charges/Total Item Price Adjustments",
         "SELECT COUNT(*) FROM AdditionalCharges WHERE ChargeType = 4"},
        {"Customer Measurments/Total Measurements", "SELECT COUNT(*) FROM CustomerMeasurements"},
        {"Customer Groups/Total Groups", "SELECT COUNT(*) FROM Groups WHERE GroupName <> 'Not of customers'"},
        {"Attachments/Quote/Sale/Order Attachments", "SELECT COUNT(*) FROM Attachments WHERE OrderID > 0"},
        {"Discount Groups/Vendor Discount Groups",
         "SELECT COUNT(*) FROM DiscountGroups WHERE DiscountGroupType = 1"},
        {"Discounts/Tier-Level Discounts", "SELECT COUNT(*) FROM Discounts WHERE TierLevel <> ''"},
        {"Lists/Option Detail Settings", "SELECT COUNT(*) FROM OptionDetailSettings"},
        {"Email/Total Sent Messages", "SELECT COUNT(*) FROM SentMessages"},
    };
    for (const auto& [caption, sql] : counted)
        EXPECT_EQ(values.at(caption), stage.value(sql)) << caption;
    EXPECT_EQ(values.at("Current Connection/Database"), "test.company");
    EXPECT_THAT(values.at("Current Connection/Database Size"), MatchesRegex(".+\\... MB"));
    EXPECT_EQ(values.at("File Locations/Attachments"), values.at("File Locations/Company Files"));
    EXPECT_EQ(values.at("Vendors/Newest Vendor"), "Zu'ber & <So> (12/24/2031)");
    EXPECT_EQ(values.at("Events/Newest Event"), "05/06/2024");
    EXPECT_EQ(values.at("Events/Most Recent Warning"), "01/02/2023");
    EXPECT_EQ(values.at("Events/Total Notices"), "0");
    EXPECT_EQ(values.at("Attachments/Newest Attachments"), "Plan \xC3\xA9.pdf (2032-02-29)");
    EXPECT_EQ(values.at("Employees/Oldest Employees"), "Dana Whitfield (06/30/2021)");
    EXPECT_THAT(values.at("Customer Groups/Newest Group"), MatchesRegex(".+ \\(.+/.+/.+\\)"));
    EXPECT_EQ(stage.value("SELECT COUNT(*) FROM EventLog"), "2") << "nothing is recorded";
    EXPECT_THAT(stage.ui.shown, IsEmpty());
    EXPECT_THAT(stage.desktop.boxes, IsEmpty());
}

TEST(PropertiesOnCompany, EmptyTablesHaveCountsOfZeroAndEmptyNames) {
    ModuleStage stage;
    for (const char* table : {"Customers", "CustomerMeasurements", "SentMessages", "Attachments", "Products"})
        stage.run(std::string("DELETE FROM ") + table);
    const auto values = valuesOf(stage);
    for (const char* zero : {"Customers/Total Customers", "Events/Total Events", "Email/Total Sent Messages"})
        EXPECT_EQ(values.at(zero), "0");
    for (const char* empty : {"Customers/Newest Customer", "Events/Newest Event", "Events/Most Recent Error",
                              "Products/Most recently updated", "Email/Most recently sent"})
        EXPECT_EQ(values.at(empty), "");
}

}  // namespace
}  // namespace tsln::workbench
