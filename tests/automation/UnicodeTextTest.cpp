#include <gtest/gtest.h>

#include "automation/UnicodeText.h"

namespace tsln {
namespace {

std::u32string decode(std::string_view text) {
    std::u32string result;
    for (std::size_t at = 0; at < text.size();)
        result += nextCodePoint(text, at);
    return result;
}

std::string encode(std::u32string_view text) {
    std::string result;
    for (const char32_t c : text)
        appendUtf8(result, c);
    return result;
}

TEST(UnicodeText, EveryTextSurvivesDecodingAndEncoding) {
    EXPECT_EQ(decode("aé€😀"), U"aé€😀");
    const struct {
        std::string_view text;
        std::u32string characters;
    } damaged[] = {
        {"\xC3", {strayByte + 0xC3}},
        {"\x80z", {strayByte + 0x80, U'z'}},
        {"\xC0\xAF", {strayByte + 0xC0, strayByte + 0xAF}},
        {"\xE2\x82", {strayByte + 0xE2, strayByte + 0x82}},
        {"\xED\xA0\x80", {strayByte + 0xED, strayByte + 0xA0, strayByte + 0x80}},
        {"\xF4\x90\x80\x80", {strayByte + 0xF4, strayByte + 0x90, strayByte + 0x80, strayByte + 0x80}},
    };
    for (const auto& [text, characters] : damaged) {
        EXPECT_EQ(decode(text), characters);
        EXPECT_EQ(encode(characters), text);
    }
    for (char32_t c = 1; c < strayByte; ++c) {
        if (c >= 0xD800 && c < 0xE000) continue;
        const std::string text = encode({&c, 1});
        std::size_t at = 0;
        ASSERT_EQ(nextCodePoint(text, at), c);
        ASSERT_EQ(at, text.size());
    }
}

TEST(UnicodeText, FoldingMakesOneLetterOfAllItsCases) {
    const std::pair<char32_t, char32_t> same[] = {
        {U'Z', U'z'}, {U'É', U'é'}, {U'Σ', U'σ'}, {U'ς', U'σ'}, {U'Ё', U'ё'},
        {U'Ÿ', U'ÿ'}, {U'ẞ', U'ß'}, {U'ſ', U's'}, {U'Ⱥ', U'ⱥ'}, {U'𐐀', U'𐐨'},
    };
    for (const auto& [a, b] : same)
        EXPECT_EQ(foldCase(a), foldCase(b)) << static_cast<std::uint32_t>(a);
    const std::pair<char32_t, char32_t> different[] = {
        {U'İ', U'i'}, {U'ı', U'i'}, {U'é', U'e'}, {U'ß', U's'}};
    for (const auto& [a, b] : different)
        EXPECT_NE(foldCase(a), foldCase(b)) << static_cast<std::uint32_t>(a);
    EXPECT_EQ(lowerCase(U'Σ'), U'σ');
    EXPECT_EQ(lowerCase(U'ς'), U'ς');
    EXPECT_EQ(lowerCase(U'İ'), U'İ');
    EXPECT_EQ(upperCase(U'ς'), U'Σ');
    EXPECT_EQ(upperCase(U'ı'), U'ı');
    // Folding is idempotent, lower and upper case do not change it, and stray bytes stay.
    for (char32_t c = 0; c < strayByte + 0x200; ++c) {
        ASSERT_EQ(foldCase(foldCase(c)), foldCase(c)) << static_cast<std::uint32_t>(c);
        ASSERT_EQ(foldCase(lowerCase(c)), foldCase(c)) << static_cast<std::uint32_t>(c);
        ASSERT_EQ(foldCase(upperCase(c)), foldCase(c)) << static_cast<std::uint32_t>(c);
        ASSERT_TRUE(c < strayByte || foldCase(c) == c);
    }
}

}  // namespace
}  // namespace tsln
