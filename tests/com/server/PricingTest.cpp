// Charges, bulk changes and the move of products, called through COM over a real company.

#include <gmock/gmock.h>

#include "com/edge/Wide.h"
#include "tests/com/server/OverCompany.h"

namespace tsln::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using PricingTest = OverCompany;

TEST_F(PricingTest, TheFlagCarriesTheTypeByNameAndBySlot) {
    const std::pair<LONG, const char*> types[] = {{1, "Vendor Promotions"},
                                                  {2, "Customer Promotions"},
                                                  {4, "Item Price Adjustments"},
                                                  {8, "Additional Charges"},
                                                  {256, "Item Cost Adjustments"}};
    for (const auto& [type, caption] : types) {
        const std::string title = caption;
        {
            const User user([&](WindowDriver& at) { at.press(title, "&Close"); });
            EXPECT_EQ(S_OK, callByName(library.Get(), "ShowAdditionalCharges", {variantOf(type)})) << title;
        }
        const User user([&](WindowDriver& at) { at.press(title, "&Close"); });
        VARIANT_BOOL flag = static_cast<VARIANT_BOOL>(type);
        EXPECT_EQ(S_OK, library->ShowAdditionalCharges(&flag)) << title;
        EXPECT_EQ(type, flag);
    }
    const User user([](WindowDriver& at) { at.press("Customer Promotions", "&Close"); });
    VARIANT_BOOL flag = VARIANT_TRUE;
    EXPECT_EQ(S_OK, library->ShowAdditionalCharges(&flag));
}

TEST_F(PricingTest, APromotionEnteredAsFiveIsStoredAsMinusFive) {
    LONG key = 5;
    SHORT type = 8;  // a stored charge has its own type
    LONG saved = 0;
    {
        const User user([](WindowDriver& at) {
            constexpr const char* title = "Edit Customer Promotion";
            EXPECT_EQ("Spring shutter event", at.read(title, 0));
            std::size_t valueField = 0;
            while (at.read(title, valueField) != "-10")
                ++valueField;
            at.fill(title, valueField, "5");
            at.press(title, "OK");
            at.press("Tessaline", "&Yes");  // the cost is zero
        });
        ASSERT_EQ(S_OK, library->ShowEditAdditionalCharge(&key, &type, &saved));
    }
    EXPECT_EQ(5, saved);
    EXPECT_EQ("-5", value("SELECT Value FROM AdditionalCharges WHERE ID = 5"));
    EXPECT_EQ("Additional charge 'Spring shutter event' was updated.",
              value("SELECT TOP 1 EventText FROM EventLog ORDER BY ID DESC"));
    EXPECT_THAT(ui.told, IsEmpty());
}

TEST_F(PricingTest, AnArrayOfTwoHundredCustomersIsChangedInBulkThreeOfWhichAreGone) {
    session.company().execute("DELETE FROM EventLog");
    std::string customers = "INSERT INTO Customers (ID, CustomerName, TaxExNumber) VALUES ";
    for (int ID = 1001; ID <= 1197; ++ID)
        customers += (ID == 1001 ? "(" : ", (") + std::to_string(ID) + ", 'Customer', 'X')";
    session.company().execute(customers);
    SAFEARRAY* array = SafeArrayCreateVector(VT_I4, 0, 200);
    for (LONG i = 0; i < 200; ++i) {
        LONG ID = 1001 + i;
        SafeArrayPutElement(array, &i, &ID);
    }
    com::OwnedVariant selection;
    V_VT(selection.get()) = VT_ARRAY | VT_I4;
    V_ARRAY(selection.get()) = array;
    {
        const User user([](WindowDriver& at) {
            at.tick("Bulk Change", "&Clear the tax exemption number");
            at.press("Bulk Change", "OK");
        });
        com::OwnedVariant cancelled;
        ASSERT_EQ(S_OK,
                  callByName(library.Get(), "ShowBulkChange", {variantOf(1), *selection}, cancelled.get()));
        EXPECT_EQ(VARIANT_FALSE, V_BOOL(cancelled.get()));
    }
    EXPECT_EQ("197", value("SELECT COUNT(*) FROM Customers WHERE ID > 1000 AND TaxExNumber = ''"));
    std::vector<std::string> events;
    for (const auto& row : session.company().run("SELECT EventText FROM EventLog ORDER BY ID").rows)
        events.push_back(row[0].toText());
    const std::string rest =
        "] could not have its tax exemtion number cleared via Bulk Change. More information to follow.";
    EXPECT_THAT(events,
                ElementsAre("Customer [1198" + rest, "Customer [1199" + rest, "Customer [1200" + rest));
    EXPECT_THAT(ui.told, ElementsAre(::testing::StartsWith("You are about to perform a bulk change"),
                                     ::testing::StartsWith("Problems were encountered")));
}

TEST_F(PricingTest, ProductsMoveBetweenTwoVendors) {
    LONG from = 2;
    com::OwnedVariant to;
    com::toCom("6", *to);
    VARIANT_BOOL cancelled = VARIANT_TRUE;
    {
        const User user([](WindowDriver& at) { at.press("Tessaline", "OK"); });
        ASSERT_EQ(S_OK, library->MoveProductsToVendor(&from, to.get(), &cancelled));
    }
    EXPECT_EQ(VARIANT_FALSE, cancelled);
    EXPECT_EQ("0", value("SELECT COUNT(*) FROM ProductVendors WHERE VendorID = 2 AND IsDefault <> 0"));
    EXPECT_EQ("4", value("SELECT COUNT(*) FROM ProductVendors WHERE VendorID = 6 AND IsDefault <> 0"));
}

}  // namespace
}  // namespace tsln::test
