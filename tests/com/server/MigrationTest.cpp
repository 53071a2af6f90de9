// The migration from version 4.2, called through COM: the module creates components of the host by their names, and its
// resources hold the queries.

#include <gmock/gmock.h>

#include "com/edge/Wide.h"
#include "tests/com/server/OfferedComponent.h"
#include "tests/com/server/OverCompany.h"
#include "workbench/company/CompanyFile.h"

namespace tsln::test {
namespace {

using MigrationTest = OverCompany;

TEST_F(MigrationTest, ACompanyOfVersion42ComesOverByTheQueriesInTheModulesResources) {
    const OfferedComponent manager(session, "tslncmgr5.Library"), sql(session, "tslnsql5.Engine"),
        import(session, "tslniee5.Engine");
    const std::string old = folder.file("old.company");
    workbench::makeCompany42(old, 10'000);
    const std::string before = value("SELECT COUNT(*) FROM Customers");
    BSTR file = SysAllocString(com::toWide(old).c_str());
    SHORT kind = 2;
    VARIANT_BOOL cancelled = VARIANT_TRUE;
    EXPECT_EQ(S_OK, library->Perform42Migration(&file, &kind, &cancelled));
    SysFreeString(file);
    EXPECT_EQ(VARIANT_FALSE, cancelled) << value("SELECT TOP 1 EventText FROM EventLog ORDER BY ID DESC");
    EXPECT_EQ(std::stoi(before) + 10'000, std::stoi(value("SELECT COUNT(*) FROM Customers")));
    EXPECT_EQ("1", value("SELECT COUNT(*) FROM SalesTaxGroups WHERE SalesTaxGroup = 'O''Hare & Sons'"));
    EXPECT_THAT(ui.told, ::testing::IsEmpty());
}

}  // namespace
}  // namespace tsln::test
