#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shared/Markup.h"

namespace tsln {
namespace {

/// The runs in one line: bold text between asterisks, a link's operation before it, line ends as a slash.
std::string shown(std::string_view text) {
    std::string result;
    for (const MarkupRun& run : parseMarkup(text)) {
        const std::string link = run.operation.empty() ? "" : run.operation + ":";
        result += run.lineBreak ? "[/]"
                  : run.bold    ? "[" + link + "*" + run.text + "*]"
                                : "[" + link + run.text + "]";
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
        {"<TextBlock Name='1 > 0'>a</TextBlock><TextBlock Name=\"it's >\">b</TextBlock>", "[a][/][b]", "a\nb"},
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
        {"<TextBlock><Hyperlink Click='New'>New <Bold>one</Bold></Hyperlink> / more</TextBlock>",
         "[New:New ][New:*one*][ / more]", "New one / more"},
        {"<Hyperlink Click=\"A\">a</Hyperlink><Hyperlink Click='B'>b</Hyperlink>", "[A:a][B:b]", "ab"},
        {"<Hyperlink>a</Hyperlink>", "[<Hyperlink>a</Hyperlink>]", "<Hyperlink>a</Hyperlink>"},
        {"<Hyperlink Click=''>a</Hyperlink>", "[<Hyperlink Click=''>a</Hyperlink>]",
         "<Hyperlink Click=''>a</Hyperlink>"},
        {"<Hyperlink Click='A'><Hyperlink Click='B'>a</Hyperlink>", "[A:<Hyperlink Click='B'>a]",
         "<Hyperlink Click='B'>a"},
        {"a<![CDATA[<Bold>b</Bold>\r\n]]>c", "[a<Bold>b</Bold>][/][c]", "a<Bold>b</Bold>\nc"},
        {"<Bold>a<![CDATA[</Bold>]]>", "[<Bold>a</Bold>]", "<Bold>a</Bold>"},
        {"<![CDATA[<Bold>b</Bold>", "[<![CDATA[][*b*]", "<![CDATA[b"},
        {"<Bold>\xF0\x9F\xAA\x9F</Bold>", "[*\xF0\x9F\xAA\x9F*]", "\xF0\x9F\xAA\x9F"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(shown(c.markup), c.runs) << c.markup;
        EXPECT_EQ(plainText(c.markup), c.plain) << c.markup;
    }
}

TEST(Markup, ABlockSaysHowItStandsAndInnerBlocksInherit) {
    using Alignment = MarkupBlock::Alignment;
    const auto runs = parseMarkup(
        "a<TextBlock TextWrapping='Wrap' FontSize='13.5'>b"
        "<TextBlock TextAlignment='Right' FontSize='x'>c</TextBlock></TextBlock>d");
    std::vector<std::pair<std::string, MarkupBlock>> blocks;
    for (const MarkupRun& run : runs) {
        if (!run.lineBreak) blocks.emplace_back(run.text, run.block);
    }
    EXPECT_THAT(blocks, testing::ElementsAre(std::pair{"a", MarkupBlock{}},
                                             std::pair{"b", MarkupBlock{true, Alignment::Left, 13.5}},
                                             std::pair{"c", MarkupBlock{true, Alignment::Right, 13.5}},
                                             std::pair{"d", MarkupBlock{}}));
}

TEST(Markup, ATextOfAUserNeverBecomesMarkup) {
    for (const std::string text :
         {"plain & simple", "<Bold>b</Bold>", "</Bold>", "<Bold", "]]>", "<]]>", "<a]]", "]]><Bold>x</Bold>",
          "<![CDATA[x]]>", "<Hyperlink Click='Delete'>here</Hyperlink>", "</TextBlock><LineBreak/>"}) {
        EXPECT_EQ(plainText(asMarkupText(text)), text);
        const auto runs =
            parseMarkup("<TextBlock><Bold>" + asMarkupText(text) + "</Bold> is used.</TextBlock>");
        ASSERT_EQ(runs.size(), 2U) << text;
        EXPECT_EQ(runs[0].text, text);
        EXPECT_TRUE(runs[0].bold) << text;
        EXPECT_EQ(runs[1].text, " is used.");
    }
}

TEST(Markup, TakesTimeByLengthOnly) {
    for (const std::string part :
         {"<Bold><TextBlock ", "<![CDATA[", "<Hyperlink Click='", "<TextBlock '\""}) {
        std::string text;
        for (int i = 0; i < 200'000; ++i)
            text += part;
        EXPECT_EQ(plainText(text), text);
    }
}

}  // namespace
}  // namespace tsln
