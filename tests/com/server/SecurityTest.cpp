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

TEST_F(SecurityTest, ACopiedRoleTakesAwayARightFromTheEmployeeWhoGetsIt) {
    constexpr const char* list = "Security Roles";
    constexpr const char* editor = "Edit Security Role";
    {
        const User user([&](WindowDriver& at) {
            at.selectFirstRow(list);
            at.click(list, "Cop&y");
            for (int tries = 0;; ++tries) {  // until the copy is the selected role
                if (tries == 20) throw DriverError("The copy of the first role is not selected");
                at.press(list, "&Edit...");
                while (at.read(editor, 0).empty())
                    Sleep(20);
                if (at.read(editor, 0) == "Administrator Copy") break;
                at.press(editor, "Cancel");
            }
            at.fill(editor, 0, "Keeper of terms");
            at.selectFirstRow(editor);
            for (int row = 0; row < 60 && !at.shows(editor, "Permissions for Terms"); ++row)
                at.key(editor, VK_DOWN);
            at.tick(editor, "&Partial");
            at.tick(editor, "De&lete");
            at.press(editor, "OK");
            at.press(list, "&Close");
        });
        ASSERT_EQ(S_OK, library->ShowSecurityRoles());
    }
    EXPECT_EQ("28", value("SELECT Access FROM SecurityRoleAccess a INNER JOIN SecurityRoles r ON "
                          "r.ID = a.SecurityRoleID WHERE r.Name = 'Keeper of terms' AND a.Activity = 106"));
    LONG owen = 4, saved = 0;
    {
        const User user([](WindowDriver& at) {
            constexpr const char* title = "Edit Employee";
            while (at.read(title, 0).empty())
                Sleep(20);
            at.keyUntil(title, VK_NEXT, VK_CONTROL, [&] { return at.shows(title, "&Password:"); });
            at.fill(title, 1, "terms only");
            at.fill(title, 2, "terms only");
            at.key(title, 'P', VK_MENU);
            for (int i = 0; i < 2; ++i)
                at.key(title, VK_TAB);
            for (const int key : {VK_HOME, VK_DOWN, VK_SPACE, VK_DOWN, VK_SPACE})
                at.key(title, key);
            at.press(title, "OK");
            at.press("Tessaline", "&Yes");
        });
        ASSERT_EQ(S_OK, library->ShowEditEmployee(&owen, &saved));
    }
    EXPECT_EQ("Keeper of terms",
              value("SELECT r.Name FROM EmployeeSecurityRoles e INNER JOIN SecurityRoles r ON "
                    "r.ID = e.SecurityRoleID WHERE e.EmployeeID = 4"));

    workbench::CompanySession signedIn(folder.file("Test.company"), "owen", ui);
    EXPECT_TRUE(signedIn.needsPassword() && signedIn.acceptsPassword("terms only"));
    ComPtr<IDispatch> sharedCode = com::adopt(com::newDispatch(signedIn.sharedCode()));
    const ComPtr<ILibrary> his = newLibrary();
    ASSERT_EQ(S_OK, his->Initialize(sharedCode.GetAddressOf()));
    {
        const User user([](WindowDriver& at) {
            at.selectFirstRow("Terms");
            EXPECT_FALSE(at.isEnabled("Terms", "&Delete"));
            at.press("Terms", "&Close");
        });
        VARIANT_BOOL changed = VARIANT_FALSE;
        EXPECT_EQ(S_OK, his->ShowTerms(&changed));
    }
    EXPECT_EQ(S_OK, his->PreTerminate());
}

}  // namespace
}  // namespace tsln::test
