#include <functional>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "automation/Object.h"
#include "shared/IdentifierList.h"

namespace tsln {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A collection that answers Count and Item as it is told to.
struct Collection : Object {
    Variant invoke(std::string_view member, Access, Arguments a) override {
        if (sameName(member, "Count")) return count;
        if (sameName(member, "Item")) return ++asked, item(a[0].toLong());
        raiseUnknownMember("Collection", member);
    }
    Variant count;
    std::function<Variant(std::int32_t)> item;
    int asked = 0;
};

std::shared_ptr<Collection> collection(Variant count, std::function<Variant(std::int32_t)> item) {
    const auto made = std::make_shared<Collection>();
    made->count = std::move(count);
    made->item = std::move(item);
    return made;
}

/// A collection of the values, the first of which has the number `first`; any other number raises.
std::shared_ptr<Collection> counted(std::int32_t first, std::vector<Variant> values) {
    const auto count = static_cast<std::int32_t>(values.size());
    return collection(count, [=](std::int32_t number) -> Variant {
        if (number < first || number >= first + count)
            throw HostError(code::badIndex, "Collection", "No item.");
        return values[static_cast<std::size_t>(number - first)];
    });
}

/// The error that reading the list raises, as its code and text.
std::pair<std::int32_t, std::string> errorOf(const Variant& list) {
    try {
        readIdentifiers(list);
    } catch (const HostError& error) {
        return {error.code(), error.text()};
    }
    return {};
}

TEST(IdentifierList, ReadsEveryFormThatAListMayHave) {
    EXPECT_THAT(readIdentifiers("3, 7,12"), ElementsAre(3, 7, 12));
    EXPECT_THAT(readIdentifiers("\t-2147483648 ,+2147483647\r\n"), ElementsAre(INT32_MIN, INT32_MAX));
    EXPECT_THAT(readIdentifiers("5"), ElementsAre(5));
    for (const Variant& number :
         {Variant(std::int16_t{9}), Variant(9), Variant(std::int64_t{9}), Variant(9.0), Variant(9.0f)})
        EXPECT_THAT(readIdentifiers(number), ElementsAre(9));
    EXPECT_THAT(readIdentifiers(counted(1, {1, "2", 3.0})), ElementsAre(1, 2, 3));
    EXPECT_THAT(readIdentifiers(counted(0, {1, 2, 3})), ElementsAre(1, 2, 3));
    // A collection counted from 1 may answer Item(0) with no value instead of raising.
    for (const Variant& none : {Variant(), Variant(Null()), Variant(ObjectPtr())}) {
        EXPECT_THAT(
            readIdentifiers(collection(1, [&](std::int32_t i) { return i == 0 ? none : Variant(8); })),
            ElementsAre(8));
    }
    for (const Variant& empty : {Variant(), Variant(Null()), Variant(Missing()), Variant(ObjectPtr()),
                                 Variant(""), Variant(" \n"), Variant(counted(1, {}))})
        EXPECT_THAT(readIdentifiers(empty), IsEmpty());
}

TEST(IdentifierList, RefusesWhatIsNoIdentifierAndTellsWhere) {
    const struct {
        Variant element;
        std::int32_t code;
    } cases[] = {
        {"", code::typeMismatch},
        {"x", code::typeMismatch},
        {"2.5", code::typeMismatch},
        {"+-2", code::typeMismatch},
        {"2 3", code::typeMismatch},
        {std::string("2\0", 2), code::typeMismatch},
        {2.5, code::typeMismatch},
        {std::numeric_limits<double>::quiet_NaN(), code::typeMismatch},
        {true, code::typeMismatch},
        {Date{3}, code::typeMismatch},
        {Variant(), code::typeMismatch},
        {Null(), code::typeMismatch},
        {counted(1, {1}), code::typeMismatch},
        {"2147483648", code::overflow},
        {"-99999999999999999999", code::overflow},
        {std::int64_t{INT32_MIN} - 1, code::overflow},
        {2147483648.0, code::overflow},
        {2147483648.0f, code::overflow},
        {std::numeric_limits<double>::infinity(), code::overflow},
    };
    for (const auto& [element, code] : cases) {
        const auto [raised, text] = errorOf(counted(1, {7, 8, element}));
        EXPECT_EQ(raised, code) << text;
        EXPECT_THAT(text, HasSubstr("Identifier 3 of the list"));
    }
    for (const char* text : {"1,,2", "1,2,", ",", "1;2", "1 2"})
        EXPECT_EQ(errorOf(text).first, code::typeMismatch) << text;
    EXPECT_EQ(errorOf(true).first, code::typeMismatch);
}

TEST(IdentifierList, SurvivesHostileCollections) {
    const auto one = [](std::int32_t) { return Variant(1); };
    for (const Variant& count :
         {Variant(-1), Variant(INT32_MAX), Variant(1e300), Variant(mostIdentifiers + 1),
          Variant(std::numeric_limits<double>::quiet_NaN())}) {
        const auto hostile = collection(count, one);
        EXPECT_EQ(errorOf(hostile).first, code::badIndex);
        EXPECT_EQ(hostile->asked, 0);
    }
    EXPECT_EQ(errorOf(collection("many", one)).first, code::typeMismatch);
    EXPECT_EQ(errorOf(collection(Null(), one)).first, code::typeMismatch);
    // A Count that promises more than Item gives costs one call, not memory for all.
    const auto liar = collection(
        mostIdentifiers, [](std::int32_t) -> Variant { throw HostError(code::fail, "Collection", "down"); });
    EXPECT_EQ(errorOf(liar), std::pair(code::fail, std::string("down")));
    EXPECT_EQ(liar->asked, 2);
    struct Nameless : Object {
        Variant invoke(std::string_view member, Access, Arguments) override {
            raiseUnknownMember("x", member);
        }
    };
    EXPECT_EQ(errorOf(std::make_shared<Nameless>()).first, code::unknownName);
    EXPECT_EQ(errorOf(std::string(3 * mostIdentifiers, ',')).first, code::typeMismatch);
    std::string longList = "1";
    for (std::int32_t i = 0; i < mostIdentifiers; ++i)
        longList += ",1";
    EXPECT_EQ(errorOf(longList).first, code::badIndex);
}

}  // namespace
}  // namespace tsln
