// The type of the charges that a flag carries, called through COM over a real company.

#include <gmock/gmock.h>

#include "tests/com/server/OverCompany.h"

namespace tsln::test {
namespace {

using PricingTest = OverCompany;

TEST_F(PricingTest, TheFlagCarriesTheTypeByNameAndBySlot) {
    const auto closing = [](const char* title) {
        return [title](WindowDriver& at) { at.press(title, "&Close"); };
    };
    const std::pair<LONG, const char*> types[] = {{1, "Vendor Promotions"}, {256, "Item Cost Adjustments"}};
    for (const auto& [type, title] : types) {
        {
            const User user(closing(title));
            EXPECT_EQ(S_OK, callByName(library.Get(), "ShowAdditionalCharges", {variantOf(type)})) << title;
        }
        const User user(closing(title));
        VARIANT_BOOL flag = static_cast<VARIANT_BOOL>(type);
        EXPECT_EQ(S_OK, library->ShowAdditionalCharges(&flag)) << title;
        EXPECT_EQ(type, flag);
    }
    const User user(closing("Customer Promotions"));
    VARIANT_BOOL flag = VARIANT_TRUE;
    EXPECT_EQ(S_OK, library->ShowAdditionalCharges(&flag));
}

}  // namespace
}  // namespace tsln::test
