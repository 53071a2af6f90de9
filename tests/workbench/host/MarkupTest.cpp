#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "workbench/host/Markup.h"

namespace tsln::workbench {
namespace {

/// The runs in one line: bold text between asterisks, line ends as a slash, runs apart.
std::string shown(std::string_view text) {
    std::string result;
    for (const MarkupRun& run : parseMarkup(text)) {
        result += run.lineBreak ? "[/]" : run.bold ? "[*" + run.text + "*]" : "[" + run.text + "]";
    }
    return result;
}

TEST(Markup, ReadsWhatItKnowsAndShowsTheRest) {
    struct Case {
        std::string_view markup, runs, plain;
    };
    const Case cases[] = {
        {"", "", ""},
        {"plain", "[plain]", "plain"},
        {"The term <Bold>Net 30</Bold> is used.", "[The term ][*Net 30*][ is used.]",
         "The term Net 30 is used."},
        {"a<LineBreak/>b<LineBreak />c\r\nd\re\nf", "[a][/][b][/][c][/][d][/][e][/][f]", "a\nb\nc\nd\ne\nf"},
        {"<Bold>a<LineBreak/>b</Bold>", "[*a*][/][*b*]", "a\nb"},
        {"<TextBlock TextWrapping='Wrap'>one <Bold>two</Bold></TextBlock>", "[one ][*two*]", "one two"},
        {"a<TextBlock TextWrapping=\"Wrap\">b</TextBlock>c", "[a][/][b][/][c]", "a\nb\nc"},
        {"<TextBlock>a</TextBlock><TextBlock>b</TextBlock>", "[a][/][b]", "a\nb"},
        // names are not escaped: what is no complete markup is text
        {"A < B & <x> &amp; 1 > 0", "[A < B & <x> &amp; 1 > 0]", "A < B & <x> &amp; 1 > 0"},
        {"The term <Bold>A < B & <x></Bold>.", "[The term ][*A < B & <x>*][.]", "The term A < B & <x>."},
        {"<Bold><Bold></Bold>!", "[*<Bold>*][!]", "<Bold>!"},
        {"<Bold>a</Bold></Bold>", "[*a*][</Bold>]", "a</Bold>"},
        {"<Bold>open", "[<Bold>open]", "<Bold>open"},
        {"</Bold><Bold>", "[</Bold><Bold>]", "</Bold><Bold>"},
        {"<bold>a</bold>", "[<bold>a</bold>]", "<bold>a</bold>"},
        {"<Bold", "[<Bold]", "<Bold"},
        {"<TextBlocks>a</TextBlock>", "[<TextBlocks>a</TextBlock>]", "<TextBlocks>a</TextBlock>"},
        {"<TextBlock TextWrapping='Wrap'>a", "[<TextBlock TextWrapping='Wrap'>a]",
         "<TextBlock TextWrapping='Wrap'>a"},
        {"<TextBlock <b>a</TextBlock>", "[<TextBlock <b>a</TextBlock>]", "<TextBlock <b>a</TextBlock>"},
        {"<Bold>\xF0\x9F\xAA\x9F</Bold>", "[*\xF0\x9F\xAA\x9F*]", "\xF0\x9F\xAA\x9F"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(shown(c.markup), c.runs) << c.markup;
        EXPECT_EQ(plainText(c.markup), c.plain) << c.markup;
    }
}

TEST(Markup, TakesTimeByLengthOnly) {
    std::string text;
    for (int i = 0; i < 200'000; ++i)
        text += "<Bold><TextBlock ";
    EXPECT_EQ(plainText(text), text);
}

}  // namespace
}  // namespace tsln::workbench
