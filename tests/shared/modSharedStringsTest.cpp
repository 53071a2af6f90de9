#include <gtest/gtest.h>

#include "automation/UnicodeText.h"
#include "shared/modSharedStrings.h"

namespace tsln::modSharedStrings {
namespace {

TEST(Strings, TrimTakesSpacesOnly) {
    EXPECT_EQ(trim("  a b  "), "a b");
    EXPECT_EQ(trim("   "), "");
    EXPECT_EQ(trim(""), "");
    EXPECT_EQ(trim(" \ta\n "), "\ta\n");
}

TEST(Strings, LowerCaseChangesLettersOnly) {
    const struct {
        std::string_view text;
        std::string_view lower;
    } cases[] = {
        {"STANDARD 123 [{", "standard 123 [{"},
        {"ÀÖØÞ ×÷ß àöøþÿ", "àöøþ ×÷ß àöøþÿ"},
        {"ĀāĮįĲĶĹŇňŊŶŸŹŽž", "āāįįĳķĺňňŋŷÿźžž"},
        {"İıĸŉſ", "İıĸŉſ"},
        {"ΑΡΣΩαω ЁАЯё ԱՖ Ａ", "αρσωαω ёаяё աֆ ａ"},
        {"€ 漢字 😀", "€ 漢字 😀"},
        {"\xC3", "\xC3"},
        {"\xC3(\xFF\200A", "\xC3(\xFF\200a"},
        {"\xC0\x80", "\xC0\x80"},
    };
    for (const auto& [text, lower] : cases) {
        EXPECT_EQ(toLower(text), lower);
        EXPECT_TRUE(equalNoCase(text, lower));
    }
}

TEST(Strings, UpperCaseChangesLettersOnly) {
    EXPECT_EQ(toUpper("standard 123 [{"), "STANDARD 123 [{");
    EXPECT_EQ(toUpper("é à ÿ ÷ ςσ ё 漢 \xC3(\xFF"), "É À Ÿ ÷ ΣΣ Ё 漢 \xC3(\xFF");
}

TEST(Strings, FoldedTextsAreSearchedWithoutLetterCase) {
    const auto contains = [](std::string_view text, std::string_view searched) {
        return foldCase(text).find(foldCase(searched)) != std::string::npos;
    };
    EXPECT_TRUE(contains("Größe XL", "GRÖẞE x"));
    EXPECT_TRUE(contains("ΟΔΟΣ 5", "οδος"));
    EXPECT_TRUE(contains("a\377B", "\377b"));
    EXPECT_FALSE(contains("Grosse", "ß"));
    EXPECT_FALSE(contains("\xC3", "\xC3\xA9"));
}

/// Texts in ascending order. Bytes that are no UTF-8 come last.
constexpr std::string_view ascending[] = {"",        std::string_view("\0", 1),
                                          "\x01",    " ",
                                          "A",       "ab",
                                          "a\xFF",   "B",
                                          "Étage",   "ж",
                                          "€",       "漢",
                                          "😀",       "\x80",
                                          "\xC3",    "\377a",
                                          "\xFF\xFF"};

TEST(Strings, CompareWithoutLetterCase) {
    for (std::size_t i = 0; i < std::size(ascending); ++i) {
        for (std::size_t j = 0; j < std::size(ascending); ++j) {
            const int expected = i < j ? -1 : i > j ? 1 : 0;
            EXPECT_EQ(compareNoCase(ascending[i], toLower(ascending[j])), expected)
                << ascending[i] << ascending[j];
        }
    }
}

TEST(Strings, SortKeysOrderAsTheTextsDo) {
    const auto key = [](std::string_view text) {
        std::string bytes(sortKeySize(text), '\0');
        bytes.resize(static_cast<std::size_t>(writeSortKey(bytes.data(), text) - bytes.data()));
        EXPECT_EQ(bytes.find('\0'), std::string::npos);
        return bytes;
    };
    for (std::size_t i = 1; i < std::size(ascending); ++i)
        EXPECT_LT(key(ascending[i - 1]), key(ascending[i])) << ascending[i];
    EXPECT_EQ(key("ÉΣ漢Ⱥ"), key("éς漢ⱥ"));
    // The key of every character fits into sortKeySize().
    for (char32_t c = 0; c < strayByte; ++c) {
        std::string text;
        appendUtf8(text, c);
        char bytes[16];
        ASSERT_LE(writeSortKey(bytes, text) - bytes, static_cast<std::ptrdiff_t>(sortKeySize(text)));
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
