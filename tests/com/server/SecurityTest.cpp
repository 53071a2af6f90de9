// Security roles and employees, edited through COM over a real company.

#include <gmock/gmock.h>

#include "tests/com/server/OverCompany.h"

namespace tsln::test {
namespace {

using SecurityTest = OverCompany;

TEST_F(SecurityTest, ARoleIsRenamedAndTheListClosed) {
    LONG role = 3, saved = 0;
    {
        const User user([](WindowDriver& at) {
            at.fill("Edit Security Role", 0, "Sellers");
            at.press("Edit Security Role", "OK");
        });
        ASSERT_EQ(S_OK, library->ShowEditSecurityRole(&role, &saved));
    }
    EXPECT_EQ(3, saved);
    EXPECT_EQ("Sellers", value("SELECT Name FROM SecurityRoles WHERE ID = 3"));
    const User user([](WindowDriver& at) { at.press("Security Roles", "&Close"); });
    EXPECT_EQ(S_OK, callByName(library.Get(), "ShowSecurityRoles", {}));
}

TEST_F(SecurityTest, AnEmployeeIsRenamedAndBecomesTheDefaultSalesRep) {
    LONG employee = 3, saved = 0;
    {
        const User user([](WindowDriver& at) {
            at.fill("Edit Employee", 0, "Priyanka");
            at.press("Edit Employee", "OK");
            at.press("Tessaline", "&Yes");  // the default sales rep
        });
        ASSERT_EQ(S_OK, library->ShowEditEmployee(&employee, &saved));
    }
    EXPECT_EQ(3, saved);
    EXPECT_EQ("Priyanka", value("SELECT FirstName FROM Employees WHERE ID = 3"));
    EXPECT_EQ("3", value("SELECT OptionValue FROM CompanyOptions WHERE OptionName = 'DefaultSalesRep'"));
    const User user([](WindowDriver& at) { at.press("Edit Employee", "Cancel"); });
    ASSERT_EQ(S_OK, library->ShowEditEmployee(&employee, &saved));
    EXPECT_EQ(0, saved);
}

}  // namespace
}  // namespace tsln::test
