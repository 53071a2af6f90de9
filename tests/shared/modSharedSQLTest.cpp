#include <vector>

#include <gtest/gtest.h>

#include "automation/Object.h"
#include "shared/modSharedSQL.h"

namespace tsln::modSharedSQL {
namespace {

TEST(Format, FillsNumberedPlaceholdersInOrder) {
    const std::string text = "x";
    const struct {
        std::string result;
        std::string_view expected;
    } cases[] = {
        {format("no placeholder", 1), "no placeholder"},
        {format("", 1), ""},
        {format("ID = {0}", 12), "ID = 12"},
        {format("{1} {0} {1}", "a", "b"), "b a b"},
        {format("{0} {3}", "a", "b"), "a {3}"},
        {format("{0} { 0} {00} {a} {", 1), "1 { 0} {00} {a} {"},
        {format("{0}", "{1}", "second"), "second"},        // a later placeholder is filled again
        {format("{1}|{0}", "first", "{0}"), "{0}|first"},  // an earlier one is not
        {format("{0}{0}", "{0}"), "{0}{0}"},
        {format("{{0}}", 1, 2), "2"},
        {format("{0}{1}{2}{3}{4}", text, std::string_view("y"), 1.5, true, Variant(std::int16_t(-3))),
         "xy1.5True-3"},
        {format("{0} {1}", std::int64_t(9007199254740993), std::size_t(7)), "9007199254740993 7"},
        {format("{0}|{1}|{2}", Null(), Variant(), Missing()), "{0}||{2}"},  // Null has no text form
        {format("{0}|{1}", ObjectPtr(), "b"), "{0}|b"},
        {format("{0}"), "{0}"},
    };
    for (const auto& row : cases)
        EXPECT_EQ(row.result, row.expected);
}

TEST(Format, KnowsSeventeenPlaceholders) {
    EXPECT_EQ(format("{16}{17}{10}{1}", 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18),
              "16{17}101");
}

TEST(DoubleQuotes, MakesTextSafeBetweenQuotes) {
    EXPECT_EQ(doubleQuotes("O'Brien"), "O''Brien");
    EXPECT_EQ(doubleQuotes("''"), "''''");
    EXPECT_EQ(doubleQuotes("\"none\""), "\"none\"");
}

TEST(FillTags, ReplacesOneTagAfterAnother) {
    EXPECT_EQ(fillTags("INSERT INTO Accounts (Account,AccountType,Exported) VALUES('<a>', <t>, <ex>)",
                       {{"<a>", doubleQuotes("O'Brien")}, {"<t>", 2}, {"<ex>", true}}),
              "INSERT INTO Accounts (Account,AccountType,Exported) VALUES('O''Brien', 2, 1)");
    EXPECT_EQ(fillTags("'<a>' <id> <id>", {{"<a>", "my <id>"}, {"<id>", std::int32_t(-1)}}), "'my -1' -1 -1");
    EXPECT_EQ(fillTags("'<a>' <id>", {{"<id>", 7}, {"<a>", "my <id>"}}), "'my <id>' 7");
    EXPECT_EQ(fillTags("<A> <a>", {{"<a>", "x"}, {"", "y"}, {"<b>", "z"}}), "<A> x");
}

TEST(FillTags, TakesLongTextsInOnePassPerTag) {
    std::string text;
    std::string expected;
    for (int i = 0; i < 200000; ++i) {
        text += "<n>,";
        expected += "a longer value,";
    }
    EXPECT_EQ(fillTags(text, {{"<n>", "a longer value"}}), expected);
}

TEST(FillTags, ReplacesInTheOrderGivenWhateverTheNames) {
    EXPECT_EQ(fillTags("<a>><b>", {{"<a>", "<b"}, {"<b>", "<c>"}, {"<c>", "<a>"}}), "<a><a>");
    EXPECT_EQ(fillTags("<<a>> <a", {{"<a>", "<a>"}, {"<a>", "x"}}), "<x> <a");
    EXPECT_EQ(fillTags("a < b", {{"<", ">"}, {">", "<"}}), "a < b");
}

}  // namespace
}  // namespace tsln::modSharedSQL
