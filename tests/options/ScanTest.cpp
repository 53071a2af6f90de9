#include "options/ScanProducts.h"
#include "options/Sequence.h"
#include "screens/Job.h"
#include "tests/options/Products.h"

namespace tsln::test {
namespace {

using options::ScanProducts;

constexpr auto countProducts = "SELECT COUNT(*) AS theCount FROM Products WHERE Active <> 0";
constexpr auto readProducts = "SELECT ID, Product FROM Products WHERE Active <> 0 ORDER BY Product";

void furnish(Stage& stage, const std::vector<std::string>& names) {
    std::string rows = "<Records>";
    for (std::size_t i = 0; i < names.size(); ++i)
        rows += "<Record><ID>" + std::to_string(i + 1) + "</ID><Product>" + names[i] + "</Product></Record>";
    stage.host->rows(readProducts, rows + "</Records>");
    stage.host->on("Database.ExecuteScaler", [count = names.size()](Arguments a) {
        EXPECT_EQ(a[0].toText(), countProducts);
        return Variant(static_cast<std::int32_t>(count));
    });
}

std::string insert(int location, const std::string& name, const std::string& prefix, int sequence) {
    const std::string at = std::to_string(location);
    return "INSERT INTO OptionDetailSettings (Location,Show,OptionName,Prefix,Sequence) VALUES(" + at +
           ",1,'" + name + "','" + prefix + "'," + std::to_string(sequence) + ")";
}

std::string not_(const std::string& product, const std::string& why) {
    return "The product '" + product + "' won't be scanned for product detail settings becuase " + why;
}

TEST(ScanProducts, AddsTheOptionsThatHaveNoSettingYet) {
    struct Case {
        const char* option;
        std::vector<std::string> inserts;
        std::vector<std::string> events;
    };
    const auto tooLong = [](const char* name, const char* prefix) {
        return "The option '" + std::string(name) +
               "' will not be added to Option Detail Settings because it's prefix, '" + prefix +
               "', is too long.";
    };
    const Case cases[] = {
        {"Name='Pattern' DescriptionPrefix='P' DescriptionPrefix2='Q' Sequence='4'",
         {insert(0, "Pattern", "P", 4), insert(1, "Pattern", "Q", 4)},
         {}},
        {"Name='It&apos;s &lt;b&gt; {{1}}' DescriptionPrefix='&quot;&apos;'",
         {insert(0, "It''s <b> {{1}}", "\"''", 9999), insert(1, "It''s <b> {{1}}", "", 9999)},
         {}},
        {"Name='One' ShowInDescription='False' Sequence='x'", {insert(1, "One", "", 9999)}, {}},
        {"Name='Two' ShowInDescription2='no' ShowInDescription='1' Sequence='12345'",
         {insert(0, "Two", "", 9999)},
         {}},
        {"Name='None' ShowInDescription2='0' ShowInDescription='false'", {}, {}},
        {"Name='Sixteen' DescriptionPrefix='1234567890123456' DescriptionPrefix2='12345678901234567'",
         {insert(0, "Sixteen", "1234567890123456", 9999)},
         {tooLong("Sixteen", "12345678901234567")}},
        {"Name='Signs' DescriptionPrefix='\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9'",
         {insert(0, "Signs", "\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9",
                 9999),
          insert(1, "Signs", "", 9999)},
         {}},
        {"Name='listed' DescriptionPrefix='another' ShowInDescription2='0'", {}, {}},
        {"Name='listed' DescriptionPrefix='much longer than allowed' ShowInDescription2='0'", {}, {}},
        {"Name='visualizeColour'", {}, {}},
        {"Name='c_h_anything'", {}, {}},
        {"Name='C_R_x'", {}, {}},
        {"Name='C_t_x'", {}, {}},
        {"Name='C_X_x' ShowInDescription2='0'", {insert(0, "C_X_x", "", 9999)}, {}},
        {"Name=''", {}, {}},
        {"", {}, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.option);
        Stage stage;
        Products products(stage);
        furnish(stage, {"Blind"});
        products.documents[1] = Products::withOptions({c.option});
        stage.host->on("TSLNSQL.ExecuteScaler", [](Arguments a) {
            return Variant(a[0].toText() ==
                                   "SELECT COUNT(*) AS theCount FROM OptionDetailSettings WHERE "
                                   "Location = 0 AND OptionName = 'listed'"
                               ? 1
                               : 0);
        });
        stage.library->ScanForOptionDetailSettings();
        EXPECT_EQ(stage.host->callsOf("TSLNSQL.ExecuteNonQuery"), c.inserts);
        EXPECT_EQ(stage.host->callsOf("RecordEvent"), c.events);
    }
}

TEST(ScanProducts, LogsProductsThatCannotBeReadAndGoesOn) {
    Stage stage;
    Products products(stage);
    furnish(stage, {"Missing", "Refused", "None", "Empty", "Cut", "Raising", "Bare", "Good", "Failing"});
    products.documents = {{2, Products::refused},
                          {3, Products::nothing},
                          {4, ""},
                          {5, "<Product><Styles><Style"},
                          {6, "raises"},
                          {7, "<Product><Styles/></Product>"},
                          {8, Products::withOptions({"Name='A' ShowInDescription2='0'"})},
                          {9, Products::withOptions({"Name='B' ShowInDescription2='0'", "Name='C'"})}};
    stage.host->on("catalog5engine.Engine.InitForAccess", [&](Arguments) -> Variant {
        if (stage.host->callsOf("catalog5engine.Engine.UseProductFile").back() == "/products/6, False")
            throw HostError(code::fail, "Engine", "broken");
        return {};
    });
    stage.host->on("TSLNSQL.ExecuteNonQuery",
                   [](Arguments a) { return Variant(a[0].toText().find("'B'") == std::string::npos); });
    stage.host->on("TSLNSQL.ExecuteScaler", [](Arguments a) -> Variant {
        if (a[0].toText().ends_with("'C'")) throw HostError(code::fail, "SQL", "in use");
        return 0;
    });
    stage.library->ScanForOptionDetailSettings();
    const std::string unreadable = "the system cannot identify product information in the product.";
    EXPECT_THAT(stage.host->callsOf("RecordEvent"),
                ElementsAre(not_("Missing", "it does not exist."),
                            not_("Refused", "you don't have permission to use this product."),
                            not_("None", unreadable), not_("Empty", unreadable), not_("Cut", unreadable),
                            not_("Raising", unreadable),
                            "The option 'B' could not be added to Option Detail Settings.",
                            "The product 'Failing' was not scanned completely: in use"));
    EXPECT_THAT(stage.host->callsOf("TSLNSQL.ExecuteNonQuery"),
                ElementsAre(insert(0, "A", "", 9999), insert(0, "B", "", 9999)));
    EXPECT_THAT(stage.host->callsOf("catalog5engine.Engine.IdentifyUser"), ElementsAre(Products::whoReads));
    for (const char* object : {"catalog5engine.Engine.PreTerminate", "TSLNSQL.PreTerminate"})
        EXPECT_EQ(stage.host->callsOf(object).size(), 1U);
    EXPECT_FALSE(stage.told());
}

TEST(ScanProducts, ShowsProgressAndKeepsWhatItAddedBeforeItWasCancelled) {
    Stage stage;
    Products products(stage);
    furnish(stage, {"First &amp; best", "Second", "Third", "Fourth"});
    for (int i = 1; i <= 4; ++i)
        products.documents[i] = Products::withOptions({"Name='A'"});
    ScanProducts screen(*stage.library);
    std::vector<std::string> seen;
    const auto file = [&](Arguments a) -> Variant {
        seen.push_back(screen.lblProduct.caption() + " " + std::to_string(screen.ProgressBar1.value()) + "/" +
                       std::to_string(screen.ProgressBar1.maximum()));
        if (a[0].toLong() == 3) screen.cmdCancel.userPress(), screen.job()->userCancel();
        return "/products/" + std::to_string(a[0].toLong());
    };
    stage.host->on("Common.GetProductFileFromID2", file);
    ASSERT_TRUE(screen.prepare());
    screen.load();
    screen.showModal();
    EXPECT_THAT(seen, ElementsAre("First && best 0/4", "Second 1/4", "Third 2/4"));
    EXPECT_EQ(stage.host->callsOf("TSLNSQL.ExecuteNonQuery").size(), 6U) << "the third product is finished";
    EXPECT_EQ(stage.host->callsOf("TSLNSQL.PreTerminate").size(), 1U);
    EXPECT_FALSE(screen.shown());
}

TEST(ScanProducts, ReadsAProductOfTenThousandOptions) {
    Stage stage;
    Products products(stage);
    furnish(stage, {"Many"});
    std::string many = "<Product><Styles><Style><Options>";
    for (int i = 0; i < 10'000; ++i)
        many += "<Option Name='Option " + std::to_string(i) + "' ShowInDescription2='False'/>";
    products.documents[1] = many + "</Options></Style></Styles></Product>";
    stage.library->ScanForOptionDetailSettings();
    const auto added = stage.host->callsOf("TSLNSQL.ExecuteNonQuery");
    ASSERT_EQ(added.size(), 10'000U);
    EXPECT_EQ(added.back(), insert(0, "Option 9999", "", 9999));
}

TEST(ScanProducts, WithoutProductsOrReaderNothingIsShown) {
    {
        Stage stage;
        furnish(stage, {});
        stage.library->ScanForOptionDetailSettings();
        EXPECT_THAT(stage.desktop.shown, IsEmpty());
        EXPECT_EQ(stage.host->callsOf("catalog5engine.Engine.PreTerminate").size(), 1U);
        EXPECT_EQ(stage.host->callsOf("TSLNSQL.PreTerminate").size(), 1U);
        EXPECT_FALSE(stage.told());
    }
    for (const bool raises : {true, false}) {
        Stage stage;
        furnish(stage, {"Blind"});
        stage.desktop.components = [raises](std::string_view) -> ObjectPtr {
            if (raises) throw HostError(code::classNotRegistered, "Desktop", "not registered");
            return nullptr;
        };
        stage.library->ScanForOptionDetailSettings();
        EXPECT_THAT(stage.desktop.shown, IsEmpty());
        EXPECT_EQ(stage.host->callsOf("TSLNSQL.PreTerminate").size(), 1U);
        EXPECT_TRUE(stage.told());
    }
}

TEST(ScanProducts, EveryHostFaultIsToldOrLogged) {
    sweepFaults([](Stage& stage) {
        Products products(stage);
        furnish(stage, {"First", "Second"});
        products.documents = {{1, Products::withOptions({"Name='A'"})},
                              {2, Products::withOptions({"Name='B'"})}};
        stage.library->ScanForOptionDetailSettings();
    });
}

TEST(SequenceNumbers, FollowTheHighestAndThenFillTheGaps) {
    using options::SequenceNumbers;
    const auto next = [](std::initializer_list<std::int32_t> used, int count) {
        SequenceNumbers numbers;
        for (const std::int32_t number : used)
            numbers.use(number);
        std::vector<std::int32_t> given;
        for (int i = 0; i < count; ++i)
            given.push_back(numbers.next().value_or(-1));
        return given;
    };
    EXPECT_THAT(next({}, 2), ElementsAre(1, 2));
    EXPECT_THAT(next({3, 1, 9999, -4, 20000}, 2), ElementsAre(4, 5));
    EXPECT_THAT(next({9997, 1, 3}, 4), ElementsAre(9998, 2, 4, 5));
    SequenceNumbers full;
    for (std::int32_t number = 1; number < 9999; ++number)
        EXPECT_EQ(full.next(), number);
    EXPECT_EQ(full.next(), std::nullopt);
}

}  // namespace
}  // namespace tsln::test
