// Customers, their orders and the company, edited through COM over a real company.

#include <gmock/gmock.h>

#include "tests/com/server/OverCompany.h"

namespace tsln::test {
namespace {

using CustomerTest = OverCompany;

constexpr std::size_t name = 0, company = 1;  // fields of the customer's first page

TEST_F(CustomerTest, ACustomerIsAddedAndChangedWithItsHistory) {
    LONG none = 0, added = 0, changed = 0;
    {
        const User user([](WindowDriver& at) {
            at.fill("New Customer", name, "Anna M. O'Quay");
            at.press("New Customer", "OK");
        });
        ASSERT_EQ(S_OK, library->ShowEditCustomer(&none, &added));
    }
    ASSERT_GT(added, 0);
    const std::string number = std::to_string(added);
    EXPECT_EQ("Anna M. O'Quay", value("SELECT CustomerName FROM Customers WHERE ID = " + number));
    {
        const User user([](WindowDriver& at) {
            at.fill("Edit Customer", company, "Quayside Interiors");
            at.press("Edit Customer", "OK");
        });
        ASSERT_EQ(S_OK, library->ShowEditCustomer(&added, &changed));
    }
    EXPECT_EQ(added, changed);
    EXPECT_EQ("Customer updated:\r\nCompanyName:  to Quayside Interiors",
              value("SELECT TOP 1 Activity FROM CustomerActivity WHERE CustomerID = " + number +
                    " ORDER BY ID DESC"));
}

TEST_F(CustomerTest, TheCompanyIsRenamedAndAnUpdateOfOrdersCancelled) {
    LONG customer = 1;
    {
        const User user([](WindowDriver& at) { at.press("Update Order Information", "Cancel"); });
        ASSERT_EQ(S_OK, library->ShowUpdateOrderInformation(&customer));
    }
    const User user([](WindowDriver& at) {
        at.fill("Edit Company", 0, "Lanternlight & Daughters");
        at.press("Edit Company", "OK");
    });
    VARIANT_BOOL cancelled = VARIANT_TRUE;
    ASSERT_EQ(S_OK, library->ShowEditCompany(&cancelled));
    EXPECT_EQ("Lanternlight & Daughters", value("SELECT Name FROM Company"));
}

}  // namespace
}  // namespace tsln::test
