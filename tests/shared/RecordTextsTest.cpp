#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "automation/HostError.h"
#include "shared/RecordTexts.h"

namespace tsln::modSharedXML {
namespace {

using testing::ElementsAre;

/// All rows. An error that was raised is added as a last row.
std::vector<std::string> readAll(const std::string& text) {
    std::vector<std::string> rows;
    try {
        RecordTexts reader(text);
        while (const auto row = reader.next())
            rows.emplace_back(*row);
        if (reader.next()) rows.push_back("a row after the last");
    } catch (const HostError&) {
        rows.push_back("raised");
    }
    return rows;
}

TEST(RecordTexts, GivesRowsOfTheUsualFormUnchanged) {
    const std::string rows[] = {
        "<Record><A>1</A><B/></Record>",
        "<Record/>",
        "<Record></Record>",
        "<Record><A>  </A></Record>",
        "<Record>\n  <A>a &amp; b &lt;c&gt; &amp;#13;&amp;#10; \"q\" '</A>\n</Record>",
        "<Record><Größe>x > y</Größe><Record2>z</Record2></Record>"};
    std::string text = "<?xml version=\"1.0\"?>\r\n<Records>\r\n";
    for (const std::string& row : rows)
        text += row + "\r\n";
    EXPECT_THAT(readAll(text + "</Records>\n"), testing::ElementsAreArray(rows));
    EXPECT_EQ(RecordTexts(text + "</Records>").expectedRows(), std::size(rows) - 1)
        << "all but the empty tag";
    for (const char* none : {"", " \r\n", "<Records/>", "<Records></Records>", "<Other><Record/></Other>"})
        EXPECT_THAT(readAll(none), testing::IsEmpty()) << none;
}

TEST(RecordTexts, ParsesRowsOfOtherFormsAndRejectsWhatIsNoXml) {
    const std::string good = "<Record><A>1</A></Record>";
    const struct {
        std::string row, given;
    } unusual[] = {
        {"<Record ID=\"7\"><A>1</A></Record>", "<Record ID=\"7\"><A>1</A></Record>"},
        {"<Record><A kind='</Record>'>1</A></Record>", "<Record><A kind=\"&lt;/Record>\">1</A></Record>"},
        {"<Record><A>1<b>2</b></A></Record>", "<Record><A>1<b>2</b></A></Record>"},
        {"<Record><!-- </Record> --><A>1</A></Record>", "<Record><A>1</A></Record>"},
        {"<Record><A><![CDATA[</Record>]]></A></Record>", "<Record><A><![CDATA[</Record>]]></A></Record>"},
        {"<Record>\n<A\n>1</A ></Record>", "<Record><A>1</A></Record>"},
    };
    for (const auto& c : unusual)
        EXPECT_THAT(readAll("<Records>" + good + c.row + good + "</Records>"),
                    ElementsAre(good, c.given, good))
            << c.row;
    EXPECT_THAT(readAll("<Records><!-- none --><Record/></Records>"), ElementsAre("<Record/>"));

    for (const char* bad : {"<Record><A>1</B></Record>", "<Record><A>1</Record>", "<Record><A>1",
                            "<Record><A", "<", "<Record></Records>", "</Records></Records>"})
        EXPECT_EQ(readAll(std::string("<Records>") + good + bad).back(), "raised") << bad;
    EXPECT_EQ(readAll("no XML at all").back(), "raised");
    EXPECT_EQ(readAll("<Records>" + good + std::string("\0</Records>", 11)).back(), "raised");
}

}  // namespace
}  // namespace tsln::modSharedXML
