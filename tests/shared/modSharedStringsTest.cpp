#include <gtest/gtest.h>

#include "shared/modSharedStrings.h"

namespace tsln::modSharedStrings {
namespace {

TEST(Strings, TrimTakesSpacesOnly) {
    EXPECT_EQ(trim("  a b  "), "a b");
    EXPECT_EQ(trim("   "), "");
    EXPECT_EQ(trim(""), "");
    EXPECT_EQ(trim(" \ta\n "), "\ta\n");
}

TEST(Strings, LowerCaseKnowsTheEuropeanAlphabets) {
    const struct {
        std::string_view text;
        std::string_view lower;
    } cases[] = {
        {"STANDARD 123 [{", "standard 123 [{"},
        {"ÀÖØÞ ×÷ß àöøþÿ", "àöøþ ×÷ß àöøþÿ"},
        {"ĀāĮįĲĶĹŇňŊŶŸŹŽž", "āāįįĳķĺňňŋŷÿźžž"},
        {"İıĸŉſ", "İıĸŉſ"},
        {"ΑΡΣΩαω ЁАЯё", "αρσωαω ёаяё"},
        {"€ 漢字 😀", "€ 漢字 😀"},
        {"\xC3", "\xC3"},
        {"\xC3(\xFF\x80"
         "A",
         "\xC3(\xFF\x80"
         "a"},
        {"\xC0\x80", "\xC0\x80"},
    };
    for (const auto& [text, lower] : cases) {
        EXPECT_EQ(toLower(text), lower);
        EXPECT_TRUE(equalNoCase(text, lower));
    }
}

TEST(Strings, CompareWithoutLetterCase) {
    constexpr std::string_view ascending[] = {"", "A", "ab", "B", "Étage", "ж", "€", "漢", "😀"};
    for (std::size_t i = 0; i < std::size(ascending); ++i) {
        for (std::size_t j = 0; j < std::size(ascending); ++j) {
            const int expected = i < j ? -1 : i > j ? 1 : 0;
            EXPECT_EQ(compareNoCase(ascending[i], toLower(ascending[j])), expected)
                << ascending[i] << ascending[j];
        }
    }
}

TEST(Strings, PathSeparatorIsThereOnce) {
    EXPECT_EQ(appendPathSeparator("/data/company/"), "/data/company/");
    EXPECT_EQ(appendPathSeparator("C:\\data\\"), "C:\\data\\");
    EXPECT_EQ(appendPathSeparator(""), "");
    const std::string path = appendPathSeparator("/data");
    EXPECT_EQ(path.size(), 6u);
    EXPECT_EQ(appendPathSeparator(path), path);
}

}  // namespace
}  // namespace tsln::modSharedStrings
