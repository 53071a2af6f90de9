// The migration from version 4.2, called through COM.

#include <gmock/gmock.h>

#include "com/edge/Wide.h"
#include "tests/com/server/OfferedComponent.h"
#include "tests/com/server/OverCompany.h"
#include "workbench/company/CompanyFile.h"

namespace tsln::test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

class MigrationTest : public OverCompany {
  protected:
    VARIANT_BOOL migrate(const std::string& path, SHORT kind) {
        BSTR file = SysAllocString(com::toWide(path).c_str());
        VARIANT_BOOL cancelled = VARIANT_FALSE;
        EXPECT_EQ(S_OK, library->Perform42Migration(&file, &kind, &cancelled));
        SysFreeString(file);
        return cancelled;
    }

    OfferedComponent manager_{session, "tslncmgr5.Library"};
    OfferedComponent sql_{session, "tslnsql5.Engine"};
    OfferedComponent import_{session, "tslniee5.Engine"};
};

TEST_F(MigrationTest, ACompanyOfVersion42ComesOverByTheQueriesInTheModulesResources) {
    const std::string old = folder.file("old.company");
    workbench::makeCompany42(old, 10'000);
    const std::string before = value("SELECT COUNT(*) FROM Customers");
    EXPECT_EQ(VARIANT_FALSE, migrate(old, 2))
        << value("SELECT TOP 1 EventText FROM EventLog ORDER BY ID DESC");
    EXPECT_EQ(std::stoi(before) + 10'000, std::stoi(value("SELECT COUNT(*) FROM Customers")));
    EXPECT_EQ("1", value("SELECT COUNT(*) FROM SalesTaxGroups WHERE SalesTaxGroup = 'O''Hare & Sons'"));
    EXPECT_THAT(ui.told, IsEmpty());
}

TEST_F(MigrationTest, AMissingCompanyIsToldAndTheUserCancelsALongImport) {
    {
        const User user([](WindowDriver& at) { at.press("Tessaline", "OK"); });
        EXPECT_EQ(VARIANT_TRUE, migrate(folder.file("missing.company"), 1));
    }
    const std::string old = folder.file("old.company");
    workbench::makeCompany42(old, 30'000);
    const User user([](WindowDriver& at) { at.press("Migrate From Version 4.2", "Cancel"); });
    EXPECT_EQ(VARIANT_TRUE, migrate(old, 2));
    EXPECT_LT(std::stoi(value("SELECT COUNT(*) FROM Customers")), 30'000);
}

}  // namespace
}  // namespace tsln::test
