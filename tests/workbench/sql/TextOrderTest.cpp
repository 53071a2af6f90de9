#include <string>

#include <gtest/gtest.h>

#include "workbench/sql/TextOrder.h"

namespace tsln::workbench {

namespace {

TEST(TextOrderTest, TextComparesWithoutCase) {
    const struct {
        const char *left, *right;
        int order;
    } cases[] = {{"", "  ", 0},   {"a", "A  ", 0},   {"a", "b", -1},    {"Z", "a", 1},
                 {"ab", "a", 1},  {"a\t", "a", -1},  {"ÄÖÉ", "äöé", 0}, {"é", "e", 1},
                 {"ŁŽ", "łž", 0}, {"ΑΣΣ", "ασς", 0}, {"ЁЖ", "ёж", 0},   {"×", "÷", -1},
                 {"İ", "i", 1},   {"𝄞", "\xFF", 1},  {"Ÿ", "ÿ", 0},     {"Ա", "ա", 0}};
    for (const auto& c : cases) {
        EXPECT_EQ(compareText(c.left, c.right), c.order) << c.left << " " << c.right;
        EXPECT_EQ(compareText(c.right, c.left), -c.order) << c.left << " " << c.right;
    }
}

TEST(TextOrderTest, PatternsMatch) {
    const struct {
        const char *text, *pattern;
        bool matches;
    } cases[] = {{"", "", true},           {"", "%", true},         {"abc", "A%C", true},
                 {"abc", "a_", false},     {"ab ", "ab", false},    {"größe", "GR_SSE", false},
                 {"größe", "GRÖ_E", true}, {"a]b", "a]b", true},    {"x-1", "x[a-c-]1", true},
                 {"x5", "x[^0-4]", true},  {"x", "[^x]", false},    {"[", "[", true},
                 {"aXbXc", "%x%x%", true}, {"aXb", "%x%x%", false}, {"a%", "a[%]", true}};
    for (const auto& c : cases)
        EXPECT_EQ(matchesPattern(c.text, c.pattern), c.matches) << c.text << " " << c.pattern;
    EXPECT_TRUE(matchesPattern("50%", "50!%", U'!'));
    EXPECT_FALSE(matchesPattern("500", "50!%", U'!'));
    // Many runs on a long text must not take exponential time.
    std::string runs;
    for (int i = 0; i < 50; ++i)
        runs += "%a";
    EXPECT_FALSE(matchesPattern(std::string(5000, 'a'), runs + "%b"));
}

}  // namespace

}  // namespace tsln::workbench
